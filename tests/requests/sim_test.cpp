#include "support/at_fixture.h"

using namespace test;

TEST(Sim, Requests)
{
    const auto trays = [](const Texts& log, const std::vector<int32_t>& sent,
                          const RadioSimTrayStatus& kept) {
        return query(Untold, log, radioGetSimTrayStatus, 0x3803, {}, {numbers(256, sent)}, packed(kept));
    };
    // Data of up to `limit` bytes is sent, and answered with data.
    const auto checkLock = [](const std::string& method, decltype(&radioSetCarrierLockBlob) function,
                              uint16_t id, uint16_t field, size_t sent, uint32_t kept, unsigned limit) {
        const Bytes data = counting(65546);
        checkVendorRows(
            {query(Result, {method + " - enter", method + " cb enter"}, function, id,
                   {raw(field, counting(300))}, {raw(257, counting(sent))}, blob(kept), data.data(), 300u)});
        const auto with = [&](unsigned length) { return call(function, data.data(), length); };
        // The last length is 10 in 16 bits.
        checkInvalid("VornVsClient", {call(function, nullptr, 1u), with(0), with(limit + 1), with(65546)});
        const Instance instance(0);
        checkAccepted(with(1));
        checkAccepted(with(limit));
    };
    const auto authentication = [](const Fields& answer, const Bytes& content, const Texts& log = {}) {
        return query(
            Flag, log, radioRequestIccSimAuthentication, 1333,
            {uint8(257, 1), uint8(256, 0), uint8(260, 4), uint16(258, 4), raw(0x8103, {'a', 0x0A, 'c', 0})},
            answer, joined({packed(0u, static_cast<uint32_t>(content.size())), content}),
            RadioUimAuthenticateReqInfo{{'a', 0x0A, 'c'}, 4});
    };
    checkVendorRows({
        trays({"getSimTrayStatus - enter", "simTrayStatus[0]=7", "simTrayStatus[1]=-8"}, {7, -8, 9},
              {2, {7, -8}}),
        trays({}, {}, {}),
        trays({}, {7}, {1, {7}}),
        trays({}, {7, 8}, {2, {7, 8}}),
    });
    checkLock("setSmlBlob", radioSetCarrierLockBlob, 0x384D, 256, 600, 512, 2048);
    checkLock("setSmlStatus", radioSetCarrierLockStatus, 0x384F, 257, 513, 512, 512);
    checkLock("getSmlStatus", radioGetCarrierLockStatus, 0x3851, 257, 512, 512, 512);
    checkLock("setRlkBlob", radioSetRegionLockBlob, 0x3853, 256, 511, 511, 1024);
    checkLock("setRlkStatus", radioSetRegionLockStatus, 0x3855, 257, 1, 1, 512);
    checkLock("getRlkStatus", radioGetRegionLockStatus, 0x3857, 257, 0, 0, 512);
    checkStandardRows({
        authentication({uint16(257, 2), raw(0x8102, {0xDB, 8, 9})}, {0xDB, 8},
                       {"requestIccSimAuthentication - enter",
                        "requestIccSimAuthentication authdata_len: 4, authdata: a.c",
                        "requestIccSimAuthentication respCb vorn_result: 0, rsp_len: 2",
                        "requestIccSimAuthentication respCb auth_content: .."}),
        authentication({uint16(257, 9), raw(0x8102, {0xDB, 8, 9})}, {0xDB, 8, 9}),
        authentication({uint16(257, 60000), raw(0x8102, counting(60000))}, counting(256)),
        setter({entered("radioSetUimPowerUp"), "setUimPowerUp - enter"}, radioSetUimPowerUp, 1353,
               {uint8(256, 1), uint8(257, 1)}),
        setter({entered("radioSetUimPowerDown"), "setUimPowerDown - enter"}, radioSetUimPowerDown, 1353,
               {uint8(256, 1), uint8(257, 0)}),
    });
    checkInvalid("VornRadioClient",
                 {call(radioRequestIccSimAuthentication, RadioUimAuthenticateReqInfo{{}, 257})});
    RadioSimlockCategory category{1023, {}};
    std::memset(category.category, 'c', 1023);
    checkQueries({
        {call(radioGetSimCardType, 0), "AT+CIMI", "001010123456789",
         packed(RadioSimCardType{1, "001010123456789"})},
        {call(radioGetSimCardType, 0), "AT+CIMI", "310150", packed(RadioSimCardType{0, "310150"})},
        {call(radioGetSimlockCategoryData), "AT+ESMLRSUF?", "+ESMLRSUF: 0,1,\"a\"",
         packed(RadioSimlockCategory{7, "0,1,\"a\""}), "simCategory: 0,1,\"a\", len: 7", -1},
        {call(radioGetSimlockCategoryData), "AT+ESMLRSUF?", "+X: " + std::string(2000, 'c'), packed(category),
         Texts(), -1},
    });
    checkAtRefusals(
        {{call(radioGetSimlockLockStatus), "getSimlockLockStatus : unsupported operation, plese see Java "
                                           "remoteSimlockGetSimlockStatusEx instead"}});
}
