#include "transport.h"

#include "host/device.h"
#include "host/link_status.h"
#include "mindroid/integer.h"
#include "zor/log.h"

#include <utility>

namespace host {
namespace {

using std::chrono::milliseconds;

constexpr const char* kTag = "vorn";

constexpr milliseconds kDefaultTimeout{60000};
constexpr milliseconds kOpenPatience{2000};
constexpr std::chrono::seconds kLongestCommand{10};

/// As much again may be in the batch that is being delivered.
constexpr size_t kMostQueuedBytes = size_t{16} << 20;

milliseconds requestTimeout()
{
    std::string text;
    if (!findProperty("host.vorn.timeout_ms", text)) {
        return kDefaultTimeout;
    }
    const std::optional<int32_t> timeout = mindroid::Integer::tryParse(text);
    if (!timeout || *timeout <= 0) {
        zorLogW(kTag, "host.vorn.timeout_ms is not a number of milliseconds: %s", text.c_str());
        return kDefaultTimeout;
    }
    return milliseconds(*timeout);
}

} // namespace

Transport::IndicationKey Transport::keyOf(uint8_t slot, uint16_t messageId)
{
    constexpr IndicationKey kSlotBits = 0x0F;
    return (slot & kSlotBits) << 16 | messageId;
}

bool Transport::isDeliveryThread() const
{
    return mDeliveryThread == std::this_thread::get_id();
}

/// Lets another thread finish to open or close. A callback can't wait: the other thread may wait for it.
void Transport::waitForSettledState(std::unique_lock<std::mutex>& lock)
{
    if (!isDeliveryThread()) {
        mStateChanged.wait(lock, [this] { return mState == State::Open || mState == State::Closed; });
    }
}

bool Transport::open(const LinkFactory& makeLink)
{
    std::unique_lock lock(mMutex);
    waitForSettledState(lock);
    if (mState != State::Closed && mState != State::Leaving) {
        return mState == State::Open;
    }
    mTimeout = requestTimeout(); // throws without memory
    const State before = mState.exchange(State::Opening);
    mLinkPhase = LinkPhase::Opening;
    lock.unlock();
    try {
        openLink(makeLink, isDeliveryThread() ? milliseconds(0) : kOpenPatience);
        lock.lock();
        mState = State::Open; // first, since the thread ends when it is not
        if (before == State::Closed) {
            mThread = std::thread([this] { run(); });
            mDeliveryThread = mThread.get_id();
        }
    } catch (const std::exception& error) {
        zorLogE(kTag, "can't open the link: %s", error.what());
        if (lock.owns_lock()) {
            lock.unlock();
        }
        mLink.reset();
        publishLinkState(LinkState::Unknown);
        lock.lock();
        forgetQueue();
        mLinkPhase = LinkPhase::Down;
        mState = before;
    }
    mStateChanged.notify_all();
    return mState == State::Open;
}

/// What is destroyed here holds no callbacks.
void Transport::forgetQueue()
{
    mQueue.clear();
    mQueuedBytes = 0;
    mIsFull = false;
    mLoss.reset();
}

void Transport::openLink(const LinkFactory& makeLink, milliseconds patience)
{
    mReopenAt = Clock::TimePoint::max();
    mServeAt = Clock::TimePoint::min();
    mLink = makeLink(*this);
    mLink->open(patience);
    {
        const std::lock_guard lock(mMutex);
        if (mLinkPhase == LinkPhase::Opening) {
            mLinkPhase = LinkPhase::Up;
        }
    }
    publishLinkState(LinkState::Up);
}

void Transport::close()
{
    std::unique_lock lock(mMutex);
    waitForSettledState(lock);
    if (mState != State::Open) {
        return;
    }
    mState = State::Closing;
    mLinkPhase = LinkPhase::Down;
    if (isDeliveryThread()) {
        lock.unlock();
        tearDown();
        lock.lock();
        mState = State::Leaving;
        return;
    }
    std::thread thread = std::move(mThread);
    wake(lock);
    thread.join();
    lock.lock();
    mDeliveryThread = {};
    mState = State::Closed;
    mStateChanged.notify_all();
}

bool Transport::send(vorn_msg_t& request, vorn_msg_cb callback, void* user)
{
    MessagePtr copy = copyOf(request);
    if (!copy) {
        return false;
    }
    const Clock::TimePoint now = Clock::now();
    vorn_msg_t& sent = *copy;
    std::unique_lock lock(mMutex);
    if (mState != State::Open || mLinkPhase != LinkPhase::Up || mPending.isFull()) {
        return false;
    }
    mQueue.emplace_back(Outgoing{std::move(copy)});
    sent.hdr.tx_id = mPending.add({request.hdr, callback, user, now + mTimeout});
    request.hdr.tx_id = sent.hdr.tx_id;
    wake(lock);
    return true;
}

bool Transport::registerIndication(uint8_t slot, uint16_t messageId, vorn_msg_cb callback, void* user)
{
    const std::lock_guard lock(mMutex);
    if (mState != State::Open) {
        return false;
    }
    mIndications.insert_or_assign(keyOf(slot, messageId), Indication{callback, user});
    return true;
}

void Transport::unregisterIndication(uint8_t slot, uint16_t messageId)
{
    std::unique_lock lock(mMutex);
    mIndications.erase(keyOf(slot, messageId));
    waitForIndication(lock, keyOf(slot, messageId));
}

void Transport::unregisterAllIndications()
{
    std::unique_lock lock(mMutex);
    mIndications.clear();
    waitForIndication(lock, std::nullopt);
}

/// Waits until the callback that runs now has returned, if it is the one for `key` or there is no key. A
/// callback does not wait for itself.
void Transport::waitForIndication(std::unique_lock<std::mutex>& lock, std::optional<IndicationKey> key)
{
    if (!isDeliveryThread() && mRunning && (!key || key == mRunning)) {
        mRunEnded.wait(lock, [this, run = mRunNumber] { return !mRunning || mRunNumber != run; });
    }
}

void Transport::observe(Observer observer)
{
    std::unique_lock lock(mMutex);
    mObserver = observer;
    if (mIsObserving && !isDeliveryThread()) {
        mRunEnded.wait(lock, [this, run = mObservation] { return !mIsObserving || mObservation != run; });
    }
}

std::optional<std::string> Transport::control(std::string command)
{
    auto item = std::make_unique<Command>();
    item->text = std::move(command);
    std::future<std::string> answer = item->answer.get_future();
    {
        std::unique_lock lock(mMutex);
        if (mState != State::Open || mLinkPhase != LinkPhase::Up || isDeliveryThread()) {
            return std::nullopt;
        }
        mQueue.emplace_back(std::move(item));
        wake(lock);
    }
    if (answer.wait_for(kLongestCommand) != std::future_status::ready) {
        zorLogW(kTag, "no answer to a command to the simulation");
        return std::nullopt;
    }
    try {
        return answer.get();
    } catch (const std::future_error&) {
        return std::nullopt; // dropped: the link was lost or closed meanwhile
    }
}

bool Transport::received(MessagePtr message)
{
    const size_t size = Message::of(*message).memoryUse();
    std::unique_lock lock(mMutex);
    mQueue.emplace_back(Incoming{std::move(message)});
    mQueuedBytes += size;
    mIsFull = mIsFull || mQueuedBytes > kMostQueuedBytes;
    const bool hasRoom = !mIsFull;
    wake(lock);
    return hasRoom;
}

void Transport::lost(milliseconds retryAfter)
{
    std::unique_lock lock(mMutex);
    // From here on requests are refused, so that those in the queue before the loss are all that it concerns.
    // It takes no memory to tell it: that may be what the link has none of.
    if (std::exchange(mLinkPhase, LinkPhase::Down) != LinkPhase::Down) {
        mLoss = retryAfter;
        wake(lock);
    }
}

/// Gives the lock back and wakes the delivery thread, if that sleeps.
void Transport::wake(std::unique_lock<std::mutex>& lock)
{
    const bool wasSleeping = std::exchange(mSleeping, false);
    lock.unlock();
    if (wasSleeping) {
        mWake.notify_one();
    }
}

} // namespace host
