#include "radio/vorn_radio_client.h"
#include "support/at_fixture.h"

using namespace test;
using namespace std::chrono_literals;

TEST(OperationMode, Requests)
{
    checkSettings({{call(radioRequireModemReboot), "AT+CFUN=1,1"}});
    checkQueries({{call(radioGetOperationMode), "AT+CFUN?", "+CFUN: 4", packed(0, 4), "cfun mode=4"}});
    const auto set = [](const Texts& log, int mode, uint8_t sent) {
        return setter(log, &VornRadioClient::setOperationMode, 1027, {uint8(256, sent)},
                      static_cast<RADIO_OPERATION_MODE_TYPE>(mode));
    };
    checkStandardRows({
        query(Flag, {"getOperationMode - enter", "operator() : rsp.operationMode.mode=200"},
              &VornRadioClient::getOperationMode, 1025, {}, {uint8(256, 200)}, packed(0u, 200u)),
        set("setOperationMode - enter. mode=4, slotId=2", 4, 1),
        set({}, 12, 1),
        set({}, -4, 1),
        set({}, 5, 0),
        set({}, 0, 0),
    });
}

using OperationModeChange = AtTest;

TEST_F(OperationModeChange, LooksTwiceForTheMode)
{
    const Fields on = accepted("+EFUN: x,3");
    const Fields off = accepted("+EFUN: 0");
    const Fields noText = {result(0)};
    const Fields refused;
    const struct {
        int mode;
        std::vector<Fields> answers; ///< to AT+EFUN=, and to each look, 500 ms after the one before
        int result;
    } rows[] = {
        {4, {kOk, on}, 0},      {12, {kOk, on}, 0},          {5, {kOk, off}, 0},         {0, {kOk, off}, 0},
        {4, {kOk, off, on}, 0}, {4, {kOk, off, off}, 1},     {0, {kOk, on, on}, 1},      {4, {kError}, 1},
        {4, {noText}, 1},       {4, {{result(7)}}, 1},       {4, {kOk, kError}, 1},      {4, {kOk, kOk}, 1},
        {4, {kOk, noText}, 1},  {4, {kOk, off, kError}, 1},  {4, {kOk, off, noText}, 1}, {4, {refused}, 1},
        {4, {kOk, refused}, 1}, {4, {kOk, off, refused}, 1},
    };
    host::Clock::freeze();
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "row " << &row - rows);
        for (const Fields& fields : row.answers) {
            const bool isFirst = &fields == &row.answers.front();
            modem.sendResult = fields.empty() ? -1 : 0;
            if (isFirst) {
                const auto mode = static_cast<RADIO_OPERATION_MODE_TYPE>(row.mode);
                ASSERT_EQ(start(call(radioSetOperationMode, mode)), 0);
            } else {
                host::Clock::advance(499ms);
                drainTimer();
                EXPECT_TRUE(modem.sent.empty());
                host::Clock::advance(1ms);
            }
            drainTimer();
            if (!fields.empty()) {
                const char* sets = (row.mode & 7) == 4 ? "AT+EFUN=3" : "AT+EFUN=0";
                EXPECT_EQ(command(), isFirst ? sets : "AT+EFUN?");
                EXPECT_EQ(caller.calls, 0);
                modem.answer(fields);
            }
        }
        host::Clock::advance(2s);
        drainTimer();
        expectEnd(row.result);
    }
    expectLog({"setOperationMode: mode=12", "query efun callback: efun=3,  p->len=2", "unexpected type",
               "curMode=3", "getBoolean: false"});
    for (const char* line :
         {"processRadioException: radio exception with error no 1", "process exception: null pointer"}) {
        EXPECT_TRUE(log.has("E VornAtClient: setOperationMode: " + std::string(line))) << line;
    }
}
