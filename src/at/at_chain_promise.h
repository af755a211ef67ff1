/// Several AT commands, one strictly after the other, with one callback at the end.
#pragma once

#include "at/at_callbacks.h"
#include "at/vorn_at_client.h"
#include "channel/vorn_client.h"
#include "mindroid/exception.h"
#include "mindroid/promise.h"
#include "mindroid/string.h"

#include <vector>

/// A failed step, with the result code for the caller.
class RadioException : public mindroid::Exception {
public:
    explicit RadioException(int result);

    RADIO_APIS_RESULT getResult() const { return mResult; }

private:
    RADIO_APIS_RESULT mResult;
};

/// Where the exceptions of a chain end: calls `cb` with a zeroed record and the code of the RadioException
/// that caused `e`, RADIO_APIS_FAILURE when something else did.
void processRadioException(const mindroid::sp<RadioApiCallback>& cb, void* userData,
                           const mindroid::sp<mindroid::Exception>& e);

/// The same for what a step threw. With the name of a method it is logged by that first, and keeps its message; without
/// one all but a RadioException are a failure like any other. Without the memory to tell of it, the code is
/// RADIO_APIS_FAILURE and there is no record.
void endWithException(const mindroid::sp<RadioApiCallback>& cb, void* userData, const char* method,
                      const std::exception& exception);

/// One command of a chain.
struct CmdPair : mindroid::Object {
    CmdPair(const char* cmd, AtResponseCallback::Function fn, int pauseAfter, int moreSends);

    const mindroid::sp<mindroid::String> text; ///< with its line end, if it has one
    const AtResponseCallback::Function interpreter;
    const int delay;   ///< milliseconds from its answer to what follows; 0 or less is none
    const int repeats; ///< how often it is sent again while its interpreter returns a failure
};

/// Used once: built, started, and kept alive by what is under way until its last step or its exception handler has run.
/// The caller is called back exactly once: with the record of the last command, or with a zeroed one and the code of
/// the command that failed.
template <typename T>
class AtChainPromise : public mindroid::Object {
public:
    static constexpr int kNoDelay = -1;

    /// @param method  the request's name, when what makes the chain fail is logged by it; such a chain ends with a
    ///                zeroed record, also when it succeeds
    explicit AtChainPromise(const char* method = nullptr) : mMethod(method) {}

    /// Adds a command, without line end. Only the last command's interpreter is given a record.
    void add(const char* cmd, AtResponseCallback::Function fn, int delay = kNoDelay)
    {
        addText((std::string(cmd) + "\r\n").c_str(), std::move(fn), delay);
    }

    /// Adds a command as it stands. While its interpreter returns a failure it is sent again after the delay, up to
    /// `repeats` times; what the interpreter throws ends the chain.
    void addText(const char* text, AtResponseCallback::Function fn, int delay = kNoDelay, int repeats = 0)
    {
        mCommands.push_back(mindroid::make<CmdPair>(text, std::move(fn), delay, repeats));
    }

    /// Sends the first command and returns. The callback never runs inside this call; an empty chain succeeds
    /// on the timer thread. Throws only where nothing was sent, and then never calls back.
    void start(const mindroid::sp<VornAtClient>& client, void* userData, RadioApiCallback::Function cb)
    {
        mClient = client;
        mUserData = userData;
        mCallback = mindroid::make<RadioApiCallback>(std::move(cb));
        if (mCommands.empty() || !send(0, 0)) {
            // Not from here: the caller is still inside the request function.
            mindroid::runAfter(std::chrono::milliseconds(0), [self = mindroid::sp(this)] {
                self->run([&] {
                    if (!self->mCommands.empty()) {
                        throw RadioException(RADIO_APIS_FAILURE);
                    }
                    return true;
                });
            });
        }
    }

private:
    using Promise = mindroid::Promise<T>;

    /// Runs a part of the chain, which returns whether the chain is done. What it throws ends the chain.
    template <typename Part>
    void run(Part part)
    {
        try {
            if (!part()) {
                return;
            }
        } catch (const std::exception& exception) {
            endWithException(mCallback, mUserData, mMethod, exception);
            return;
        }
        ZeroedResult record;
        mCallback->call(mUserData, RADIO_APIS_SUCCESS, &record);
    }

    /// Sends one command; false when it was refused. The answer to the last one of a chain without a method goes from
    /// the transport to the caller, with the record and whatever it says; every other one's decides how the chain goes
    /// on.
    bool send(size_t index, int repeat)
    {
        const CmdPair& command = *mCommands[index];
        const char* text = command.text->c_str();
        if (mMethod == nullptr && index + 1 == mCommands.size()) {
            const auto interpreter = mindroid::make<AtResponseCallback>(command.interpreter);
            return mClient->sendAtCommand(text, mUserData, mCallback, interpreter) == 0;
        }
        const auto interpreter = mindroid::make<AtResponseCallback>(
            [self = mindroid::sp(this), index, repeat](const mindroid::sp<mindroid::Parcel>& answer,
                                                       RadioApisResultType*) {
                self->run([&] { return self->onAnswer(index, repeat, answer); });
                return RADIO_APIS_SUCCESS;
            });
        return mClient->sendAtCommand(text, mUserData, interpreter) == 0;
    }

    bool onAnswer(size_t index, int repeat, const mindroid::sp<mindroid::Parcel>& answer)
    {
        const CmdPair& command = *mCommands[index];
        const RADIO_APIS_RESULT result = command.interpreter(answer, nullptr);
        if (result == RADIO_APIS_SUCCESS) {
            return goOnAfter(command.delay, index + 1, 0);
        }
        if (repeat == command.repeats) {
            throw RadioException(result);
        }
        return goOnAfter(command.delay, index, repeat + 1);
    }

    /// Each step starts when the one before it is done, out of its answer or its pause: what a chain needs of the
    /// stack does not grow with its length.
    bool goOnAfter(int delay, size_t index, int repeat)
    {
        if (index == mCommands.size()) {
            return true;
        }
        if (delay <= 0) {
            return goOn(index, repeat);
        }
        const auto pause = mindroid::make<Promise>();
        pause->delay(std::chrono::milliseconds(delay))
            ->then([self = mindroid::sp(this), index,
                    repeat](const T&, const mindroid::sp<mindroid::Exception>& exception) {
                self->run([&] {
                    if (exception) {
                        throw mindroid::Exception(*exception);
                    }
                    return self->goOn(index, repeat);
                });
            });
        pause->complete(T());
        return false;
    }

    bool goOn(size_t index, int repeat)
    {
        if (!send(index, repeat)) {
            throw RadioException(RADIO_APIS_FAILURE);
        }
        return false;
    }

    std::vector<mindroid::sp<CmdPair>> mCommands;
    mindroid::sp<VornAtClient> mClient;
    void* mUserData = nullptr;
    mindroid::sp<RadioApiCallback> mCallback;
    const char* const mMethod;
};

using AtChain = AtChainPromise<mindroid::sp<mindroid::Void>>;
