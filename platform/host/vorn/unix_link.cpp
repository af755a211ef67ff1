#include "unix_link.h"

#include "zor/log.h"

namespace host {
namespace {

constexpr const char* kTag = "vorn";

constexpr std::chrono::milliseconds kFirstRetry{50};
constexpr std::chrono::seconds kLongestCommand{10};

} // namespace

void UnixLink::open()
{
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
    if (!mContext) {
        return;
    }
    mContext->stop();
    if (mThread.joinable()) {
        mThread.join();
    }
    mConnection.reset();
    mContext.reset();
    const std::lock_guard lock(mMutex);
    mPosted.clear();
    mIsUp = false;
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
