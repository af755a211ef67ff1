/// The simulated modem in a process of its own, behind a Unix socket.
#pragma once

#include "host/wire/command_message.h"
#include "host/wire/connection.h"
#include "link.h"

#include <chrono>
#include <map>
#include <mutex>
#include <thread>

namespace host {

struct UnixLinks;

/// A thread of its own, from open() to close(), reads and writes the socket: a modem that takes its time holds
/// up nobody.
class UnixLink : public Link, private ConnectionEvents {
public:
    UnixLink(std::string path, LinkEvents& events);
    ~UnixLink() override;
    UnixLink(const UnixLink&) = delete;
    UnixLink& operator=(const UnixLink&) = delete;

    void open(std::chrono::milliseconds patience) override;
    void close() override;
    void send(const vorn_msg_t& request) override;
    void resume() override;
    void control(const std::string& command, ControlAnswer answer) override;

private:
    void received(Connection& connection, MessagePtr message) override;
    void closed(Connection& connection, const std::string& reason) override;
    bool tryToOpen();
    void start(Socket socket);
    void stop();
    void run();
    void post(const vorn_msg_t& message);
    void sendPosted();

    friend struct UnixLinks;

    const std::string mPath;
    LinkEvents& mEvents;
    UnixLinks& mAll;

    std::unique_ptr<asio::io_context> mContext; ///< a new one each time, without what an earlier one left
    std::shared_ptr<Connection> mConnection;
    std::thread mThread;

    std::mutex mMutex;            ///< guards the rest
    std::vector<uint8_t> mPosted; ///< frames for the connection's thread
    bool mIsUp = false;
    uint32_t mCommandNumber = 0;                 ///< of the last command
    std::map<uint32_t, ControlAnswer> mCommands; ///< not answered yet, by number
};

} // namespace host
