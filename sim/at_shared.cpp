// The AT commands that serve no domain more than another: those of the interpreter itself, those that carry items of
// many domains, and settings that several share.

#include "at_interpreter.h"
#include "requests.h"

#include <algorithm>
#include <iterator>

namespace sim {
namespace {

/// ATE0 and ATE1; ATE alone means ATE0.
AtReply setEcho(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::Error};
    }
    call.slot.at["E"] = {call.parameters.empty() ? "0" : call.parameters.front().text};
    return {};
}

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

constexpr AtRule kEcho[] = {{AtRule::Type::Number, 0, 1, true}};
constexpr AtRule kErrorMode[] = {{AtRule::Type::Number, 0, 2, true}};
constexpr AtRule kFeature[] = {{AtRule::Type::Text, 1, 64}};

} // namespace

std::optional<std::string> itemValues(const Slot& slot, const std::string& key)
{
    const auto* initial = std::ranges::find(kInitialItems, std::string_view(key), &Item::key);
    if (!slot.at.contains(key)) {
        return initial != std::end(kInitialItems) ? std::optional(std::string(initial->values))
                                                  : std::nullopt;
    }
    return atValue(slot, key);
}

std::span<const AtCommand> sharedCommands()
{
    static constexpr AtCommand commands[] = {
        {.name = "", .execute = accept},
        {.name = "E", .execute = setEcho, .rules = kEcho, .initial = "0"},
        {.name = "+CMEE",
         .set = setStored,
         .query = queryStored,
         .test = testStored,
         .rules = kErrorMode,
         .initial = "1"},
        {.name = "+EGMC", .set = configureModem},
        {.name = "+ESBP", .set = configureSwitch},
        {.name = "+ECFGSET", .set = setByKey, .rules = kProvisioning},
        {.name = "+ECFGGET", .set = getFeature, .rules = kFeature},
        {.name = "+EDMFAPP", .set = setByKey, .rules = kApplication},
        {.name = "+ERFIDX", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,0"},
    };
    return commands;
}

} // namespace sim
