#include "host/wire/connection.h"

#include "zor/log.h"

#include <cerrno>
#include <sys/socket.h>
#include <utility>

namespace host {
namespace {

constexpr const char* kTag = "vorn";

} // namespace

bool connectNow(Socket& socket, const std::string& path)
{
    const Socket::endpoint_type endpoint(path);
    socket.native_non_blocking(true);
    // Not by Asio, which goes on to wait.
    if (::connect(socket.native_handle(), endpoint.data(), static_cast<socklen_t>(endpoint.size())) == 0) {
        return true;
    }
    if (errno == EAGAIN) {
        return false;
    }
    throw asio::system_error(errno, asio::error::get_system_category());
}

void Connection::send(const vorn_msg_t& message)
{
    if (mState == State::Open) {
        Message::of(message).encode(mUnsent);
        write();
    }
}

void Connection::send(std::span<const uint8_t> frames)
{
    if (mState == State::Open) {
        mUnsent.insert(mUnsent.end(), frames.begin(), frames.end());
        write();
    }
}

void Connection::close()
{
    mState = State::Closed;
    asio::error_code ignored;
    mSocket.close(ignored);
}

void Connection::finish()
{
    if (mState == State::Open && !mSending.empty()) {
        mState = State::Finishing;
        asio::error_code ignored;
        mSocket.shutdown(Socket::shutdown_receive, ignored);
    } else {
        close();
    }
}

void Connection::read()
{
    const std::span<uint8_t> room = mIncoming.room();
    mSocket.async_read_some(asio::buffer(room.data(), room.size()),
                            [self = shared_from_this()](asio::error_code error, size_t size) {
                                if (self->mState != State::Open) {
                                    return;
                                }
                                if (error) {
                                    self->end(error.message());
                                    return;
                                }
                                self->mIncoming.filled(size);
                                self->handOut();
                            });
}

void Connection::resume()
{
    if (std::exchange(mIsPaused, false)) {
        handOut();
    }
}

/// Whoever is told may find no memory. What came is lost then, and the peer must not wait for an answer.
void Connection::handOut()
{
    try {
        handOutFrames();
    } catch (const std::exception& error) {
        end(error.what());
    }
}

void Connection::handOutFrames()
{
    while (mState == State::Open && !mIsPaused) {
        const std::optional<std::span<const uint8_t>> frame = mIncoming.next();
        if (!frame) {
            break;
        }
        if (MessagePtr message = decodeFrame(*frame)) {
            mEvents.received(*this, std::move(message));
        } else {
            zorLogW(kTag, "dropped a frame of %zu bytes that holds no message", frame->size());
        }
    }
    if (mState != State::Open || mIsPaused) {
        return;
    }
    if (mIncoming.isBroken()) {
        end("what came is no frame");
    } else {
        read();
    }
}

void Connection::write()
{
    if (mUnsent.size() > kMostUnsent) {
        end("the other end does not read");
        return;
    }
    if (!mSending.empty()) {
        return;
    }
    mSending.swap(mUnsent);
    asio::async_write(mSocket, asio::buffer(mSending),
                      [self = shared_from_this()](asio::error_code error, size_t /*size*/) {
                          self->mSending.clear();
                          if (!self->mSocket.is_open()) {
                              return;
                          }
                          if (error) {
                              self->end(error.message());
                          } else if (!self->mUnsent.empty()) {
                              self->write();
                          } else if (self->mState == State::Finishing) {
                              self->close();
                          }
                      });
}

/// Tells of an end that nobody here asked for; later, since the caller may be using what it would then remove.
void Connection::end(const std::string& reason)
{
    const bool isNews = mState == State::Open;
    close();
    if (!isNews) {
        return;
    }
    mState = State::Ended;
    asio::post(mSocket.get_executor(), [self = shared_from_this(), reason] {
        if (self->mState == State::Ended) {
            self->mEvents.closed(*self, reason);
        }
    });
}

} // namespace host
