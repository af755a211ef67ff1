/// The AT commands that the modem knows. A new command is a row in one of the tables.
#pragma once

#include "at_line.h"
#include "slot.h"

#include <cstdint>
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

/// What verbose errors say instead of the code; the code's digits when there is no text for it.
std::string errorText(AtResult error);

} // namespace sim
