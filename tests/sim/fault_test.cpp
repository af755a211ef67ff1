#include "modem_fixture.h"

namespace sim::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

class Faults : public ModemTest {
protected:
    void add(const std::string& fault)
    {
        EXPECT_TRUE(control(R"({"command": "fault-add", "fault": )" + fault + "}")["ok"]);
    }

    const FieldMap sar{{256, i32(1)}, {257, i32(2)}};
};

TEST_F(Faults, StrikeWhatTheyMatch)
{
    add(R"({"match": {"message": "GetRRCStatus", "slot": 1}, "action": "result", "result": 105, "count": 1})");
    add(R"({"match": {"at": "AT+CEMODE=*"}, "action": "result", "result": 31})");
    EXPECT_THAT(ask(0x3825)[0], i32(0)) << "another slot";
    EXPECT_THAT(ask(0x3813, {}, 2)[0], i32(0)) << "another message";
    EXPECT_THAT(ask(0x3825, {}, 2), ElementsAre(Pair(0, i32(105))));
    EXPECT_THAT(ask(0x3825, {}, 2)[0], i32(0)) << "once is enough";
    EXPECT_THAT(ask(3, {{0x8100, text("AT+CEMODE?")}})[0], i32(0)) << "another command";
    EXPECT_THAT(ask(3, {{0x8100, text("AT+CEMODE = 3\r\n")}}), ElementsAre(Pair(0, i32(31))));
    EXPECT_THAT(ask(3, {{0x8100, text("AT+CEMODE?")}})[0x8100], text("\r\n+CEMODE: 2\r\n\r\nOK\r\n"))
        << "a refused request changes nothing";
}

TEST_F(Faults, DelayAnswersAndKeepTheirOrder)
{
    add(R"({"match": {"message": "SetSarState"}, "action": "delay", "ms": 50, "count": 1})");
    add(R"({"match": {"message": "GetRRCStatus"}, "action": "delay", "ms": 50, "count": 1})");
    add(R"({"match": {"message": "SetSarState"}, "action": "late", "count": 1})");
    send(0x3895, sar, 1, 1);
    send(0x3825, {}, 1, 2);
    send(0x3895, sar, 1, 3);
    EXPECT_EQ(mModem->nextDeadline(), mNow + 50ms);
    mModem->advance(mNow + 49ms);
    EXPECT_THAT(mAnswers, IsEmpty());
    mModem->advance(mNow + 50ms);
    ASSERT_THAT(mAnswers, SizeIs(2));
    EXPECT_EQ(mAnswers[0].header.tx_id, 1);
    EXPECT_EQ(mAnswers[1].header.tx_id, 2);
    EXPECT_EQ(mModem->nextDeadline(), mNow + 61s);

    mModem->forget(kClient);
    EXPECT_EQ(mModem->nextDeadline(), std::nullopt);
}

TEST_F(Faults, TakeTheLinkDown)
{
    add(R"({"match": {"message": "SetSarState"}, "action": "delay", "count": 1})");
    add(R"({"match": {"message": "GetRRCStatus"}, "action": "disconnect", "ms": 20, "count": 1})");
    add(R"({"match": {"message": "GetRRCStatus"}, "action": "restart", "ms": 30, "count": 1})");
    ask(3, {{0x8100, text("AT+CFUN=0")}});
    ask(51, {{256, i32(9)}, {257, i32(0)}, {0x8102, Bytes{1}}});
    mAnswers.clear();

    send(0x3895, sar);
    send(0x3825);
    EXPECT_THAT(mDisconnects, ElementsAre(20ms));
    EXPECT_EQ(mModem->nextDeadline(), std::nullopt) << "what was under way is lost";
    EXPECT_THAT(ask(3, {{0x8100, text("AT+CFUN?")}})[0x8100], text("\r\n+CFUN: 0\r\n\r\nOK\r\n"));

    mAnswers.clear();
    send(0x3825);
    EXPECT_THAT(mDisconnects, ElementsAre(20ms, 30ms));
    EXPECT_THAT(mAnswers, IsEmpty());
    EXPECT_THAT(ask(3, {{0x8100, text("AT+CFUN?")}})[0x8100], text("\r\n+CFUN: 1\r\n\r\nOK\r\n"));
    EXPECT_THAT(ask(53, {{256, i32(9)}, {257, i32(0)}})[0x8100], Value(Bytes{1})) << "NV items survive";

    EXPECT_THAT(ask(3, {{0x8100, text("AT+CFUN=1,1")}})[0x8100], text("\r\nOK\r\n"));
    EXPECT_THAT(mDisconnects, SizeIs(3)) << "a reset by command, after its answer";
}

} // namespace
} // namespace sim::test
