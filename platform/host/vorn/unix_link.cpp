#include "unix_link.h"

#include "zor/log.h"

#include <cerrno>
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
constexpr std::chrono::milliseconds kBusyRetry{10};

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

void UnixLink::open(std::chrono::milliseconds patience)
{
    const auto limit = std::chrono::steady_clock::now() + patience;
    while (!tryToOpen()) {
        if (std::chrono::steady_clock::now() >= limit) {
            throw LinkError("the modem at unix:" + mPath +
                            " takes no connection: it is stopped, or serves too many programs");
        }
        std::this_thread::sleep_for(kBusyRetry);
    }
}

/// False when the modem has no room now. Nothing here waits: the end of the process needs the lock.
bool UnixLink::tryToOpen()
{
    const std::lock_guard all(mAll.mutex);
    if (mAll.isOver) {
        throw LinkError("the process ends");
    }
    mContext = std::make_unique<asio::io_context>(1);
    Socket socket(*mContext, asio::local::stream_protocol());
    try {
        if (!connectNow(socket, mPath)) {
            return false;
        }
    } catch (const asio::system_error& error) {
        const int reason = error.code().value();
        const bool isAway = reason == ENOENT || reason == ECONNREFUSED;
        throw LinkError("no modem at unix:" + mPath + ": " + error.code().message() +
                        (isAway ? "; modem-sim --listen unix:" + mPath + " starts one" : ""));
    }
    try {
        start(std::move(socket));
    } catch (const std::exception&) {
        stop();
        throw;
    }
    return true;
}

void UnixLink::start(Socket socket)
{
    ConnectionEvents& events = *this;
    mConnection = std::make_shared<Connection>(std::move(socket), events);
    {
        const std::lock_guard lock(mMutex);
        mIsUp = true;
    }
    mConnection->start();
    mThread = std::thread([this] { run(); });
}

/// The connection's thread. What it can't do, for want of memory most likely, costs the link and nothing else.
void UnixLink::run()
{
    try {
        const auto goesOn = asio::make_work_guard(*mContext); // while nothing is read
        mContext->run();
    } catch (const std::exception& error) {
        closed(*mConnection, error.what());
    }
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
        mCommands.clear();
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

void UnixLink::resume()
{
    if (mContext) {
        asio::post(*mContext, [this] { mConnection->resume(); });
    }
}

void UnixLink::control(const std::string& command, ControlAnswer answer)
{
    const std::lock_guard lock(mMutex);
    if (!mIsUp) {
        return;
    }
    const MessagePtr message = toMessage({++mCommandNumber, command});
    if (!message) {
        answer.set_value(R"({"ok": false, "error": "the command is too long"})");
        return;
    }
    mCommands.emplace(mCommandNumber, std::move(answer));
    post(*message);
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

void UnixLink::received(Connection& connection, MessagePtr message)
{
    if (!isCommand(*message)) {
        if (!mEvents.received(std::move(message))) {
            connection.pause();
        }
        return;
    }
    CommandMessage answer = commandFrom(*message);
    const std::lock_guard lock(mMutex);
    if (auto command = mCommands.extract(answer.number)) {
        command.mapped().set_value(std::move(answer.text));
    }
}

void UnixLink::closed(Connection& /*connection*/, const std::string& reason)
{
    zorLogD(kTag, "unix:%s: %s", mPath.c_str(), reason.c_str());
    {
        const std::lock_guard lock(mMutex);
        mIsUp = false;
        mCommands.clear();
    }
    mEvents.lost(kFirstRetry);
}

} // namespace host
