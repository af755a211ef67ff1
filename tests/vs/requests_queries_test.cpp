/// Requests whose answers carry something.
#include "support/request_rows.h"

#include <gtest/gtest.h>

#include <numeric>

using namespace test;

namespace {

using Row = RequestRow;
using enum Failure;

std::array<int, 70> gValues = [] {
    std::array<int, 70> values;
    std::iota(values.begin(), values.end(), 1);
    return values;
}();

/// The record of a blob of which `kept` bytes are left.
Bytes blob(uint32_t kept)
{
    return joined({packed(kept), counting(kept)});
}

/// A serving cell block whose every byte tells its place, and what becomes of it: bytes 24 to 27 are left
/// out.
const Field kServingBlock = raw(256, counting(83, 0));

Bytes servingCell(uint32_t failure)
{
    return joined({packed(failure), counting(24, 0), counting(55, 28)});
}

Row allCells(size_t neighbours, uint32_t kept)
{
    Bytes record = joined({servingCell(0), {0}, packed(kept)});
    std::vector<Bytes> elements;
    for (size_t i = 0; i < neighbours; ++i) {
        elements.push_back(counting(i == 1 ? 5 : 40, static_cast<uint8_t>(i)));
        if (i < kept) {
            append(record, elements[i]);
            record.resize(88 + 32 * (i + 1));
        }
    }
    return query(Flag, "getAllCellularCellInfo", radioGetAllCellularCellInfo, 0x3821, {},
                 {kServingBlock, array(257, elements)}, record);
}

Row rrcStatus(const Fields& answer, uint32_t status)
{
    return query(Untold, "getRRCStatus", radioGetRRCStatus, 0x3825, {}, answer, packed(status));
}

Row trays(const std::vector<int32_t>& sent, const RadioSimTrayStatus& kept)
{
    return query(Untold, "getSimTrayStatus", radioGetSimTrayStatus, 0x3803, {}, {numbers(256, sent)},
                 packed(kept));
}

Row atomData(size_t sent, uint32_t kept)
{
    return query(Untold, "getAtomData", radioGetAtomData, 0x3819,
                 {int32(256, 5), int32(257, 6), numbers<int32_t>(258, {1, 2})}, {raw(256, counting(sent))},
                 blob(kept), 5, 6, gValues.data(), 2u);
}

Row metrics(const Fields& answer, uint32_t kept, const Bytes& values)
{
    Bytes record = blob(kept);
    record.resize(4 + 16384);
    append(record, values);
    return query(Untold, "getMetricsData", radioGetMetricsData, 0x382B,
                 {int32(256, 1), int32(257, 2), int32(259, 3), numbers<int32_t>(258, {1, 2})}, answer, record,
                 1, 2, 3, gValues.data(), 2u);
}

Row policies(uint32_t sent, uint32_t kept)
{
    Bytes block = packed(sent);
    Bytes record = packed(kept);
    for (uint32_t i = 0; i < sent; ++i) {
        RadioPolicyConfig policy{i, 1, 5000 + i, -7, 12, {}, 2, "klmnopqrs"};
        std::memcpy(policy.text1, "abcdefghij", 10);
        append(block, packed(policy));
        append(record,
               i < kept ? packed(RadioPolicyConfig{i, 1, 5000 + i, -7, 9, "abcdefghi", 2, "kl"}) : Bytes());
    }
    return query(Untold, "getModemIndicationPolicy", radioGetModemIndicationPolicy, 0x3839, {},
                 {raw(256, block)}, record);
}

Row reports(uint32_t sent, uint32_t kept)
{
    Bytes block = packed(sent);
    Bytes record = packed(kept);
    for (uint32_t i = 0; i < sent; ++i) {
        append(block, packed(i, 1000 + i));
        append(record, i < kept ? packed(i, 1000 + i) : Bytes());
    }
    return query(Untold, "getIndicationReportRecords", radioGetIndicationReportRecords, 0x383D, {},
                 {raw(256, block)}, record);
}

/// Heaps whose names fill their place.
Row heaps(uint32_t count)
{
    Bytes block = packed(1, 2, 3, 4, 5, count);
    RadioModemHeapList list{1, "modem_pool", 2, 3, 4, 5, count, {}};
    for (uint32_t i = 0; i < count; ++i) {
        append(block, joined({Bytes(20, 'n'), packed(100 + i, 200 + i)}));
        list.heaps[i] = {"nnnnnnnnnnnnnnnnnnn", 100 + i, 200 + i};
    }
    return query(Untold, "getModemHeapList", radioGetModemHeapList, 0x3845, {}, {raw(256, block)},
                 packed(list));
}

/// Is answered with `sent` whole records and some bytes more.
Row scenes(unsigned asked, unsigned askedSent, int sent, uint32_t kept, size_t more)
{
    Bytes request = packed(askedSent);
    for (size_t i = 0; i < askedSent; ++i) {
        append(request, packed(gValues[i]));
    }
    request.resize(260);
    Bytes block;
    Bytes record = packed(kept);
    for (int i = 0; i < sent; ++i) {
        append(block, joined({packed(-1, i, 100 + i), Bytes(504, 0xEE)}));
    }
    block.resize(block.size() + more, 0xEE);
    for (int i = 0; i < static_cast<int>(kept); ++i) {
        append(record, packed(i, 100 + i));
    }
    return query(Untold, "getSceneMode", radioGetSceneMode, 0x3877, {raw(256, request)}, {raw(256, block)},
                 record, gValues.data(), asked);
}

Row lock(const char* name, int (*function)(const unsigned char*, unsigned int, void*, RadioRequestCallback),
         uint16_t id, uint16_t field, size_t sent, uint32_t kept)
{
    static const Bytes data = counting(300);
    return query(Result, name, function, id, {raw(field, data)}, {raw(257, counting(sent))}, blob(kept),
                 data.data(), 300u);
}

std::vector<Row> queries()
{
    static const Bytes data = counting(3);
    return {
        query(Flag, "setMicroMotionState", radioSetMicroMotionState, 0x3805, int32s(256, {4, -5}), {}, {}, 4,
              -5),
        query(Untold, "getLteCellInfo", radioGetLteCellInfo, 0x3813, {},
              {uint32(256, 1300), uint8(257, 200), uint32(258, 0x100)}, packed(1300, 200, 1)),
        rrcStatus({uint32(256, 2)}, 2),
        query(Flag, "getServingCellularCellInfo", radioGetServingCellularCellInfo, 0x381F, {},
              {kServingBlock}, servingCell(0)),
        allCells(70, 64),
        trays({7, -8, 9}, {2, {7, -8}}),
        atomData(5000, 4096),
        query(Untold, "getFeatureState", radioGetFeatureState, 0x381D, {int32(256, -6)}, {uint32(256, 9)},
              packed(9), -6),
        query(Untold, "getNecData", radioGetNecData, 0x3823,
              {int32(256, 4), numbers<uint8_t>(257, {1, 2, 3})}, {raw(256, counting(3000))}, blob(2048), 4,
              data.data(), 3u),
        metrics({raw(256, counting(20000)), int32(257, 7), int32(258, 8), int32(259, 9)}, 16384,
                packed(7, 8, 9)),
        policies(60, 48),
        query(Untold, "getModemProtocolInfo", radioGetModemProtocolInfo, 0x383B, {},
              {raw(256, counting(5000))}, blob(4096)),
        reports(101, 100),
        heaps(50),
        query(Untold, "getQosData", radioGetQosData, 0x3865, {int32(256, -2)}, {raw(256, counting(3000))},
              blob(2048), -2),
        query(Flag, "getPowerStatistics", radioGetPowerStatistics, 0x386D, {}, {}, {}),
        scenes(70, 64, 70, 64, 0),
        query(Untold, "getRfIccInfo", radioGetRfIccInfo, 0x3879, {}, {uint8(256, 200), uint16(257, 60000)},
              {200, 0, 0x60, 0xEA}),
        query(Untold, "getSarDsiState", radioGetSarDsiState, 0x3899, {}, {int32(256, -4)}, packed(-4)),
        query(Untold, "getNetworkActionState", radioGetNetworkActionState, 0x3875, {int32(256, -7)},
              int32s(256, {5, -6, 7}), packed(5, -6, 7), -7),
    };
}

/// More answers to the same requests.
std::vector<Row> otherAnswers()
{
    return {
        rrcStatus({}, 1),
        allCells(0, 0),
        allCells(3, 3),
        trays({}, {}),
        trays({7}, {1, {7}}),
        trays({7, 8}, {2, {7, 8}}),
        atomData(0, 0),
        atomData(4096, 4096),
        metrics({}, 0, packed(-1, 0, 0)),
        policies(3, 3),
        reports(0, 0),
        heaps(0),
        query(Untold, "getModemHeapList", radioGetModemHeapList, 0x3845, {}, {}, {}),
        scenes(2, 2, 2, 2, 515),
        scenes(0, 0, 0, 0, 12),
    };
}

std::vector<Row> locks()
{
    return {
        lock("setSmlBlob", radioSetCarrierLockBlob, 0x384D, 256, 600, 512),
        lock("setSmlStatus", radioSetCarrierLockStatus, 0x384F, 257, 513, 512),
        lock("getSmlStatus", radioGetCarrierLockStatus, 0x3851, 257, 512, 512),
        lock("setRlkBlob", radioSetRegionLockBlob, 0x3853, 256, 511, 511),
        lock("setRlkStatus", radioSetRegionLockStatus, 0x3855, 257, 1, 1),
        lock("getRlkStatus", radioGetRegionLockStatus, 0x3857, 257, 0, 0),
    };
}

LogLines lines()
{
    LogLines lines = {
        {"setMicroMotionState",
         {"setMicroMotionState - enter. setMicroMotionState microMotionState=4 multiplier=-5"}},
        {"getLteCellInfo", {"getLteCellInfo - enter. slotId=2"}},
        {"getRRCStatus", {"getRRCStatus - enter. slotId=2", "operator() rrc status:2  "}},
        {"getServingCellularCellInfo",
         {entered("radioGetServingCellularCellInfo"), "getServingCellularCellInfo - enter. slotId=2"}},
        {"getAllCellularCellInfo", {"getAllCellularCellInfo - enter. slotId=2", "neighbor_cell_info_len:70"}},
        {"getSimTrayStatus", {"getSimTrayStatus - enter", "simTrayStatus[0]=7", "simTrayStatus[1]=-8"}},
        {"getFeatureState",
         {entered("radioGetFeatureState"), "getFeatureState enter", "getFeatureState cb enter"}},
        {"getNecData", {entered("radioGetNecData"), "getNecData - enter"}},
        {"getSarDsiState", {"getSarDsiState - enter", "operator() sar dsi state:-4  "}},
    };
    for (const std::string name :
         {"getModemIndicationPolicy", "getModemProtocolInfo", "getIndicationReportRecords", "getQosData",
          "getPowerStatistics", "getSceneMode", "getRfIccInfo", "getNetworkActionState", "setSmlBlob",
          "setSmlStatus", "getSmlStatus", "setRlkBlob", "setRlkStatus", "getRlkStatus"}) {
        lines[name] = {name + " - enter", name + " cb enter"};
    }
    lines["getModemIndicationPolicy"].emplace_back("getModemIndicationPolicy modem indication policy len:48");
    lines["getIndicationReportRecords"].emplace_back("modem indication policy len:100");
    return lines;
}

struct VsQueries : testing::Test {
    Instance instance{0};
    Caller caller;
    FakeModem& modem = FakeModem::instance();
    LogCapture log;
};

} // namespace

