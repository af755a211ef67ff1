/// One end of a socket between a program and the simulated modem's process: messages as frames, both ways.
#pragma once

#include "host/wire/frame_stream.h"

#include <asio.hpp>

#include <memory>
#include <string>
#include <vector>

namespace host {

using Socket = asio::local::stream_protocol::socket;

/// Connects without waiting. False when the listener has no room for another connection now; throws
/// asio::system_error when there is no listener.
bool connectNow(Socket& socket, const std::string& path);

class Connection;

/// What a connection has to tell, on the thread that runs its io_context.
class ConnectionEvents {
public:
    virtual ~ConnectionEvents() = default;

    virtual void received(Connection& connection, MessagePtr message) = 0;

    /// The peer is gone, or was not one to talk to. Nothing more comes from this connection.
    virtual void closed(Connection& connection, const std::string& reason) = 0;
};

/// For the one thread that runs the socket's io_context. A frame that holds no message is dropped with a line
/// in the log; bytes of which no frame can begin, or a peer that takes nothing off its end, end the
/// connection.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(Socket socket, ConnectionEvents& events) : mSocket(std::move(socket)), mEvents(events) {}

    void start() { handOut(); }

    /// From within received() only: nothing more is read or told until resume().
    void pause() { mIsPaused = true; }
    void resume();

    void send(const vorn_msg_t& message);
    void send(std::span<const uint8_t> frames);

    /// Ends the connection at once; it tells nothing any more.
    void close();

    /// Ends it when what was sent is on its way; it tells nothing any more.
    void finish();

private:
    enum class State {
        Open,
        Finishing,
        Ended, ///< not told yet
        Closed,
    };

    void read();
    void handOut();
    void handOutFrames();
    void write();
    void end(const std::string& reason);

    static constexpr size_t kMostUnsent = size_t{64} << 20;

    Socket mSocket;
    ConnectionEvents& mEvents;
    State mState = State::Open;
    bool mIsPaused = false;
    FrameStream mIncoming;
    std::vector<uint8_t> mUnsent;  ///< frames behind those being written
    std::vector<uint8_t> mSending; ///< empty when none are being written
};

} // namespace host
