#include "support/request_rows.h"
#include "vs/vorn_vs_client.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Row = RequestRow<VornVsClient>;

/// A serving cell block whose every byte tells its place.
Bytes servingBlock()
{
    return counting(83, 0);
}

void expectServingBlock(const RadioServingCell& cell, uint32_t failure)
{
    EXPECT_EQ(cell.failure, failure);
    EXPECT_EQ(cell.rat, 0x03020100u);
    EXPECT_EQ(cell.pci, 0x13121110u);
    EXPECT_EQ(cell.arfcn, 0x17161514u);
    EXPECT_EQ(cell.cellIdLow, 0x1F1E1D1Cu); // bytes 24 to 27 are left out
    EXPECT_EQ(cell.rrcState, 0x4F4E4D4Cu);
    EXPECT_EQ(cell.mncDigits, 80);
    EXPECT_EQ(cell.txAntennas, 82);
}

Row allCells(size_t neighbours)
{
    std::vector<Bytes> elements;
    for (size_t i = 0; i < neighbours; ++i) {
        elements.push_back(counting(i == 1 ? 5 : 40, static_cast<uint8_t>(i + 1)));
    }
    return {"getAllCellularCellInfo",
            [](auto& c, void* user, auto cb) { return c.getAllCellularCellInfo(user, cb); },
            0x3821,
            {},
            {raw(256, servingBlock()), array(257, elements)},
            [=](const Rsp& rsp) {
                const auto& cells = rsp.allCellInfo;
                expectServingBlock(cells.serving, 0);
                ASSERT_EQ(cells.neighbourCount, std::min<size_t>(neighbours, 64));
                for (uint32_t i = 0; i < cells.neighbourCount; ++i) {
                    EXPECT_EQ(cells.neighbours[i].rat & 0xFF, i + 1);
                    EXPECT_EQ(cells.neighbours[i].cellIdLow, i == 1 ? 0 : i * 0x01010101 + 0x201F1E1D);
                }
            },
            true};
}

std::vector<Row> rows()
{
    return {
        {"sendScreenState",
         [](auto& c, void* user, auto cb) { return c.sendScreenState(-3, user, cb); },
         0x3801,
         {int32(256, -3)}},
        {"setSarState",
         [](auto& c, void* user, auto cb) { return c.setSarState(1, 2, user, cb); },
         0x3895,
         {int32(256, 1), int32(257, 2)}},
        {"setMicroMotionState",
         [](auto& c, void* user, auto cb) { return c.setMicroMotionState(4, -5, user, cb); },
         0x3805,
         {int32(256, 4), int32(257, -5)},
         {},
         nullptr,
         true},
        {"getLteCellInfo",
         [](auto& c, void* user, auto cb) { return c.getLteCellInfo(user, cb); },
         0x3813,
         {},
         {uint32(256, 1300), uint8(257, 200), uint32(258, 0x100)},
         [](const Rsp& rsp) {
             EXPECT_EQ(rsp.lteCellInfo.arfcn, 1300u);
             EXPECT_EQ(rsp.lteCellInfo.pci, 200u); // one byte where four are due
             EXPECT_EQ(rsp.lteCellInfo.connected, 1);
         },
         true},
        {"getRRCStatus",
         [](auto& c, void* user, auto cb) { return c.getRRCStatus(user, cb); },
         0x3825,
         {},
         {uint32(256, 3)},
         [](const Rsp& rsp) { EXPECT_EQ(rsp.rrcStatus.status, 3u); },
         true},
        {"getRRCStatus without a status",
         [](auto& c, void* user, auto cb) { return c.getRRCStatus(user, cb); },
         0x3825,
         {},
         {},
         [](const Rsp& rsp) { EXPECT_EQ(rsp.rrcStatus.status, 1u); },
         true},
        {"getServingCellularCellInfo",
         [](auto& c, void* user, auto cb) { return c.getServingCellularCellInfo(user, cb); },
         0x381F,
         {},
         {raw(256, servingBlock())},
         [](const Rsp& rsp) { expectServingBlock(rsp.servingCellInfo, 0); },
         true},
        allCells(0),
        allCells(3),
        allCells(70),
    };
}

} // namespace

TEST(VsRequests, SendTheirMessageAndFillTheirRecord)
{
    for (const Row& row : rows()) {
        checkRow(row, 0, 1);
        checkRow(row, 1, 2);
        checkRow(row, 2, 4);
    }
}

TEST(VsRequests, EndOnceWhateverTheModemAnswers)
{
    for (const Row& row : rows()) {
        checkFailures(row);
        checkHostileAnswers(row);
    }
}

TEST(VsRequests, TellOfTheModemsFailureInTheRecord)
{
    VornVsClient client(false, 0);
    Caller caller;
    LogCapture log;
    client.getServingCellularCellInfo(&caller, Caller::onResult);
    FakeModem::instance().answer({result(105), raw(256, servingBlock())});
    EXPECT_EQ(caller.result, RADIO_APIS_SUCCESS);
    expectServingBlock(caller.record.rsp.servingCellInfo, 1);
    client.setMicroMotionState(1, 1, &caller, Caller::onResult);
    FakeModem::instance().answer({result(105)});
    EXPECT_EQ(caller.result, RADIO_APIS_SUCCESS);
    EXPECT_EQ(caller.record.rsp.microMotion.failure, 1u);
}

TEST(VsRequests, LogWhatTheyDo)
{
    const struct {
        std::function<int(VornVsClient&, Caller&)> call;
        Fields answer;
        std::vector<std::string> lines;
    } cases[] = {
        {[](auto& c, auto& to) { return c.sendScreenState(1, &to, Caller::onResult); },
         {},
         {"D VornVsClient: sendScreenState - enter. slotId=2 screenState=1"}},
        {[](auto& c, auto& to) { return c.setSarState(1, 2, &to, Caller::onResult); },
         {},
         {"D VornVsClient: setSarState - enter, source=1, state=2"}},
        {[](auto& c, auto& to) { return c.setMicroMotionState(3, 4, &to, Caller::onResult); },
         {},
         {"D VornVsClient: setMicroMotionState - enter. setMicroMotionState microMotionState=3 "
          "multiplier=4"}},
        {[](auto& c, auto& to) { return c.getRRCStatus(&to, Caller::onResult); },
         {uint32(256, 2)},
         {"D VornVsClient: getRRCStatus - enter. slotId=2", "D VornVsClient: operator() rrc status:2  "}},
        {[](auto& c, auto& to) { return c.getAllCellularCellInfo(&to, Caller::onResult); },
         {array(257, std::vector<Bytes>(70, Bytes(32)))},
         {"D VornVsClient: neighbor_cell_info_len:70"}},
    };
    VornVsClient client(false, 2);
    for (const auto& row : cases) {
        LogCapture log;
        Caller caller;
        row.call(client, caller);
        Fields answer = row.answer;
        answer.push_back(result(0));
        FakeModem::instance().answer(answer);
        for (const std::string& line : row.lines) {
            EXPECT_TRUE(log.has(line)) << line;
        }
    }
}
