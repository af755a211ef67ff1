// The modem's configuration: items with names, and settings with commands of their own.

#include "at_handlers.h"
#include "at_interpreter.h"

#include <algorithm>

namespace sim {
namespace {

using Type = AtRule::Type;

/// What an item has before it is set.
struct Item {
    std::string_view key; ///< the command and the item's name
    std::string_view values;
};

constexpr Item kInitialItems[] = {
    {"+EGMC customize_q_rxlv_min", "1,-122,-122,-122"},
    {"+EGMC EGMC_NRRC_CAMP_ON_CRITERIA", "-122,-122,-122,-22,-22,-22"},
    {"+ESBP SBP_DISABLE_PRE_R8_FD_SCRI", "0"},
    {"+ESBP SBP_NR_BWP_SWITCH", "1"},
    {"+ESBP SBP_NR_CA", "1"},
    {"+ESBP SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE", "0"},
    {"+ECFGSET ussd_support", "1"},
};

/// Items that stand for something to be done and need no value.
constexpr std::string_view kActions[] = {"RF_EM_Init", "RF_EM_DeInit"};

/// The values of an item, with commas between them; nothing when it has none.
std::optional<std::string> itemValues(const Slot& slot, const std::string& key)
{
    const auto* initial = std::ranges::find(kInitialItems, std::string_view(key), &Item::key);
    if (!slot.at.contains(key)) {
        return initial != std::end(kInitialItems) ? std::optional(std::string(initial->values))
                                                  : std::nullopt;
    }
    return atValue(slot, key);
}

void setItem(Slot& slot, const std::string& key, std::span<const AtParameter> parameters)
{
    auto& values = slot.at[key];
    values.clear();
    for (const AtParameter& parameter : parameters) {
        values.push_back(parameter.text);
    }
}

/// NAME=OPERATION,"ITEM"[,VALUE...], where one of `setters` sets and `getter` reads.
AtReply configureItem(const AtCall& call, std::string_view setters, std::string_view getter, bool showsName)
{
    const auto& parameters = call.parameters;
    if (parameters.size() < 2 || parameters[0].quoted || !parameters[1].quoted) {
        return {AtResult::BadParameters};
    }
    const std::string& operation = parameters[0].text;
    const std::string& item = parameters[1].text;
    const std::string name(call.command.name);
    const std::string key = name + " " + item;
    const bool hasValues = parameters.size() > 2;
    const bool isAction = std::ranges::find(kActions, std::string_view(item)) != std::end(kActions);
    if (operation.size() == 1 && setters.find(operation) != std::string_view::npos && hasValues != isAction) {
        if (hasValues) {
            setItem(call.slot, key, std::span(parameters).subspan(2));
        }
        return {};
    }
    const auto values = itemValues(call.slot, key);
    if (operation != getter || hasValues || !values) {
        return {AtResult::BadParameters};
    }
    return {AtResult::Ok, {name + ": " + (showsName ? '"' + item + "\"," : "") + *values}};
}

AtReply configureModem(const AtCall& call)
{
    if (call.parameters.size() == 4 && call.parameters[1].text == "QueryTxVerifyIdx") {
        return countTransmitPaths(call);
    }
    return configureItem(call, "1", "0", true);
}

AtReply configureSwitch(const AtCall& call)
{
    return configureItem(call, "56", "7", false);
}

AtReply getFeature(const AtCall& call)
{
    const auto values =
        parametersFit(call) ? itemValues(call.slot, "+ECFGSET " + call.parameters[0].text) : std::nullopt;
    return values ? AtReply{AtResult::Ok, {"+ECFGGET: " + *values}} : AtReply{AtResult::BadParameters};
}

/// Keeps a text under the parameter before it: NAME=[N,]KEY,"TEXT"...
AtReply setByKey(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    const bool hasNumbers = call.command.rules.size() > 2;
    const std::span<const AtParameter> pair = std::span(call.parameters).subspan(hasNumbers ? 1 : 0, 2);
    setItem(call.slot, std::string(call.command.name) + " " + pair[0].text, pair.subspan(1));
    return {};
}

/// +ECACOMB=1,LIST,"COMBINATIONS",1: "reset" empties the list.
AtReply setCombinations(const AtCall& call)
{
    AtReply reply = setByKey(call);
    if (reply.result == AtResult::Ok && call.parameters[2].text == "reset") {
        call.slot.at.erase("+ECACOMB " + call.parameters[1].text);
    }
    return reply;
}

/// +EMMCHLCK=1,TYPE,BAND,ARFCN,PCI[,MODE] locks, =0 alone unlocks.
AtReply lockCell(const AtCall& call)
{
    const bool locks = !call.parameters.front().omitted() && call.parameters.front().text == "1";
    const size_t count = call.parameters.size();
    if (!parametersFit(call) || (locks ? count < 5 : count != 1)) {
        return {AtResult::BadParameters};
    }
    setItem(call.slot, "+EMMCHLCK", call.parameters);
    return {};
}

AtReply done(const AtCall&)
{
    return {};
}

AtReply needsRadio(const AtCall& call)
{
    return {call.slot.radioOn() ? AtResult::Ok : AtResult::NotAllowed};
}

constexpr AtRule kAnyNumber = {Type::Number, INT32_MIN, INT32_MAX};
constexpr AtRule kAnyOptional = {Type::Number, INT32_MIN, INT32_MAX, true};
constexpr AtRule kSwitch = {Type::Number, 0, 1};
constexpr AtRule kText = {Type::Text, 0, 255};

constexpr auto kRecoveryTimers = [] {
    std::array<AtRule, 23> rules{};
    rules.fill(kAnyNumber);
    return rules;
}();
constexpr AtRule kOneSwitch[] = {kSwitch};
constexpr AtRule kTwoNumbers[] = {kAnyNumber, kAnyNumber};
constexpr AtRule kDataSwitch[] = {kSwitch, kSwitch, kSwitch, kSwitch};
constexpr AtRule kRecovery[] = {kAnyOptional, kAnyOptional, kAnyOptional,
                                kAnyOptional, kAnyOptional, kAnyOptional};
constexpr AtRule kTechnologies[] = {{Type::Number, 4, 4},
                                    {Type::Number, 1, 128},
                                    {Type::Number, 1, 128},
                                    {Type::Number, 1, 128},
                                    {Type::Number, 1, 128}};
constexpr AtRule kCellLock[] = {kSwitch,
                                {Type::Number, 0, 5, true},
                                {Type::Number, 0, 1, true},
                                {Type::Number, 0, 3'279'165, true},
                                {Type::Number, 0, 1007, true},
                                {Type::Number, 0, 3, true}};
constexpr AtRule kCombinations[] = {{Type::Number, 1, 1}, {Type::Number, 2, 5}, kText, kSwitch};
constexpr AtRule kApplication[] = {kAnyNumber, kAnyNumber, kText};
constexpr AtRule kProvisioning[] = {{Type::Text, 1, 64}, kText};
constexpr AtRule kFeature[] = {{Type::Text, 1, 64}};
constexpr AtRule kIdentity[] = {{Type::Number, 1, 1}, {Type::Number, 9, 9}, {Type::Text, 2, 2}};
constexpr AtRule kUserCapabilities[] = {{Type::Number, 2, 2}, kAnyOptional, kText, kText,
                                        kAnyOptional,         kAnyOptional};

constexpr AtCommand kConfigurationCommands[] = {
    {.name = "+EGMC", .set = configureModem},
    {.name = "+ESBP", .set = configureSwitch},
    {.name = "+ECFGSET", .set = setByKey, .rules = kProvisioning},
    {.name = "+ECFGGET", .set = getFeature, .rules = kFeature},
    {.name = "+CEUS",
     .set = setStored,
     .query = queryStored,
     .test = testStored,
     .rules = kOneSwitch,
     .initial = "1"},
    {.name = "+ECASW", .set = setStored, .query = queryStored, .rules = kOneSwitch, .initial = "1"},
    {.name = "+ECACOMB", .set = setCombinations, .rules = kCombinations},
    {.name = "+E5GUC", .set = setStored, .query = queryStored, .rules = kUserCapabilities},
    {.name = "+EMMCHLCK", .set = lockCell, .query = queryStored, .rules = kCellLock, .initial = "0"},
    {.name = "+EPRATL",
     .set = setStored,
     .query = queryStored,
     .rules = kTechnologies,
     .initial = "4,128,4,2,1"},
    {.name = "+ERSCFG", .set = setStored, .query = queryStored, .rules = kRecoveryTimers},
    {.name = "+ESRVREC", .set = setStored, .query = queryStored, .rules = kRecovery},
    {.name = "+EPLMNFREQ", .set = setStored, .query = queryStored, .rules = kTwoNumbers},
    {.name = "+EGCMD", .set = setByKey, .rules = kApplication},
    {.name = "+EDMFAPP", .set = setByKey, .rules = kApplication},
    {.name = "+ERETLTE", .execute = needsRadio},
    {.name = "+ERETNR", .execute = needsRadio},
    {.name = "+EPCT", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,0"},
    {.name = "+ESCRI", .execute = done},
    {.name = "+ESARSEN", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,1"},
    {.name = "+ESARSIDX", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,0"},
    {.name = "+ERFIDX", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,0"},
    {.name = "+EWFCP", .set = setStored, .query = queryStored, .rules = kOneSwitch, .initial = "0"},
    {.name = "+EVODATA", .set = setStored, .query = queryStored, .rules = kDataSwitch, .initial = "0,0,0,0"},
    {.name = "+EPVSSET", .set = setByKey, .rules = kProvisioning},
    {.name = "+EGMR", .set = setByKey, .rules = kIdentity},
    {.name = "+ESMLRSUF", .query = queryStored, .initial = "0,0,0,0,0"}, // no category is locked
};

} // namespace

std::span<const AtCommand> configurationCommands()
{
    return kConfigurationCommands;
}

} // namespace sim
