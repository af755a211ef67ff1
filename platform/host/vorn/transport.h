/// Requests, answers and indications over one link, with one thread that delivers them.
#pragma once

#include "link.h"
#include "pending_table.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_map>
#include <variant>
#include <vector>

namespace host {

/// The results in answers that the library makes itself.
constexpr uint32_t kResultTimeout = 1001;
constexpr uint32_t kResultLinkLost = 1002;
constexpr uint32_t kResultClosed = 1003;

/// The functions may be called from any thread, from callbacks too: those run on the delivery thread with no
/// lock held. The link is used by the delivery thread alone, once it is open.
class Transport : private LinkEvents {
public:
    Transport() = default;
    ~Transport() override { close(); }
    Transport(const Transport&) = delete;
    Transport& operator=(const Transport&) = delete;

    /// True when open now, or open already. False, with a line in the log, when the link can't be had, and in
    /// the callbacks that close() makes.
    bool open(const LinkFactory& makeLink);

    /// Answers what is pending, forgets all registrations and ends the delivery thread. A callback may call
    /// it too: then the thread ends when that returns, or lives on for the link that the callback opens next.
    void close();

    /// False when refused: not open, the link is lost, no free transaction, or no memory. Else `callback` is
    /// called exactly once. Notes the transaction in `request`.
    bool send(vorn_msg_t& request, vorn_msg_cb callback, void* user);

    bool registerIndication(uint8_t slot, uint16_t messageId, vorn_msg_cb callback, void* user);
    void unregisterIndication(uint8_t slot, uint16_t messageId);
    void unregisterAllIndications();

    /// Is shown every answer of the modem right before its callback runs.
    struct Observer {
        void (*show)(const vorn_msg_t* answer, void* user) = nullptr;
        void* user = nullptr;
    };

    /// Takes the place of the former observer, which has returned then, unless it is the caller.
    void observe(Observer observer);

    /// Passes a command to the simulation behind the link and waits for its answer; nothing when there is
    /// none to be had, or none within ten seconds. Not for callbacks.
    std::optional<std::string> control(std::string command);

private:
    enum class State {
        Closed,
        Opening,
        Open,
        Closing,
        Leaving, ///< closed by a callback that has not returned yet
    };
    enum class LinkPhase { Down, Opening, Up };

    struct Outgoing {
        MessagePtr message;
    };
    struct Incoming {
        MessagePtr message;
    };
    struct Command {
        std::string text;
        ControlAnswer answer;
    };
    using CommandPtr = std::unique_ptr<Command>; ///< seldom used, so not to make every item as large
    using Item = std::variant<Outgoing, Incoming, CommandPtr>;

    struct Indication {
        vorn_msg_cb callback;
        void* user;
    };
    using IndicationKey = uint32_t; ///< slot bit and message id

    static IndicationKey keyOf(uint8_t slot, uint16_t messageId);

    bool received(MessagePtr message) override;
    void lost(std::chrono::milliseconds retryAfter) override;

    bool isDeliveryThread() const;
    void waitForSettledState(std::unique_lock<std::mutex>& lock);
    void openLink(const LinkFactory& makeLink, std::chrono::milliseconds patience);
    void forgetQueue();
    void wake(std::unique_lock<std::mutex>& lock);
    void showObserver(const Observer& observer, const vorn_msg_t& answer) noexcept;
    void waitForIndication(std::unique_lock<std::mutex>& lock, std::optional<IndicationKey> key);

    // The delivery thread.
    void run();
    void serve();
    void waitForWork(std::unique_lock<std::mutex>& lock);
    void deliverBatch();
    void handle(Outgoing& request);
    void handle(Incoming& message);
    void handle(CommandPtr& command);
    void handleLoss(std::chrono::milliseconds retryAfter);
    void deliverAnswer(vorn_msg_t& answer);
    void deliverIndication(vorn_msg_t& indication);
    Clock::TimePoint nextDeadline() const;
    void meetDeadlines();
    void serveLink(Clock::TimePoint now);
    void reopenLink(Clock::TimePoint now);
    bool tryToReopenLink();
    void answerOverdue(Clock::TimePoint now);
    void answerAll(uint32_t result);
    void tearDown();

    std::mutex mMutex; ///< guards everything down to the delivery thread's own
    std::condition_variable mStateChanged;
    std::atomic<State> mState = State::Closed; ///< the delivery thread also looks at it without the mutex
    std::thread mThread;
    std::thread::id mDeliveryThread;
    LinkPhase mLinkPhase = LinkPhase::Down;
    std::chrono::milliseconds mTimeout{};
    PendingTable mPending;

    std::vector<Item> mQueue;                       ///< for the delivery thread, in arrival order
    size_t mQueuedBytes = 0;                        ///< the memory of what was received among it
    bool mIsFull = false;                           ///< and the link has been told
    std::optional<std::chrono::milliseconds> mLoss; ///< the link was lost after all that is in the queue
    std::condition_variable mWake;
    bool mSleeping = false; ///< the delivery thread waits and has not been woken

    std::unordered_map<IndicationKey, Indication> mIndications;
    std::optional<IndicationKey> mRunning; ///< the indication whose callback runs now
    uint64_t mRunNumber = 0;               ///< tells one run from the next
    std::condition_variable mRunEnded;
    Observer mObserver;
    bool mIsObserving = false;
    uint64_t mObservation = 0; ///< tells one call of the observer from the next

    // The delivery thread's own, or the opener's before there is that thread.
    std::unique_ptr<Link> mLink;
    std::vector<Item> mBatch;
    Clock::TimePoint mServeAt = Clock::TimePoint::min(); ///< no deadline is earlier
    Clock::TimePoint mReopenAt = Clock::TimePoint::max();
    std::chrono::milliseconds mBackOff{};
};

} // namespace host
