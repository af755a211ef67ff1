// The delivery thread of the transport.
#include "transport.h"

#include "host/link_status.h"
#include "zor/log.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace host {
namespace {

using std::chrono::milliseconds;

constexpr const char* kTag = "vorn";

constexpr milliseconds kFirstBackOff{100};
constexpr milliseconds kLongestBackOff{5000};

/// A callback is the caller's: an exception that leaves one ends the program where it was thrown.
void call(vorn_msg_cb callback, vorn_msg_t& message, void* user) noexcept
{
    callback(&message, user);
}

/// The library's own answer to a request that the modem did not answer.
void answer(const PendingRequest& request, uint32_t result)
{
    static_assert(std::endian::native == std::endian::little);
    uint8_t bytes[sizeof result];
    std::copy_n(reinterpret_cast<const uint8_t*>(&result), sizeof result, bytes);
    Message message(request.header);
    message.addField(0, bytes);
    call(request.callback, message, request.user);
}

/// The link's state changed. Whoever hears of it may find no memory, which is no reason to stop here.
void tell(LinkState state)
{
    try {
        publishLinkState(state);
    } catch (const std::exception& error) {
        zorLogE(kTag, "can't tell the state of the link: %s", error.what());
    }
}

} // namespace

void Transport::run()
{
    while (mState == State::Open) {
        try {
            serve();
        } catch (const std::exception& error) {
            zorLogE(kTag, "the link is given up: %s", error.what());
            mBatch.clear();
            lost(kFirstBackOff);
        }
    }
    std::unique_lock lock(mMutex);
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

/// Does all that there is to do now, or waits until there is something.
void Transport::serve()
{
    std::unique_lock lock(mMutex);
    waitForWork(lock);
    const auto loss = mQueue.empty() ? std::exchange(mLoss, std::nullopt) : std::nullopt;
    mBatch.swap(mQueue);
    mQueuedBytes = 0;
    const bool wasFull = std::exchange(mIsFull, false);
    lock.unlock();
    if (wasFull) {
        mLink->resume();
    }
    if (loss) {
        handleLoss(*loss);
    }
    deliverBatch();
    meetDeadlines();
}

void Transport::waitForWork(std::unique_lock<std::mutex>& lock)
{
    const Clock::TimePoint deadline = nextDeadline();
    mServeAt = std::min(mServeAt, deadline);
    mSleeping = true;
    Clock::waitUntil(mWake, lock, deadline,
                     [this] { return mState != State::Open || !mQueue.empty() || mLoss; });
    mSleeping = false;
}

void Transport::deliverBatch()
{
    for (size_t next = 0; next < mBatch.size() && mState == State::Open; ++next) {
        // Taken out first: a callback that closes the transport clears the batch.
        Item item = std::move(mBatch[next]);
        std::visit([this](auto& what) { handle(what); }, item);
        meetDeadlines();
    }
    mBatch.clear();
}

void Transport::handle(Outgoing& request)
{
    mLink->send(*request.message);
    mServeAt = std::min(mServeAt, mLink->nextDeadline());
}

void Transport::handle(Incoming& message)
{
    if (message.message->hdr.tx_id == 0) {
        deliverIndication(*message.message);
    } else {
        deliverAnswer(*message.message);
    }
}

void Transport::handleLoss(milliseconds retryAfter)
{
    zorLogW(kTag, "the link to the modem is lost");
    mBackOff = kFirstBackOff;
    mReopenAt = Clock::now() + retryAfter;
    mServeAt = std::min(mServeAt, mReopenAt);
    mLink->close();
    tell(LinkState::Lost);
    answerAll(kResultLinkLost);
}

void Transport::handle(CommandPtr& command)
{
    mLink->control(command->text, std::move(command->answer));
    mServeAt = std::min(mServeAt, mLink->nextDeadline());
}

void Transport::deliverAnswer(vorn_msg_t& answer)
{
    const auto keyOfHeader = [](const vorn_msg_hdr_t& header) {
        return keyOf(header.slot_id, header.msg_id);
    };
    std::optional<PendingRequest> request;
    Observer observer;
    {
        const std::lock_guard lock(mMutex);
        const PendingRequest* pending = mPending.find(answer.hdr.tx_id);
        if (pending != nullptr && keyOfHeader(pending->header) == keyOfHeader(answer.hdr)) {
            request = mPending.take(answer.hdr.tx_id);
            observer = mObserver;
            mIsObserving = observer.show != nullptr;
        }
    }
    if (observer.show != nullptr) {
        showObserver(observer, answer);
    }
    if (request) {
        call(request->callback, answer, request->user);
    } else {
        zorLogW(kTag,
                "dropped a late, repeated or unasked answer: message 0x%04x, slot bit %d, transaction %d",
                answer.hdr.msg_id, answer.hdr.slot_id, answer.hdr.tx_id);
    }
}

/// An exception that leaves the observer ends the program, as with callbacks.
void Transport::showObserver(const Observer& observer, const vorn_msg_t& answer) noexcept
{
    observer.show(&answer, observer.user);
    const std::lock_guard lock(mMutex);
    mIsObserving = false;
    ++mObservation;
    mRunEnded.notify_all();
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
    call(registered.callback, indication, registered.user);
    lock.lock();
    mRunning.reset();
    mRunEnded.notify_all();
}

/// Of all that this thread has to do on its own. Under the mutex.
Clock::TimePoint Transport::nextDeadline() const
{
    const Clock::TimePoint ofLink = mLink ? mLink->nextDeadline() : Clock::TimePoint::max();
    return std::min({mPending.nextDeadline(), ofLink, mReopenAt});
}

/// Runs after each message, since callbacks take their time; so it looks closer only when there may be
/// something to do.
void Transport::meetDeadlines()
{
    const Clock::TimePoint now = Clock::now();
    if (now < mServeAt) {
        return;
    }
    serveLink(now);
    answerOverdue(now);
    const std::lock_guard lock(mMutex);
    mServeAt = std::min(nextDeadline(), now + mTimeout); // what is sent from now on is due later
}

/// Gives the link its time. There is none after a callback has closed the transport.
void Transport::serveLink(Clock::TimePoint now)
{
    if (!mLink) {
        return;
    }
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
    if (!tryToReopenLink()) {
        enter(LinkPhase::Opening, LinkPhase::Down);
        mReopenAt = now + mBackOff;
        mBackOff = std::min(mBackOff * 2, kLongestBackOff);
        return;
    }
    mReopenAt = Clock::TimePoint::max();
    enter(LinkPhase::Opening, LinkPhase::Up);
    tell(LinkState::Up);
}

bool Transport::tryToReopenLink()
{
    try {
        mLink->open(milliseconds(0));
        return true;
    } catch (const LinkError& error) {
        zorLogD(kTag, "the link is still lost: %s", error.what());
    } catch (const std::exception& error) {
        zorLogW(kTag, "can't reopen the link: %s", error.what());
    }
    return false;
}

void Transport::answerOverdue(Clock::TimePoint now)
{
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
    mBatch.clear();
    {
        const std::lock_guard lock(mMutex);
        forgetQueue();
        mIndications.clear();
    }
    tell(LinkState::Unknown);
    answerAll(kResultClosed);
}

} // namespace host
