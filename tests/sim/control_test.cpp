#include "modem_fixture.h"

namespace sim::test {
namespace {

using testing::HasSubstr;

class Control : public ModemTest {};

TEST_F(Control, Errors)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"7", "/: must be an object"},
        {R"({})", "/command: missing"},
        {R"({"command": "fly"})", "/command: unknown command"},
        {R"({"command": "state", "slot": 1})", "/slot: unknown name"},
        {R"({"command": "fault-add", "fault": {}})", "/fault/action: missing"},
        {R"({"command": "indicate", "message": "TestInd", "slot": 0, "fields": {"data": 1, "more": 2}})",
         "/fields/more: unknown name"},
        {R"({"command": "indicate", "message": "TestInd", "slot": 0, "fields": {"data": 2147483648}})",
         "/fields/data: must be -2147483648 to 2147483647"},
        {R"({"command": "indicate", "message": "nec", "slot": 0, "value": 1})",
         "/value: only suits an indication whose one field is a number"},
        {R"({"command": "indicate", "message": "test", "slot": 0, "value": 1, "fields": {}})",
         "/value: can't stand next to fields"},
        {R"({"command": "indicate", "message": "set-sar-state", "slot": 0})", "/message: unknown indication"},
        {R"({"command": "load", "scenario": {"seed": "x"}})", "/seed: must be a whole number"},
    };
    for (const auto& [command, error] : rows) {
        const auto answer = control(command);
        EXPECT_FALSE(answer["ok"]) << command;
        EXPECT_THAT(answer["error"], HasSubstr(error));
    }
    EXPECT_TRUE(mIndications.empty());
}

TEST_F(Control, Acts)
{
    EXPECT_TRUE(
        control(R"({"command": "indicate", "message": "TestInd", "slot": 2, "fields": {"data": 9}})")["ok"]);
    ASSERT_EQ(mIndications.size(), 1U);
    EXPECT_EQ(mIndications[0].header.slot_id, 4);
    EXPECT_EQ(mIndications[0].fields[256], i32(9));

    control(R"({"command": "fault-add", "fault": {"action": "drop"}})");
    control(R"({"command": "fault-clear"})");
    EXPECT_EQ(ask(0x3825)[256], i32(2));

    control(R"({"command": "load", "scenario": {"slots": [{"serving": {"rrc": "inactive"}}]}})");
    EXPECT_EQ(ask(0x3825)[256], i32(3));
    EXPECT_TRUE(mDisconnects.empty());
    control(R"({"command": "restart"})");
    EXPECT_EQ(mDisconnects.size(), 1U);
    EXPECT_EQ(ask(0x3825)[256], i32(3));
}

} // namespace
} // namespace sim::test
