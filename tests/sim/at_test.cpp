#include "at_interpreter.h"
#include "at_line.h"
#include "modem_fixture.h"

namespace sim::test {
namespace {

constexpr std::string_view kOk = "\r\nOK\r\n";
constexpr std::string_view kError = "\r\nERROR\r\n";
constexpr std::string_view kWrongParameters = "\r\n+CME ERROR: 50\r\n";

void expectAnswers(Slot& slot, const std::vector<std::pair<std::string_view, std::string_view>>& rows)
{
    for (const auto& [command, answer] : rows) {
        EXPECT_EQ(executeAt(slot, command).text, answer) << command;
    }
}

std::array<Slot, kSlots> builtInSlots()
{
    return readScenario(Scenario::builtIn().json()).slots;
}

TEST(AtCommands, Answers)
{
    expectAnswers(builtInSlots()[0],
                  {
                      {"AT\r\n", kOk},
                      {"at\r", kOk},
                      {"AT+CEMODE?", "\r\n+CEMODE: 2\r\n\r\nOK\r\n"},
                      {"AT+CEMODE=?", "\r\n+CEMODE: (0-3)\r\n\r\nOK\r\n"},
                      {"AT+CEMODE=1", kOk},
                      {"AT + CEMODE = 3\r", kOk},
                      {"at+cemode?\r\n", "\r\n+CEMODE: 3\r\n\r\nOK\r\n"},
                      {"AT+CEMODE=4", kWrongParameters},
                      {"AT+CEMODE=", kWrongParameters},
                      {"AT+CEMODE=1,1", kWrongParameters},
                      {"AT+CEMODE=\"1\"", kWrongParameters},
                      {"AT+CEMODE=99999999999999999999", kWrongParameters},
                      {"AT+CEMODE", kError},
                      {"AT+CEMODE?", "\r\n+CEMODE: 3\r\n\r\nOK\r\n"},
                      {"AT+CFUN=4", kOk},
                      {"AT+CFUN?", "\r\n+CFUN: 4\r\n\r\nOK\r\n"},
                      {"AT+CFUN=5", "\r\n+CME ERROR: 4\r\n"},
                      {"AT+CFUN=,1", kWrongParameters},
                      {"AT+CMEE=2", kOk},
                      {"AT+CEMODE=4", "\r\n+CME ERROR: Incorrect parameters\r\n"},
                      {"AT+CMEE=0", kOk},
                      {"AT+CEMODE=4", kError},
                      {"AT+CIMI", "\r\n001010123456789\r\n\r\nOK\r\n"},
                      {"AT+CIMI=?", kOk},
                      {"AT+CIMI?", kError},
                      {"AT+EGMC = 1,\"NrTas_onoff\",1", kOk},
                      {"AT+EGMC=0,\"NrTas_onoff\"", "\r\n+EGMC: \"NrTas_onoff\",1\r\n\r\nOK\r\n"},
                      {"AT+EGMC=0,\"other\"", kError},
                      {"ATE1", kOk},
                      {"AT+CFUN?\r\n", "AT+CFUN?\r\r\n+CFUN: 4\r\n\r\nOK\r\n"},
                      {"ATE2", "ATE2\r\r\nERROR\r\n"},
                      {"ATE", "ATE\r\r\nOK\r\n"},
                      {"AT", kOk},
                  });
    expectAnswers(builtInSlots()[2], {{"AT+CIMI", "\r\n+CME ERROR: 10\r\n"}}); // no card
}

TEST(AtCommands, KeepTheConfiguration)
{
    Slot slot = builtInSlots()[0];
    expectAnswers(slot, {
                            {R"(AT+ESBP=7,"SBP_NR_CA")", "\r\n+ESBP: 1\r\n\r\nOK\r\n"},
                            {R"(AT+ESBP=5,"SBP_NR_CA",0,1)", kOk},
                            {R"(AT+ESBP=7,"SBP_NR_CA")", "\r\n+ESBP: 0,1\r\n\r\nOK\r\n"},
                            {R"(AT+ESBP=7,"SBP_Y")", kWrongParameters},
                            {"AT+ESRVREC=,,,4", kOk},
                            {"AT+ESRVREC?", "\r\n+ESRVREC: ,,,4\r\n\r\nOK\r\n"},
                            {"AT+EMMCHLCK=1,3,1,627264,101,3", kOk},
                            {"AT+EMMCHLCK?", "\r\n+EMMCHLCK: 1,3,1,627264,101,3\r\n\r\nOK\r\n"},
                            {"AT+EMMCHLCK=1,3", kWrongParameters},
                            {"AT+EMMCHLCK=0", kOk},
                            {"AT+EMMCHLCK?", "\r\n+EMMCHLCK: 0\r\n\r\nOK\r\n"},
                            {R"(AT+ECFGSET="ussd_support","0")", kOk},
                            {R"(AT+ECFGGET="ussd_support")", "\r\n+ECFGGET: 0\r\n\r\nOK\r\n"},
                            {R"(AT+ECACOMB=1,4,"n78A,n1A",1)", kOk},
                            {R"(AT+EDMFAPP=20000,204,"1")", kOk},
                            {"AT+CFUN=4", kOk},
                            {"AT+ERETNR", "\r\n+CME ERROR: 3\r\n"},
                        });
    EXPECT_EQ(atValue(slot, "+ECACOMB 4"), "n78A,n1A");
    EXPECT_EQ(atValue(slot, "+EDMFAPP 204"), "1");
}

TEST(AtCommands, TellTheModeOnceItIsReached)
{
    Slot slot = builtInSlots()[0];
    slot.modeChangeTime = std::chrono::milliseconds(700);
    expectAnswers(slot, {{"AT+EFUN=0", kOk}, {"AT+EFUN?", "\r\n+EFUN: 3\r\n\r\nOK\r\n"}});
    slot.now += std::chrono::milliseconds(699);
    expectAnswers(slot, {{"AT+EFUN=4", kWrongParameters}, {"AT+EFUN?", "\r\n+EFUN: 3\r\n\r\nOK\r\n"}});
    slot.now += std::chrono::milliseconds(1);
    expectAnswers(slot, {{"AT+EFUN?", "\r\n+EFUN: 0\r\n\r\nOK\r\n"}});
    EXPECT_FALSE(slot.radioOn());
}

TEST(AtCommands, KnowOneStateOfTheRadio)
{
    Slot slot = builtInSlots()[0];
    slot.modeChangeTime = {};
    for (const std::string row :
         {"AT+CFUN=0 00", "AT+EFUN=0 00", "AT+EFUN=2 12", "AT+CFUN=1 12", "AT+EFUN=0 40", "AT+CFUN=1 13"}) {
        executeAt(slot, row.substr(0, 9));
        const std::string level = executeAt(slot, "AT+CFUN?").text.substr(9, 1);
        EXPECT_EQ(level + executeAt(slot, "AT+EFUN?").text.substr(9, 1), row.substr(10)) << row;
    }
}

TEST(AtCommands, WrongGrammarIsAnError)
{
    for (const std::string command :
         {"", "A", "+CFUN?", "ATX", "AT+", "AT+?", "AT+CFUN?1", "AT+CFUN=\"1", "AT+CFUN=1\"\"",
          "AT+CFUN=\"1\"\"1\"", "AT\x01", "AT+UNKNOWN=1", "ATE-1"}) {
        EXPECT_EQ(executeAt(builtInSlots()[0], command).text, kError) << command;
    }
    EXPECT_EQ(executeAt(builtInSlots()[0], "AT+CEMODE=" + std::string(5000, ' ') + "1").text, kError);
}

} // namespace
} // namespace sim::test
