#include "server.h"

#include "host/wire/command_message.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>

namespace modem_sim {
namespace {

using Endpoint = asio::local::stream_protocol::endpoint;

constexpr std::chrono::milliseconds kAcceptRetry{100};
constexpr std::chrono::milliseconds kListenRetry{1000};

/// Whether a file stands in the way that a modem left behind which is no more. Throws when it is anything
/// else.
bool isLeftOver(asio::io_context& context, const std::string& path)
{
    const auto type = std::filesystem::symlink_status(path).type();
    if (type == std::filesystem::file_type::not_found) {
        return false;
    }
    if (type != std::filesystem::file_type::socket) {
        throw std::runtime_error(path + " exists and is no socket");
    }
    asio::error_code error;
    host::Socket socket(context, Endpoint().protocol());
    socket.non_blocking(true); // the queue of one that is stopped may be full
    socket.connect(Endpoint(path), error);
    if (!error || error == asio::error::no_buffer_space) {
        throw std::runtime_error("somebody listens at " + path + " already");
    }
    if (error != asio::error::connection_refused) {
        throw std::system_error(error);
    }
    return true;
}

} // namespace

Server::Server(asio::io_context& context, std::string path, const sim::Scenario& scenario,
               std::unique_ptr<sim::Trace> trace, Report report)
    : mContext(context),
      mPath(std::move(path)),
      mTrace(std::move(trace)),
      mReport(std::move(report)),
      mModem(scenario, *this)
{
    try {
        listen();
    } catch (const std::system_error& error) {
        throw std::runtime_error(fmt::format("can't listen at {}: {}", mPath, error.code().message()));
    }
    schedule();
}

Server::~Server()
{
    stopListening();
}

void Server::listen()
{
    if (isLeftOver(mContext, mPath)) {
        std::filesystem::remove(mPath);
    }
    mAcceptor = {mContext, Endpoint(mPath)};
    mSocketFile = fileAt(mPath);
    accept();
}

std::optional<Server::FileId> Server::fileAt(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? std::optional(FileId(status.st_dev, status.st_ino))
                                             : std::nullopt;
}

/// The file goes as well, so that nobody takes it for a modem that only has no time; but not one that another
/// modem has put in its place. As long as the socket is open no other file gets its number.
void Server::stopListening()
{
    if (mAcceptor.is_open()) {
        if (mSocketFile && fileAt(mPath) == mSocketFile) {
            std::error_code ignored;
            std::filesystem::remove(mPath, ignored);
        }
        mAcceptor.close();
    }
}

void Server::accept()
{
    mAcceptor.async_accept([this](asio::error_code error, host::Socket socket) {
        if (error == asio::error::operation_aborted) {
            return;
        }
        if (error) {
            // Out of descriptors, most likely: those who leave give theirs back.
            mReport("can't take a client: " + error.message());
            mListenTimer.expires_after(kAcceptRetry);
            mListenTimer.async_wait([this](asio::error_code aborted) {
                if (!aborted) {
                    accept();
                }
            });
            return;
        }
        host::ConnectionEvents& events = *this;
        const auto connection = std::make_shared<host::Connection>(std::move(socket), events);
        mClients.emplace(++mLastClient, connection);
        mReport(fmt::format("client {} connected", mLastClient));
        connection->start();
        accept();
    });
}

sim::ClientId Server::idOf(const host::Connection& connection) const
{
    const auto found =
        std::ranges::find(mClients, &connection, [](auto& client) { return client.second.get(); });
    return found == mClients.end() ? 0 : found->first;
}

void Server::received(host::Connection& connection, host::MessagePtr message)
{
    if (host::isCommand(*message)) {
        carryOut(connection, *message);
    } else {
        if (mTrace) {
            mTrace->note(sim::Direction::ToModem, *message);
        }
        mModem.receive(idOf(connection), *message, Clock::now());
    }
    schedule();
}

void Server::closed(host::Connection& connection, const std::string& reason)
{
    const sim::ClientId client = idOf(connection);
    mReport(fmt::format("client {} left: {}", client, reason));
    mClients.erase(client);
    mModem.forget(client);
    schedule();
}

void Server::carryOut(host::Connection& commander, const vorn_msg_t& message)
{
    const host::CommandMessage command = host::commandFrom(message);
    const sim::ClientId client = idOf(commander);
    mReport(fmt::format("client {} commands: {}", client, command.text));
    mCommander = &commander;
    std::string text = mModem.control(command.text, Clock::now());
    mCommander = nullptr;
    host::MessagePtr answer = host::toMessage({command.number, std::move(text)});
    if (!answer) {
        answer = host::toMessage({command.number, R"({"ok": false, "error": "the answer is too long"})"});
    }
    commander.send(*answer);
    if (!mClients.contains(client)) {
        commander.finish();
    }
}

void Server::answer(sim::ClientId client, sim::Message message)
{
    if (mTrace) {
        mTrace->note(sim::Direction::FromModem, *message);
    }
    if (const auto found = mClients.find(client); found != mClients.end()) {
        found->second->send(*message);
    }
}

void Server::indicate(sim::Message message)
{
    if (mTrace) {
        mTrace->note(sim::Direction::FromModem, *message);
    }
    for (const auto& [id, connection] : mClients) {
        connection->send(*message);
    }
}

/// Lets all clients go, those who ask for it themselves with an answer, and nobody in until the modem is
/// back.
void Server::disconnect(std::chrono::milliseconds downFor)
{
    mReport(fmt::format("links dropped for {} ms", downFor.count()));
    for (const auto& [id, connection] : std::exchange(mClients, {})) {
        if (connection.get() != mCommander) {
            connection->finish();
        }
    }
    stopListening();
    listenAfter(downFor);
}

void Server::listenAfter(std::chrono::milliseconds pause)
{
    mListenTimer.expires_after(pause);
    mListenTimer.async_wait([this](asio::error_code aborted) {
        if (aborted) {
            return;
        }
        try {
            listen();
            mReport("back again");
        } catch (const std::exception& error) {
            mReport(std::string("can't listen again: ") + error.what());
            listenAfter(kListenRetry);
        }
    });
}

/// Wakes the modem when it has something to do.
void Server::schedule()
{
    const auto deadline = mModem.nextDeadline();
    if (!deadline) {
        mModemTimer.cancel();
        return;
    }
    if (mModemTimer.expiry() == *deadline) {
        return;
    }
    mModemTimer.expires_at(*deadline);
    mModemTimer.async_wait([this](asio::error_code aborted) {
        if (!aborted) {
            mModem.advance(Clock::now());
            schedule();
        }
    });
}

} // namespace modem_sim
