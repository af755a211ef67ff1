/// The AT commands that the modem knows, and what their handlers share. A command is a row in the table of its domain,
/// or among the shared ones.
#pragma once

#include "at_line.h"
#include "slot.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// Final results: OK, ERROR, or the code of a +CME ERROR as 3GPP TS 27.007 numbers them.
enum class AtResult {
    Error = -1,
    Ok = 0,
    NotAllowed = 3,
    NotSupported = 4,
    NoSimCard = 10,
    BadParameters = 50,
};

struct AtReply {
    AtResult result = AtResult::Ok;
    std::vector<std::string> lines = {};
    bool restart = false;
};

/// What a set command accepts in one position.
struct AtRule {
    enum class Type { Number, Text } type;
    int64_t min; ///< of a text: of its length
    int64_t max;
    bool optional = false; ///< when omitted, what was set before stays
};

struct AtCommand;

struct AtCall {
    Slot& slot;
    const AtCommand& command;
    const std::vector<AtParameter>& parameters;
};

using AtHandler = AtReply (*)(const AtCall&);

/// One command; a form without handler is refused with ERROR.
struct AtCommand {
    std::string_view name;
    AtHandler execute = nullptr; ///< AT+NAME
    AtHandler set = nullptr;     ///< AT+NAME=...
    AtHandler query = nullptr;   ///< AT+NAME?
    AtHandler test = nullptr;    ///< AT+NAME=?
    std::span<const AtRule> rules = {};
    std::string_view initial = {}; ///< what the query shows before anything was set
};

const AtCommand* findAtCommand(std::string_view name);

/// at_shared.cpp: the commands of all domains or of several.
std::span<const AtCommand> sharedCommands();

/// What verbose errors say instead of the code; the code's digits when there is no text for it.
std::string errorText(AtResult error);

/// Whether the parameters are as many and of the kind and range that the command's rules want.
bool parametersFit(const AtCall& call);

/// Decimal digits; nothing when it is anything else.
std::optional<int64_t> toInteger(const std::string& text);

AtReply accept(const AtCall& call);

/// Checks the parameters by the command's rules and keeps them for its query.
AtReply setStored(const AtCall& call);
AtReply queryStored(const AtCall& call);

/// Shows the ranges that the command's rules allow: +NAME: (0-3),(0-1)
AtReply testStored(const AtCall& call);

/// Keeps a text under the parameter before it: NAME=[N,]KEY,"TEXT"...
AtReply setByKey(const AtCall& call);

/// Keeps parameters under a key: a command's name, or with an item's name behind it.
void setItem(Slot& slot, const std::string& key, std::span<const AtParameter> parameters);

/// The values of an item of +EGMC, +ESBP or +ECFGSET, with commas between them; nothing when it has none.
std::optional<std::string> itemValues(const Slot& slot, const std::string& key);

inline constexpr AtRule kAnyNumber = {AtRule::Type::Number, INT32_MIN, INT32_MAX};
inline constexpr AtRule kAnyOptional = {AtRule::Type::Number, INT32_MIN, INT32_MAX, true};
inline constexpr AtRule kSwitch = {AtRule::Type::Number, 0, 1};
inline constexpr AtRule kText = {AtRule::Type::Text, 0, 255};
inline constexpr AtRule kOneSwitch[] = {kSwitch};
inline constexpr AtRule kTwoNumbers[] = {kAnyNumber, kAnyNumber};
inline constexpr AtRule kApplication[] = {kAnyNumber, kAnyNumber, kText};
inline constexpr AtRule kProvisioning[] = {{AtRule::Type::Text, 1, 64}, kText};

} // namespace sim
