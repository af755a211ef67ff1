#include "support/request_rows.h"

using namespace test;

TEST(Scene, Requests)
{
    const RadioHyperUplinkParasType paras{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16},
                                          {2, {21, 22, 23}},
                                          {11, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}};
    const Fields lists = {numbers<int32_t>(278, {21, 22}),
                          numbers<int32_t>(279, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10})};
    std::vector<int> ids(65546);
    std::iota(ids.begin(), ids.end(), 1);
    // Is answered with `sent` whole records and some bytes more.
    const auto scenes = [&](const Texts& log, unsigned asked, unsigned askedSent, int sent, uint32_t kept,
                            size_t more) {
        Bytes request = packed(askedSent);
        for (size_t i = 0; i < askedSent; ++i) {
            append(request, packed(ids[i]));
        }
        request.resize(260);
        Bytes block;
        Bytes record = packed(kept);
        for (int i = 0; i < sent; ++i) {
            append(block, joined({packed(-1, i, 100 + i), Bytes(504, 0xEE)}));
            append(record, i < static_cast<int>(kept) ? packed(i, 100 + i) : Bytes());
        }
        block.resize(block.size() + more, 0xEE);
        return query(Untold, log, radioGetSceneMode, 0x3877, {raw(256, request)}, {raw(256, block)}, record,
                     ids.data(), asked);
    };
    checkVendorRows({
        setter({"setHyperUplinkMode - enter", "setHyperUplinkMode - cb enter"}, radioSetHyperUplinkMode,
               0x382D),
        setter("setHyperUplinkParas - enter", radioSetHyperUplinkParas, 0x3833,
               joined({int32s(256, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), int32s(272, {11, 12, 13, 14, 15, 16}),
                       lists}),
               paras),
        setter({"setSceneMode - enter", "setSceneMode - cb enter"}, radioSetSceneMode, 0x382F),
        scenes({"getSceneMode - enter", "getSceneMode cb enter"}, 70, 64, 70, 64, 0),
        scenes({}, 2, 2, 2, 2, 515),
        scenes({}, 0, 0, 0, 0, 12),
        scenes({}, 65546, 64, 0, 0, 0),
        setter({"setQoeScore - enter", "setQoeScore - cb enter"}, radioSetQoeScore, 0x3831),
        setter("sendScoreInfo - enter", radioSendScoreInfo, 0x386F, {array(256, countingRecords(32, 16))},
               recordOf<RadioScoreInfoListType>(joined({packed(17), counting(512)}))),
        setter("setSiteCellInfo - enter", radioSetSiteCellInfo, 0x3835, {raw(256, counting(524))}, 9,
               recordOf<RadioSiteCellInfoType>(counting(524))),
    });
    checkInvalid("VornVsClient", {call(radioGetSceneMode, nullptr, 1u)});
    const Instance instance(0);
    checkAccepted(call(radioGetSceneMode, nullptr, 0u));
}
