#include "fault.h"

#include "at_line.h"
#include "slot.h"

#include <algorithm>
#include <array>

namespace sim {
namespace {

using std::chrono::milliseconds;

struct ActionRow {
    std::string_view name;
    FaultAction action;
    milliseconds time; ///< when the fault gives none
};

constexpr std::array kActions{
    ActionRow{"drop", FaultAction::Drop, milliseconds(0)},
    ActionRow{"delay", FaultAction::Delay, milliseconds(100)},
    ActionRow{"late", FaultAction::Late, milliseconds(61'000)},
    ActionRow{"result", FaultAction::Result, milliseconds(0)},
    ActionRow{"duplicate", FaultAction::Duplicate, milliseconds(0)},
    ActionRow{"truncate", FaultAction::Truncate, milliseconds(0)},
    ActionRow{"garble", FaultAction::Garble, milliseconds(0)},
    ActionRow{"wrong_transaction", FaultAction::WrongTransaction, milliseconds(0)},
    ActionRow{"disconnect", FaultAction::Disconnect, milliseconds(1'000)},
    ActionRow{"restart", FaultAction::Restart, milliseconds(3'000)},
};

constexpr uint32_t kMaxTime = 24 * 60 * 60 * 1000;

void readMatch(JsonNode node, Fault& fault)
{
    if (const auto message = node.optionalMember("message")) {
        fault.message = requestFromJson(*message).id;
    }
    if (const auto at = node.optionalMember("at")) {
        fault.at = normalizeAt(at->text());
        if (!fault.at) {
            at->fail("is no AT command");
        }
    }
    if (const auto slot = node.optionalMember("slot")) {
        fault.slot = slot->number<int>(0, kSlots - 1);
    }
    node.finish();
}

/// The next of the generator's numbers, from 0 to just below 1.
double draw(std::mt19937& random)
{
    constexpr double kNumbers = 4294967296.0;
    return static_cast<double>(random()) / kNumbers;
}

template <typename Damage>
void damage(Fields& fields, Damage apply)
{
    const bool onlyResult = fields.size() == 1;
    for (auto& [tag, value] : fields) {
        if (tag == 0 && !onlyResult) {
            continue;
        }
        if (auto* bytes = std::get_if<Bytes>(&value)) {
            apply(*bytes);
        } else {
            std::ranges::for_each(std::get<std::vector<Bytes>>(value), apply);
        }
    }
}

} // namespace

bool Fault::matches(uint16_t id, std::string_view atCommand, int onSlot) const
{
    if ((message && *message != id) || (slot && *slot != onSlot)) {
        return false;
    }
    if (!at) {
        return true;
    }
    const auto command = normalizeAt(atCommand);
    if (!command || atCommand.empty()) {
        return false;
    }
    return at->ends_with('*') ? command->starts_with(at->substr(0, at->size() - 1)) : *command == *at;
}

Fault faultFromJson(JsonNode node)
{
    Fault fault;
    const JsonNode action = node.member("action");
    const auto row = std::ranges::find(kActions, action.text(), &ActionRow::name);
    if (row == kActions.end()) {
        std::string list;
        std::vector<std::string> names;
        for (const auto& known : kActions) {
            list += (list.empty() ? "" : ", ") + std::string(known.name);
            names.emplace_back(known.name);
        }
        action.failUnknown("must be one of " + list, std::move(names));
    }
    fault.action = row->action;
    fault.time = row->time;

    if (const auto match = node.optionalMember("match")) {
        readMatch(*match, fault);
    }
    if (const auto count = node.optionalMember("count")) {
        fault.count = count->number<uint32_t>(1);
    }
    if (const auto probability = node.optionalMember("probability")) {
        if (fault.count) {
            probability->fail("can't stand next to a count");
        }
        fault.probability = probability->fraction(0, 1);
    }
    if (const auto time = node.optionalMember("ms")) {
        fault.time = milliseconds(time->number<uint32_t>(0, kMaxTime));
    }
    if (const auto result = node.optionalMember("result")) {
        fault.result = result->number<int32_t>();
    }
    node.finish();
    return fault;
}

std::optional<Fault> FaultInjector::strike(uint16_t id, std::string_view atCommand, int slot,
                                           std::mt19937& random)
{
    for (auto fault = mFaults.begin(); fault != mFaults.end(); ++fault) {
        if (!fault->matches(id, atCommand, slot)) {
            continue;
        }
        if (fault->probability < 1 && draw(random) >= fault->probability) {
            continue;
        }
        const Fault struck = *fault;
        if (fault->count && --*fault->count == 0) {
            mFaults.erase(fault);
        }
        return struck;
    }
    return std::nullopt;
}

void truncateFields(Fields& fields, std::mt19937& random)
{
    damage(fields, [&](Bytes& bytes) { bytes.resize(bytes.empty() ? 0 : random() % bytes.size()); });
}

void garbleFields(Fields& fields, std::mt19937& random)
{
    damage(fields, [&](Bytes& bytes) {
        std::ranges::generate(bytes, [&] { return static_cast<uint8_t>(random()); });
    });
}

} // namespace sim
