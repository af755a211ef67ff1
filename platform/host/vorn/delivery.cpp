// The delivery thread of the transport.
#include "transport.h"

#include "host/link_status.h"
#include "zor/log.h"

#include <algorithm>
#include <bit>

namespace host {
namespace {

using std::chrono::milliseconds;

constexpr const char* kTag = "vorn";

constexpr milliseconds kFirstBackOff{100};
constexpr milliseconds kLongestBackOff{5000};

/// The library's own answer to a request that the modem did not answer.
void answer(const PendingRequest& request, uint32_t result)
{
    static_assert(std::endian::native == std::endian::little);
    uint8_t bytes[sizeof result];
    std::copy_n(reinterpret_cast<const uint8_t*>(&result), sizeof result, bytes);
    Message message(request.header);
    message.addField(0, bytes);
    request.callback(&message, request.user);
}

} // namespace

void Transport::run()
{
    std::unique_lock lock(mMutex);
    while (mState == State::Open) {
        waitForWork(lock);
        mBatch.swap(mQueue);
        lock.unlock();
        deliverBatch();
        serveLink();
        answerOverdue();
        lock.lock();
    }
    if (mState == State::Closing) {
        lock.unlock();
        tearDown();
        return;
    }
    mThread.detach();
    mDeliveryThread = {};
    mState = State::Closed;
    mStateChanged.notify_all();
}

void Transport::waitForWork(std::unique_lock<std::mutex>& lock)
{
    const Clock::TimePoint deadline = std::min({mPending.nextDeadline(), mLink->nextDeadline(), mReopenAt});
    mSleeping = true;
    Clock::waitUntil(mWake, lock, deadline, [this] { return mState != State::Open || !mQueue.empty(); });
    mSleeping = false;
}

void Transport::deliverBatch()
{
    for (size_t next = 0; next < mBatch.size(); ++next) {
        // Taken out first: a callback that closes the transport clears the batch.
        Item item = std::move(mBatch[next]);
        std::visit([this](auto& what) { handle(what); }, item);
    }
    mBatch.clear();
}

void Transport::handle(Outgoing& request)
{
    mLink->send(*request.message);
}

void Transport::handle(Incoming& message)
{
    if (message.message->hdr.tx_id == 0) {
        deliverIndication(*message.message);
    } else {
        deliverAnswer(*message.message);
    }
}

void Transport::handle(Loss& loss)
{
    zorLogW(kTag, "the link to the modem is lost");
    mLink->close();
    mBackOff = kFirstBackOff;
    mReopenAt = Clock::now() + loss.retryAfter;
    publishLinkState(LinkState::Lost);
    answerAll(kResultLinkLost);
}

void Transport::handle(CommandPtr& command)
{
    command->answer.set_value(mLink->control(command->text));
}

void Transport::deliverAnswer(vorn_msg_t& answer)
{
    std::unique_lock lock(mMutex);
    const std::optional<PendingRequest> request = mPending.take(answer.hdr.tx_id);
    lock.unlock();
    if (request) {
        request->callback(&answer, request->user);
    } else {
        zorLogW(kTag,
                "dropped a late, repeated or unasked answer: message 0x%04x, slot bit %d, transaction %d",
                answer.hdr.msg_id, answer.hdr.slot_id, answer.hdr.tx_id);
    }
}

void Transport::deliverIndication(vorn_msg_t& indication)
{
    const IndicationKey key = keyOf(indication.hdr.slot_id, indication.hdr.msg_id);
    std::unique_lock lock(mMutex);
    const auto found = mIndications.find(key);
    if (found == mIndications.end()) {
        return;
    }
    const Indication registered = found->second;
    mRunning = key;
    ++mRunNumber;
    lock.unlock();
    registered.callback(&indication, registered.user);
    lock.lock();
    mRunning.reset();
    mRunEnded.notify_all();
}

/// Gives the link its time. There is none after a callback has closed the transport.
void Transport::serveLink()
{
    if (!mLink) {
        return;
    }
    const Clock::TimePoint now = Clock::now();
    if (mLink->nextDeadline() <= now) {
        mLink->advance(now);
    }
    if (mReopenAt <= now) {
        reopenLink(now);
    }
}

void Transport::reopenLink(Clock::TimePoint now)
{
    const auto enter = [this](LinkPhase from, LinkPhase to) {
        const std::lock_guard lock(mMutex);
        if (mLinkPhase == from) {
            mLinkPhase = to;
        }
    };
    enter(LinkPhase::Down, LinkPhase::Opening);
    try {
        mLink->open();
    } catch (const LinkError& error) {
        zorLogD(kTag, "the link is still lost: %s", error.what());
        enter(LinkPhase::Opening, LinkPhase::Down);
        mReopenAt = now + mBackOff;
        mBackOff = std::min(mBackOff * 2, kLongestBackOff);
        return;
    }
    mReopenAt = Clock::TimePoint::max();
    enter(LinkPhase::Opening, LinkPhase::Up);
    publishLinkState(LinkState::Up);
}

void Transport::answerOverdue()
{
    const Clock::TimePoint now = Clock::now();
    std::unique_lock lock(mMutex);
    while (const std::optional<PendingRequest> request = mPending.takeOverdue(now)) {
        lock.unlock();
        zorLogW(kTag, "no answer in time: message 0x%04x, slot bit %d, transaction %d",
                request->header.msg_id, request->header.slot_id, request->header.tx_id);
        answer(*request, kResultTimeout);
        lock.lock();
    }
}

void Transport::answerAll(uint32_t result)
{
    std::unique_lock lock(mMutex);
    while (const std::optional<PendingRequest> request = mPending.takeOldest()) {
        lock.unlock();
        answer(*request, result);
        lock.lock();
    }
}

void Transport::tearDown()
{
    mLink->close();
    mLink.reset();
    std::vector<Item> dropped = std::move(mBatch);
    mBatch.clear();
    {
        const std::lock_guard lock(mMutex);
        std::move(mQueue.begin(), mQueue.end(), std::back_inserter(dropped));
        mQueue.clear();
        mIndications.clear();
    }
    dropped.clear();
    publishLinkState(LinkState::Unknown);
    answerAll(kResultClosed);
}

} // namespace host
