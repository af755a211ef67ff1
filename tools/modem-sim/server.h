/// The simulated modem behind a Unix socket.
#pragma once

#include "host/wire/connection.h"
#include "sim/modem.h"
#include "sim/trace.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <utility>

namespace modem_sim {

/// Serves any number of clients with one modem; all of it runs on the io_context's one thread. A client that
/// leaves takes nothing of the modem's state along.
class Server : private sim::Output, private host::ConnectionEvents {
public:
    /// Is told in plain words what happens.
    using Report = std::function<void(const std::string& what)>;

    /// Begins to listen. A socket file that nobody listens at any more is replaced. Throws std::runtime_error
    /// when the path can't be had. The trace may be null.
    Server(asio::io_context& context, std::string path, const sim::Scenario& scenario,
           std::unique_ptr<sim::Trace> trace, Report report);
    ~Server() override;
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

private:
    using Clock = std::chrono::steady_clock;
    using ConnectionPtr = std::shared_ptr<host::Connection>;

    void answer(sim::ClientId client, sim::Message message) override;
    void indicate(sim::Message message) override;
    void disconnect(std::chrono::milliseconds downFor) override;
    void received(host::Connection& connection, host::MessagePtr message) override;
    void closed(host::Connection& connection, const std::string& reason) override;

    /// A file's place on its disk.
    using FileId = std::pair<dev_t, ino_t>;

    static std::optional<FileId> fileAt(const std::string& path);
    void listen();
    void listenAfter(std::chrono::milliseconds pause);
    void stopListening();
    void accept();
    void carryOut(host::Connection& commander, const vorn_msg_t& message);
    void schedule();
    sim::ClientId idOf(const host::Connection& connection) const;

    asio::io_context& mContext;
    const std::string mPath;
    std::unique_ptr<sim::Trace> mTrace;
    Report mReport;
    asio::local::stream_protocol::acceptor mAcceptor{mContext};
    std::optional<FileId> mSocketFile;         ///< made by mAcceptor
    asio::steady_timer mModemTimer{mContext};  ///< for what the modem does on its own
    asio::steady_timer mListenTimer{mContext}; ///< until the modem can be reached again
    std::map<sim::ClientId, ConnectionPtr> mClients;
    sim::ClientId mLastClient = 0;
    host::Connection* mCommander = nullptr; ///< whose command is carried out now
    sim::Modem mModem;
};

} // namespace modem_sim
