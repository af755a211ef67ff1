/// What a simulated modem starts with, read from a JSON file or built in.
///
/// sim/default_scenario.json is the built-in one and shows every member; a file names only what it wants
/// different. Objects are laid over the built-in ones member by member, the entries of "slots" one by one;
/// any other list replaces the built-in one, and null removes it. A "comment" may stand in every object;
/// sim/scenario.schema.json, which "$schema" may name, tells editors what there is.
///   "sim"       the slot's card: {"present": FLAG, "imsi": DIGITS, "authentication": {"k": HEX, "op" or
///   "opc":
///               HEX, "sqn": HEX, "amf": HEX}} with the values of MILENAGE (3GPP TS 35.206); sqn is the
///               lowest sequence number that the card still accepts. The built-in cards are test set 1 of
///               TS 35.208.
///   "nv"        [{"id": ITEM, "index": INDEX, "data": HEX}]: the non-volatile items of the slot
///   "nvFile"    a file for the items of all slots, from the scenario's folder on. Where there is one its
///   items
///               take the place of the scenario's; every write of an item replaces it.
///   "settings"  [{"message": REQUEST, "fields": {NAME: VALUE...}}]: what setters left behind; no indication
///               comes of them
///   "at"        AT commands carried out beforehand
///   "modeChangeMs" of a slot: how long AT+EFUN? still tells the mode before the last AT+EFUN=
///   "timeline"  [{"at": MS, "slot": N, "message": INDICATION, "fields": {NAME: VALUE...}, "times": N}].
///               Fields that are not given tell of the slot as it is then. "value": NUMBER may stand in place
///               of the fields of an indication that has only one, a number. The name may be written in
///               short, "test" or "veyra-cell-info", and times is for bursts.
///   "faults"    [{"match": {"message": REQUEST, "at": COMMAND, "slot": N}, "action": ACTION,
///                "count": N or "probability": P, "ms": TIME, "result": CODE}]; without match it strikes
///                everything.
///               Actions: drop delay late result duplicate truncate garble wrong_transaction disconnect
///               restart.
/// Messages and fields are named as in protocol/messages.json; raw bytes are hexadecimal digits.
#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

/// A scenario that can't be used: the message names the file, the place in it and the reason.
class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A name that is none of those that there are.
class UnknownName : public ScenarioError {
public:
    UnknownName(const std::string& what, std::vector<std::string> known)
        : ScenarioError(what), mKnown(std::move(known))
    {}

    const std::vector<std::string>& known() const { return mKnown; }

private:
    std::vector<std::string> mKnown;
};

/// A checked scenario. Everything it does not mention has the value of the built-in one.
class Scenario {
public:
    static Scenario builtIn();
    static Scenario fromFile(const std::filesystem::path& file); ///< throws ScenarioError
    static Scenario fromJson(const nlohmann::json& json);        ///< throws ScenarioError

    const nlohmann::json& json() const { return mJson; }

private:
    explicit Scenario(nlohmann::json json) : mJson(std::move(json)) {}

    nlohmann::json mJson;
};

} // namespace sim
