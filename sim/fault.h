/// Faults: what a scenario lets go wrong.
#pragma once

#include "value.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace sim {

enum class FaultAction {
    Drop,             ///< the answer is lost
    Delay,            ///< the answer comes later
    Late,             ///< the answer comes after the message library gave up waiting
    Result,           ///< the request is not carried out and answered with a result code
    Duplicate,        ///< the answer comes twice
    Truncate,         ///< the fields of the answer are cut short
    Garble,           ///< the fields of the answer are overwritten with noise
    WrongTransaction, ///< the answer belongs to no request
    Disconnect,       ///< the request is lost and the links with it
    Restart,          ///< the same, and the modem starts anew
};

struct Fault {
    FaultAction action = FaultAction::Drop;
    std::optional<uint16_t> message;
    std::optional<std::string> at; ///< normalized command; a * at its end stands for any rest
    std::optional<int> slot;
    std::optional<uint32_t> count; ///< how often it still strikes; always when absent
    double probability = 1;
    std::chrono::milliseconds time{0}; ///< delay of the answer, or how long the links stay down
    int32_t result = 1;

    bool matches(uint16_t id, std::string_view atCommand, int onSlot) const;
};

/// {"match": {"message": NAME or ID, "at": COMMAND, "slot": N}, "action": NAME, "count" or "probability",
/// "ms", "result"}. Throws ScenarioError.
Fault faultFromJson(JsonNode node);

/// The faults in force. The first that matches strikes.
class FaultInjector {
public:
    explicit FaultInjector(std::vector<Fault> faults) : mFaults(std::move(faults)) {}

    void add(Fault fault) { mFaults.push_back(std::move(fault)); }
    void clear() { mFaults.clear(); }

    /// The fault that strikes a request, and counts it.
    std::optional<Fault> strike(uint16_t id, std::string_view atCommand, int slot, std::mt19937& random);

private:
    std::vector<Fault> mFaults;
};

/// Damage to the fields of an answer. The result, field 0, is spared unless there is nothing else.
void truncateFields(Fields& fields, std::mt19937& random);
void garbleFields(Fields& fields, std::mt19937& random);

} // namespace sim
