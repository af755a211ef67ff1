#include "sim/modem.h"

#include "at_interpreter.h"
#include "contents.h"
#include "modem_state.h"
#include "request_check.h"
#include "zor/log.h"

#include <algorithm>
#include <bit>

namespace sim {
namespace {

constexpr const char* kTag = "sim";
constexpr uint16_t kAtCommand = 3;
constexpr uint16_t kWriteNv = 51;

/// The slot of a header's one-hot bit; nothing when it is none.
std::optional<int> slotOf(uint8_t slotId)
{
    const auto bits = static_cast<unsigned>(slotId);
    const bool valid = std::has_single_bit(bits) && bits < (1U << kSlots);
    return valid ? std::optional(std::countr_zero(bits)) : std::nullopt;
}

/// Keeps the NV items in the scenario's file, if it names one; whether that went well.
bool saveNv(const std::optional<std::filesystem::path>& file, const std::array<Slot, kSlots>& slots)
{
    if (!file) {
        return true;
    }
    NvOfSlots items;
    std::ranges::transform(slots, items.begin(), &Slot::nv);
    return writeNvFile(*file, items);
}

/// Another transaction than the request's, and far away from those in use next to it.
uint16_t strayTransaction(uint16_t transaction)
{
    return transaction ^ 0x8000U;
}

} // namespace

std::array<Slot, kSlots> slotsAtStart(const ScenarioData& scenario)
{
    auto slots = scenario.slots;
    for (const StartCommand& start : scenario.commands) {
        if (!executeAt(slots.at(static_cast<size_t>(start.slot)), start.command).accepted) {
            throw ScenarioError(start.place + ": the modem refuses this command");
        }
    }
    return slots;
}

Modem::Modem(const Scenario& scenario, Output& output) : mState(std::make_unique<State>(output))
{
    load(readScenario(scenario.json()));
}

Modem::~Modem() = default;

void Modem::load(ScenarioData scenario)
{
    mState->initialSlots = slotsAtStart(scenario);
    mState->slots = mState->initialSlots;
    mState->nvFile = std::move(scenario.nvFile);
    mState->faults = FaultInjector(std::move(scenario.faults));
    mState->random.seed(scenario.seed);
    mState->timeline = std::move(scenario.timeline);
    mState->nextIndication = 0;
    mState->reports.clear();
}

void Modem::receive(ClientId client, const vorn_msg_t& request, TimePoint now)
{
    advance(now);
    const CheckedRequest checked = checkRequest(request);
    const auto slot = slotOf(request.hdr.slot_id);
    DueAnswer due{client, request.hdr, {}};

    if (checked.spec == nullptr || !slot) {
        const std::string reason = slot ? checked.reason : "slot id " + std::to_string(request.hdr.slot_id);
        zorLogW(kTag, "request 0x%04x refused: %s", unsigned{request.hdr.msg_id}, reason.c_str());
        due.fields.setNumber(0, static_cast<int32_t>(ModemResult::BadArgument));
        deliver(due);
        return;
    }

    const std::string_view at =
        checked.spec->id == kAtCommand ? checked.fields.text(kAtText) : std::string_view{};
    const auto fault = mState->faults.strike(checked.spec->id, at, *slot, mState->random);
    if (fault && fault->action == FaultAction::Disconnect) {
        disconnect(fault->time);
        return;
    }
    if (fault && fault->action == FaultAction::Restart) {
        restart(fault->time);
        return;
    }

    Answer answer;
    if (fault && fault->action == FaultAction::Result) {
        answer.result = static_cast<ModemResult>(fault->result);
    } else {
        mState->slots.at(static_cast<size_t>(*slot)).now = now;
        answer = carryOut(mState->slots.at(static_cast<size_t>(*slot)),
                          {*checked.spec, checked.fields, mState->slots}, due.consequences);
        if (checked.spec->id == kWriteNv && answer.result == ModemResult::Success &&
            !saveNv(mState->nvFile, mState->slots)) {
            answer.result = ModemResult::Failure;
        }
    }
    due.fields = std::move(answer.fields);
    due.fields.setNumber(0, static_cast<int32_t>(answer.result));
    send(std::move(due), fault, now);
    if (answer.restart) {
        restart(kRestartTime);
    }
}

void Modem::send(DueAnswer due, const std::optional<Fault>& fault, TimePoint now)
{
    switch (fault ? fault->action : FaultAction::Result) {
    case FaultAction::Drop:
        follow(due, now);
        return;
    case FaultAction::Delay:
    case FaultAction::Late:
        mState->due.emplace(now + fault->time, std::move(due));
        return;
    case FaultAction::Duplicate:
        deliver(due);
        break;
    case FaultAction::Truncate:
        truncateFields(due.fields, mState->random);
        break;
    case FaultAction::Garble:
        garbleFields(due.fields, mState->random);
        break;
    case FaultAction::WrongTransaction:
        due.header.tx_id = strayTransaction(due.header.tx_id);
        break;
    default:
        break;
    }
    deliver(due);
    follow(due, now);
}

void Modem::deliver(const DueAnswer& due)
{
    auto message = makeMessage(due.header, due.fields);
    if (message == nullptr) {
        zorLogE(kTag, "answer 0x%04x does not fit into a message", unsigned{due.header.msg_id});
        Fields failure;
        failure.setNumber(0, static_cast<int32_t>(ModemResult::Failure));
        message = makeMessage(due.header, failure);
    }
    if (message != nullptr) {
        mState->output.answer(due.client, std::move(message));
    }
}

void Modem::follow(const DueAnswer& due, TimePoint now)
{
    for (const Indication& indication : due.consequences.indications) {
        indicate(indication);
    }
    if (due.consequences.reports) {
        mState->reports.change(due.client, *due.consequences.reports, now);
    }
}

void Modem::indicate(const Indication& indication)
{
    const vorn_msg_hdr_t header{indication.spec->id, 0, static_cast<uint8_t>(1U << indication.slot)};
    Slot& slot = mState->slots.at(static_cast<size_t>(indication.slot));
    for (uint32_t i = 0; i < indication.times; ++i) {
        Fields fields = contentsOf(*indication.spec, {mState->slots, slot});
        for (const auto& [tag, value] : indication.fields) {
            fields.set(tag, value);
        }
        auto message = makeMessage(header, fields);
        if (message == nullptr) {
            zorLogE(kTag, "indication 0x%04x does not fit into a message", unsigned{header.msg_id});
            return;
        }
        ++slot.indicationsSent[header.msg_id];
        mState->output.indicate(std::move(message));
    }
}

std::optional<TimePoint> Modem::nextDeadline() const
{
    std::optional<TimePoint> deadline = mState->reports.nextDeadline();
    if (!mState->due.empty()) {
        const TimePoint next = mState->due.begin()->first;
        deadline = deadline ? std::min(*deadline, next) : next;
    }
    if (mState->nextIndication < mState->timeline.size()) {
        const TimePoint next =
            mState->start ? *mState->start + mState->timeline[mState->nextIndication].at : TimePoint::min();
        deadline = deadline ? std::min(*deadline, next) : next;
    }
    return deadline;
}

void Modem::advance(TimePoint now)
{
    mState->start = mState->start.value_or(now);
    while (true) {
        const auto deadline = nextDeadline();
        if (!deadline || *deadline > now) {
            return;
        }
        if (!mState->due.empty() && mState->due.begin()->first == *deadline) {
            const auto due = mState->due.extract(mState->due.begin());
            deliver(due.mapped());
            follow(due.mapped(), *deadline);
        } else if (mState->reports.nextDeadline() == deadline) {
            indicate(mState->reports.takeNext());
        } else {
            indicate(mState->timeline[mState->nextIndication++].indication);
        }
    }
}

void Modem::forget(ClientId client)
{
    std::erase_if(mState->due, [&](const auto& due) { return due.second.client == client; });
    mState->reports.stop(client);
}

void Modem::disconnect(std::chrono::milliseconds downFor)
{
    mState->due.clear();
    mState->reports.clear();
    mState->output.disconnect(downFor);
}

/// The slots are as the scenario has them again, except for their NV items and what the SIM cards remember.
void Modem::restart(std::chrono::milliseconds downFor)
{
    for (size_t i = 0; i < mState->slots.size(); ++i) {
        Slot& slot = mState->slots.at(i);
        auto nv = std::move(slot.nv);
        const uint64_t nextSqn = slot.card.secrets.nextSqn;
        slot = mState->initialSlots.at(i);
        slot.nv = std::move(nv);
        slot.card.secrets.nextSqn = nextSqn;
    }
    disconnect(downFor);
}

} // namespace sim
