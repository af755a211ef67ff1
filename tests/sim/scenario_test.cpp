// Scenarios, and commands to the simulation, which read the same JSON.
#include "modem_fixture.h"

#include <fstream>

namespace sim::test {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

class Scenarios : public ModemTest {};

TEST_F(Scenarios, ErrorsTellPlaceAndReason)
{
    const std::pair<std::string, std::string> rows[] = {
        {R"([])", "/: must be an object"},
        {R"({"sed": 1})", "/sed: unknown name"},
        {R"({"seed": -1})", "/seed: must be 0 to 4294967295, not -1"},
        {R"({"slots": [{}, {}, {}, {}]})", "/slots: has 4 entries, at most 3 are possible"},
        {R"({"slots": [{"serving": {"rat": "GSM"}}]})", "/slots/0/serving/rat: must be LTE or NR"},
        {R"({"slots": [{}, {}, {"serving": {"rat": "LTE"}}]})", "/slots/2/serving/arfcn: missing"},
        {R"({"slots": [{"lteAnchor": {"rat": "NR"}}]})", "/slots/0/lteAnchor: must be an LTE cell"},
        {R"({"slots": [{"operator": {"mnc": 100}}]})", "/slots/0/operator/mnc: must be 0 to 99, not 100"},
        {R"({"slots": [{"sim": {"imsi": "12x"}}]})", "/slots/0/sim/imsi: must be decimal digits"},
        {R"({"slots": [{"sim": {"authentication": {"k": "00"}}}]})", "/slots/0/sim/authentication/k: "},
        {R"({"slots": [{"sim": {"authentication": {"op": null}}}]})", "/sim/authentication: needs one of"},
        {R"({"slots": [{"nv": [{"id": 1, "index": 0, "data": "0g"}]}]})", "/slots/0/nv/0/data: must be hex"},
        {R"({"nvFile": 1})", "/nvFile: must be a text"},
        {R"({"slots": [{"at": ["AT+CFUN=9"]}]})", "/slots/0/at/0: the modem refuses this command"},
        {R"({"slots": [{"settings": [{"message": "No", "fields": {}}]}]})", "0/message: unknown request"},
        {R"({"slots": [{"settings": [{"message": "SetSarState", "fields": {"source": 1}}]}]})",
         "/slots/0/settings/0/fields/state: missing"},
        {R"({"simTrays": 1})", "/simTrays: must be a list"},
        {R"({"faults": [{"action": "drop", "count": 1, "probability": 1}]})",
         "/faults/0/probability: can't stand next to a count"},
        {R"({"faults": [{"action": "drop", "match": {"at": "AT\""}}]})", "/faults/0/match/at: is no"},
        {R"({"timeline": [{"at": 1, "slot": 3, "message": "TestInd", "fields": {"data": 1}}]})",
         "/timeline/0/slot: must be 0 to 2, not 3"},
    };
    for (const auto& row : rows) {
        EXPECT_THAT([&] { fromText(row.first); }, ThrowsMessage<ScenarioError>(HasSubstr(row.second)))
            << row.first;
    }
}

TEST_F(Scenarios, OfTheExamplesAreInOrder)
{
    for (const auto& file : std::filesystem::directory_iterator(EXAMPLES)) {
        EXPECT_NO_THROW(Modem(Scenario::fromFile(file.path()), *this)) << file.path();
    }
}

TEST_F(Scenarios, LieOverTheBuiltInOne)
{
    start(R"({"slots": [{"comment": "weak", "serving": {"rsrp": -120}, "lteAnchor": null,
                         "settings": [{"message": "SetFeatureState", "fields": {"feature": 3, "state": 6}}]},
                        {"serving": null}],
              "timeline": []})");
    EXPECT_EQ(ask(0x381D, {{256, i32(3)}})[256], i32(6));
    EXPECT_EQ(ask(0x3813)[256], i32(0)) << "no anchor any more";
    const auto serving = std::get<Bytes>(ask(0x381F)[256]);
    EXPECT_EQ(toNumber<int32_t>(serving, 40), -120);
    EXPECT_EQ(toNumber<int32_t>(serving, 16), 101) << "not mentioned";
    EXPECT_EQ(std::get<Bytes>(ask(0x381F, {}, 2)[256]).front(), 0) << "no service any more";
}

TEST_F(Scenarios, TimelineRunsFromTheFirstMomentOn)
{
    start(R"({"timeline": [{"at": 20, "slot": 1, "message": "TestInd", "fields": {"data": -2}},
                           {"at": 10, "slot": 0, "message": "0x7E02", "fields": {"data": 5}}]})");
    mNow += 1h;
    ASSERT_LE(*mModem->nextDeadline(), mNow) << "wants to be told the time";
    mModem->advance(mNow);
    EXPECT_EQ(mModem->nextDeadline(), mNow + 10ms);
    mModem->advance(mNow + 30ms);
    ASSERT_EQ(mIndications.size(), 2U);
    EXPECT_EQ(mIndications[0].fields[256], i32(5));
    EXPECT_EQ(mIndications[1].fields[256], i32(-2));
    EXPECT_EQ(mIndications[1].header.msg_id, 0x7E02);
    EXPECT_EQ(mIndications[1].header.slot_id, 2);
    EXPECT_EQ(mModem->nextDeadline(), std::nullopt);
}

class Control : public ModemTest {};

TEST_F(Control, Errors)
{
    const struct {
        std::string command;
        std::string error;
        std::string known = ""; ///< one of the names that the answer lists
    } rows[] = {
        {"7", "/: must be an object"},
        {R"({"command": "fly"})", "/command: unknown command"},
        {R"({"command": "state", "slot": 1})", "/slot: unknown name"},
        {R"({"command": "indicate", "message": "TestInd", "slot": 0, "fields": {"data": 1, "more": 2}})",
         "/fields/more: unknown name"},
        {R"({"command": "indicate", "message": "TestInd", "slot": 0, "fields": {"data": 2147483648}})",
         "/fields/data: must be -2147483648 to 2147483647"},
        {R"({"command": "indicate", "message": "nec", "slot": 0, "value": 1})",
         "/value: only suits an indication whose one field is a number"},
        {R"({"command": "indicate", "message": "test", "slot": 0, "value": 1, "fields": {}})",
         "/value: can't stand next to fields"},
        {R"({"command": "indicate", "message": "set-sar-state", "slot": 0})", "/message: unknown", "TestInd"},
        {R"({"command": "fault-add", "fault": {"action": "fly"}})",
         "/fault/action: must be one of drop, delay", "late"},
        {R"({"command": "fault-add", "fault": {"action": "drop", "match": {"message": "TestInd"}}})",
         "/fault/match/message: unknown request", "SetSarState"},
        {R"({"command": "load", "scenario": {"seed": "x"}})", "/seed: must be a whole number"},
    };
    for (const auto& [command, error, known] : rows) {
        const auto answer = control(command);
        EXPECT_FALSE(answer["ok"]) << command;
        EXPECT_THAT(answer["error"], HasSubstr(error));
        EXPECT_THAT(answer.value("known", std::vector{known}), testing::Contains(known));
    }
    EXPECT_TRUE(mIndications.empty());
}

TEST_F(Control, Acts)
{
    control(R"({"command": "indicate", "message": "TestInd", "slot": 2, "fields": {"data": 9}})");
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
