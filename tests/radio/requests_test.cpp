#include "radio/vorn_radio_client.h"
#include "support/request_rows.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Row = RequestRow<VornRadioClient>;

Row readNv(const char* name, Fields answer, size_t length)
{
    return {name,
            [](auto& c, void* user, auto cb) { return c.readNv(100, -2, user, cb); },
            53,
            {int32(256, 100), int32(257, -2)},
            std::move(answer),
            [=](const Rsp& rsp) {
                EXPECT_EQ(rsp.nvItemData.failure, 0u);
                ASSERT_EQ(rsp.nvItemData.dataLen, length);
                const Bytes expected = counting(length);
                EXPECT_TRUE(std::equal(expected.begin(), expected.end(), rsp.nvItemData.data));
            },
            true};
}

std::vector<Row> rows()
{
    static const Bytes largest = counting(20480);
    return {
        readNv("readNv", {raw(0x8100, counting(5))}, 5),
        readNv("readNv without data", {}, 0),
        readNv("readNv with too much data", {raw(0x8100, counting(60000))}, 20480),
        {"writeNv",
         [](auto& c, void* user, auto cb) { return c.writeNv(100, -2, largest.data(), 3, user, cb); },
         51,
         {uint32(256, 100), uint32(257, 0xFFFFFFFE), raw(0x8102, {1, 2, 3})},
         {},
         nullptr,
         true},
        {"writeNv of nothing",
         [](auto& c, void* user, auto cb) { return c.writeNv(1, 0, largest.data(), 0, user, cb); },
         51,
         {uint32(256, 1), uint32(257, 0), raw(0x8102, {})},
         {},
         nullptr,
         true},
        {"writeNv of the most",
         [](auto& c, void* user, auto cb) { return c.writeNv(1, 0, largest.data(), 20480, user, cb); },
         51,
         {uint32(256, 1), uint32(257, 0), raw(0x8102, largest)},
         {},
         nullptr,
         true},
    };
}

} // namespace

TEST(RadioRequests, SendTheirMessageAndFillTheirRecord)
{
    for (const Row& row : rows()) {
        checkRow(row, 0, 1);
        checkRow(row, 2, 4);
    }
}

TEST(RadioRequests, EndOnceWhateverTheModemAnswers)
{
    for (const Row& row : rows()) {
        checkFailures(row);
        checkHostileAnswers(row);
    }
}

TEST(RadioRequests, RefuseWhatDoesNotFit)
{
    VornRadioClient client(false, 1);
    Caller caller;
    LogCapture log;
    const Bytes data(70000);
    for (const unsigned length : {20481u, 65536u, 65546u, 0xFFFFFFFFu}) {
        EXPECT_EQ(client.writeNv(1, 0, data.data(), length, &caller, Caller::onResult), 11) << length;
    }
    EXPECT_EQ(client.writeNv(1, 0, nullptr, 0, &caller, Caller::onResult), 11);
    EXPECT_EQ(log.count("E VornRadioClient: invalid paramter found"), 5);
    EXPECT_TRUE(FakeModem::instance().sent.empty());
    EXPECT_EQ(caller.calls, 0);

    client.readNv(7, -1, &caller, Caller::onResult);
    FakeModem::instance().answer({result(5), raw(0x8100, {9})});
    EXPECT_TRUE(log.has("D VornRadioClient: readNv - enter. slotId=1 id=7 index=-1"));
    EXPECT_TRUE(log.has("D VornRadioClient: nvItemData.dataLen=1"));
    EXPECT_EQ(caller.result, RADIO_APIS_SUCCESS);
    EXPECT_EQ(caller.record.rsp.nvItemData.failure, 1u);
    EXPECT_EQ(caller.record.rsp.nvItemData.data[0], 9);
}