TEST_F(VsQueries, FillTheirRecord)
{
    checkRows(joined({queries(), locks(), otherAnswers()}), "VornVsClient", lines());
}

TEST_F(VsQueries, RefuseMoreHeapsThanTheRecordHolds)
{
    for (const uint32_t count : {51u, 0xFFFFFFFFu}) {
        radioGetModemHeapList(&caller, Caller::onResult);
        modem.answer({result(0), raw(256, packed(1, 2, 3, 4, 5, count))});
        EXPECT_EQ(caller.result, RADIO_APIS_INVALID_PARAMETER);
        EXPECT_FALSE(caller.hadRecord);
    }
    EXPECT_EQ(log.count("E VornVsClient: error : invalid param"), 2);
    radioGetModemHeapList(&caller, Caller::onResult);
    modem.answer({result(0)});
    EXPECT_TRUE(log.has("E VornVsClient: getModemHeapList cb error, invalid "
                        "VORN_VS_GET_MODEM_HEAP_LIST_CNF_T_INFO"));
}

TEST_F(VsQueries, EndWithoutACallWhenThereIsNoAnswer)
{
    const auto rows = queries();
    for (const Row& row : rows) {
        row.call(&caller, Caller::onResult);
        modem.answerWith(nullptr);
    }
    EXPECT_EQ(caller.calls, 0);
    EXPECT_EQ(log.count("E VornVsClient: operator() : invalid vorn response"), std::ssize(rows));
}
