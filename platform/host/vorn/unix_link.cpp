#include "unix_link.h"

#include "zor/log.h"

#include <cstdlib>
#include <set>
#include <unistd.h>

namespace host {

/// Every link, so that none outlives what its thread needs: Asio keeps its error categories until the process
/// ends, and threads that nobody stopped would go on using them.
struct UnixLinks {
    std::mutex mutex; ///< held while a link is opened or closed
    std::set<UnixLink*> links;
    bool isOver = false;
    const pid_t process = getpid(); ///< a forked child has none of the threads, and must not wait for them

    /// Kept for ever, since the threads that open links are.
    static UnixLinks& instance()
    {
        static UnixLinks& all = *[] {
            asio::error::get_system_category(); // to be destroyed after what follows was called
            asio::error::get_misc_category();
            std::atexit([] {
                if (getpid() == instance().process) {
                    instance().stop();
                }
            });
            return new UnixLinks;
        }();
        return all;
    }

    void stop()
    {
        const std::lock_guard lock(mutex);
        isOver = true;
        for (UnixLink* link : links) {
            link->stop();
        }
    }
};

namespace {

constexpr const char* kTag = "vorn";

constexpr std::chrono::milliseconds kFirstRetry{50};
constexpr std::chrono::seconds kLongestCommand{10};

} // namespace

UnixLink::UnixLink(std::string path, LinkEvents& events)
    : mPath(std::move(path)), mEvents(events), mAll(UnixLinks::instance())
{
    const std::lock_guard all(mAll.mutex);
    mAll.links.insert(this);
}

UnixLink::~UnixLink()
{
    const std::lock_guard all(mAll.mutex);
    stop();
    mAll.links.erase(this);
}

void UnixLink::open()
{
    const std::lock_guard all(mAll.mutex);
    if (mAll.isOver) {
        throw LinkError("the process ends");
    }
    mContext = std::make_unique<asio::io_context>(1);
    Socket socket(*mContext);
    try {
        socket.connect(asio::local::stream_protocol::endpoint(mPath));
    } catch (const asio::system_error& error) {
        throw LinkError("no modem at unix:" + mPath + ": " + error.code().message());
    }
    ConnectionEvents& events = *this;
    mConnection = std::make_shared<Connection>(std::move(socket), events);
    {
        const std::lock_guard lock(mMutex);
        mIsUp = true;
    }
    mConnection->start();
    mThread = std::thread([context = mContext.get()] { context->run(); });
}

void UnixLink::close()
{
    const std::lock_guard all(mAll.mutex);
    stop();
}

void UnixLink::stop()
{
    if (!mContext) {
        return;
    }
    {
        const std::lock_guard lock(mMutex);
        mPosted.clear();
        mIsUp = false;
        mAnswered.notify_all();
    }
    mContext->stop();
    if (mThread.joinable()) {
        mThread.join();
    }
    mConnection.reset();
    mContext.reset();
}

void UnixLink::send(const vorn_msg_t& request)
{
    const std::lock_guard lock(mMutex);
    post(request);
}

std::optional<std::string> UnixLink::control(const std::string& command)
{
    std::unique_lock lock(mMutex);
    const MessagePtr message = toMessage({++mCommandNumber, command});
    if (!message) {
        return R"({"ok": false, "error": "the command is too long"})";
    }
    post(*message);
    mAnswer.reset();
    mAnswered.wait_for(lock, kLongestCommand, [this] { return mAnswer || !mIsUp; });
    return mAnswer ? std::optional(std::move(mAnswer->text)) : std::nullopt;
}

/// Hands a message to the connection's thread, which fetches all that has gathered when its turn comes.
void UnixLink::post(const vorn_msg_t& message)
{
    if (!mIsUp) {
        return;
    }
    const bool isFirst = mPosted.empty();
    Message::of(message).encode(mPosted);
    if (isFirst) {
        asio::post(*mContext, [this] { sendPosted(); });
    }
}

void UnixLink::sendPosted()
{
    std::vector<uint8_t> frames;
    {
        const std::lock_guard lock(mMutex);
        frames.swap(mPosted);
    }
    mConnection->send(frames);
}

void UnixLink::received(Connection& /*connection*/, MessagePtr message)
{
    if (!isCommand(*message)) {
        mEvents.received(std::move(message));
        return;
    }
    CommandMessage answer = commandFrom(*message);
    const std::lock_guard lock(mMutex);
    if (answer.number == mCommandNumber) {
        mAnswer = std::move(answer);
        mAnswered.notify_all();
    }
}

void UnixLink::closed(Connection& /*connection*/, const std::string& reason)
{
    zorLogD(kTag, "unix:%s: %s", mPath.c_str(), reason.c_str());
    {
        const std::lock_guard lock(mMutex);
        mIsUp = false;
        mAnswered.notify_all();
    }
    mEvents.lost(kFirstRetry);
}

} // namespace host
