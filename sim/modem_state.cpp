#include "modem_state.h"

#include "contents.h"
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

/// Another transaction than the request's, and far away from those in use next to it.
uint16_t strayTransaction(uint16_t transaction)
{
    return transaction ^ 0x8000U;
}

} // namespace

Modem::State::State(const Scenario& scenario, Output& output) : mOutput(output)
{
    load(readScenario(scenario.json()));
}

void Modem::State::load(ScenarioData scenario)
{
    mInitialSlots = scenario.slots;
    mSlots = std::move(scenario.slots);
    mNvFile = std::move(scenario.nvFile);
    mFaults = FaultInjector(std::move(scenario.faults));
    mRandom.seed(scenario.seed);
    mTimeline = std::move(scenario.timeline);
    mNextIndication = 0;
    mReports.clear();
}

void Modem::State::receive(ClientId client, const vorn_msg_t& request, TimePoint now)
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
    const auto fault = mFaults.strike(checked.spec->id, at, *slot, mRandom);
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
        mSlots.at(static_cast<size_t>(*slot)).now = now;
        answer = carryOut(mSlots.at(static_cast<size_t>(*slot)), {*checked.spec, checked.fields, mSlots},
                          due.consequences);
        if (checked.spec->id == kWriteNv && answer.result == ModemResult::Success && !saveNv()) {
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

void Modem::State::send(DueAnswer due, const std::optional<Fault>& fault, TimePoint now)
{
    switch (fault ? fault->action : FaultAction::Result) {
    case FaultAction::Drop:
        follow(due, now);
        return;
    case FaultAction::Delay:
    case FaultAction::Late:
        mDue.emplace(now + fault->time, std::move(due));
        return;
    case FaultAction::Duplicate:
        deliver(due);
        break;
    case FaultAction::Truncate:
        truncateFields(due.fields, mRandom);
        break;
    case FaultAction::Garble:
        garbleFields(due.fields, mRandom);
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

void Modem::State::deliver(const DueAnswer& due)
{
    auto message = makeMessage(due.header, due.fields);
    if (message == nullptr) {
        zorLogE(kTag, "answer 0x%04x does not fit into a message", unsigned{due.header.msg_id});
        Fields failure;
        failure.setNumber(0, static_cast<int32_t>(ModemResult::Failure));
        message = makeMessage(due.header, failure);
    }
    if (message != nullptr) {
        mOutput.answer(due.client, std::move(message));
    }
}

void Modem::State::follow(const DueAnswer& due, TimePoint now)
{
    for (const Indication& indication : due.consequences.indications) {
        indicate(indication);
    }
    if (due.consequences.reports) {
        mReports.change(due.client, *due.consequences.reports, now);
    }
}

void Modem::State::indicate(const Indication& indication)
{
    const vorn_msg_hdr_t header{indication.spec->id, 0, static_cast<uint8_t>(1U << indication.slot)};
    Slot& slot = mSlots.at(static_cast<size_t>(indication.slot));
    for (uint32_t i = 0; i < indication.times; ++i) {
        Fields fields = contentsOf(*indication.spec, {mSlots, slot});
        for (const auto& [tag, value] : indication.fields) {
            fields.set(tag, value);
        }
        auto message = makeMessage(header, fields);
        if (message == nullptr) {
            zorLogE(kTag, "indication 0x%04x does not fit into a message", unsigned{header.msg_id});
            return;
        }
        ++slot.indicationsSent[header.msg_id];
        mOutput.indicate(std::move(message));
    }
}

std::optional<TimePoint> Modem::State::nextDeadline() const
{
    std::optional<TimePoint> deadline = mReports.nextDeadline();
    if (!mDue.empty()) {
        const TimePoint next = mDue.begin()->first;
        deadline = deadline ? std::min(*deadline, next) : next;
    }
    if (mNextIndication < mTimeline.size()) {
        const TimePoint next = mStart ? *mStart + mTimeline[mNextIndication].at : TimePoint::min();
        deadline = deadline ? std::min(*deadline, next) : next;
    }
    return deadline;
}

void Modem::State::advance(TimePoint now)
{
    mStart = mStart.value_or(now);
    while (true) {
        const auto deadline = nextDeadline();
        if (!deadline || *deadline > now) {
            return;
        }
        if (!mDue.empty() && mDue.begin()->first == *deadline) {
            const auto due = mDue.extract(mDue.begin());
            deliver(due.mapped());
            follow(due.mapped(), *deadline);
        } else if (mReports.nextDeadline() == deadline) {
            indicate(mReports.takeNext());
        } else {
            indicate(mTimeline[mNextIndication++].indication);
        }
    }
}

void Modem::State::forget(ClientId client)
{
    std::erase_if(mDue, [&](const auto& due) { return due.second.client == client; });
    mReports.stop(client);
}

bool Modem::State::saveNv() const
{
    if (!mNvFile) {
        return true;
    }
    NvOfSlots items;
    std::ranges::transform(mSlots, items.begin(), &Slot::nv);
    return writeNvFile(*mNvFile, items);
}

void Modem::State::disconnect(std::chrono::milliseconds downFor)
{
    mDue.clear();
    mReports.clear();
    mOutput.disconnect(downFor);
}

void Modem::State::restart(std::chrono::milliseconds downFor)
{
    for (size_t i = 0; i < mSlots.size(); ++i) {
        Slot& slot = mSlots.at(i);
        auto nv = std::move(slot.nv);
        const uint64_t nextSqn = slot.card.secrets.nextSqn;
        slot = mInitialSlots.at(i);
        slot.nv = std::move(nv);
        slot.card.secrets.nextSqn = nextSqn;
    }
    disconnect(downFor);
}

} // namespace sim
