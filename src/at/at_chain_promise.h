/// Several AT commands, one strictly after the other, with one callback at the end.
#pragma once

#include "at/at_callbacks.h"
#include "at/vorn_at_client.h"
#include "mindroid/exception.h"
#include "mindroid/promise.h"
#include "mindroid/string.h"

#include <new>
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

/// The same with the exception that `makeException` makes. Without the memory for one, the code is
/// RADIO_APIS_FAILURE and there is no record.
template <typename MakeException>
void endWithException(const mindroid::sp<RadioApiCallback>& cb, void* userData, MakeException makeException)
{
    mindroid::sp<mindroid::Exception> exception;
    try {
        exception = makeException();
    } catch (const std::bad_alloc&) {
        cb->call(userData, RADIO_APIS_FAILURE, nullptr);
        return;
    }
    processRadioException(cb, userData, exception);
}

/// One command of a chain.
struct CmdPair : mindroid::Object {
    CmdPair(const char* cmd, AtResponseCallback::Function fn, int pauseAfter);

    const mindroid::sp<mindroid::String> text; ///< with its line end
    const int delay;                           ///< milliseconds after its success; 0 or less is none
    const mindroid::sp<AtResponseCallback> interpreter;
};

/// Used once: built, started, and kept alive by what is under way until its last step or its exception
/// handler has run. The caller is called back exactly once: with the record of the last command, or with a
/// zeroed one and the code of the command that failed.
template <typename T>
class AtChainPromise : public mindroid::Object {
public:
    static constexpr int kNoDelay = -1;

    /// Adds a command, without line end. Only the last command's interpreter is given a record.
    void add(const char* cmd, AtResponseCallback::Function fn, int delay = kNoDelay)
    {
        mCommands.push_back(mindroid::make<CmdPair>(cmd, std::move(fn), delay));
    }

    /// Sends the first command and returns. The callback never runs inside this call; an empty chain succeeds
    /// on the timer thread. Throws only where nothing was sent, and then never calls back.
    void start(const mindroid::sp<VornAtClient>& client, void* userData, RadioApiCallback::Function cb)
    {
        mClient = client;
        mUserData = userData;
        mCallback = mindroid::make<RadioApiCallback>(std::move(cb));
        const mindroid::sp<AtChainPromise> self(this);
        if (mCommands.empty()) {
            mindroid::runAfter(kAtOnce, [self] {
                ZeroedResult record;
                self->mCallback->call(self->mUserData, RADIO_APIS_SUCCESS, &record);
            });
        } else if (!runStep(0)) {
            // Not from here: the caller is still inside the request function.
            mindroid::runAfter(kAtOnce, [self] { self->fail(RADIO_APIS_FAILURE); });
        }
    }

private:
    using Promise = mindroid::Promise<T>;

    static constexpr std::chrono::milliseconds kAtOnce{0};

    /// Sends one command; false when it was refused. The last one's answer goes from the transport to the caller,
    /// with the record and whatever it says; every other one's decides whether the chain goes on.
    bool runStep(size_t index)
    {
        const CmdPair& pair = *mCommands[index];
        const char* cmd = pair.text->c_str();
        if (index + 1 == mCommands.size()) {
            return mClient->sendAtCommand(cmd, mUserData, mCallback, pair.interpreter) == 0;
        }
        const mindroid::sp<AtChainPromise> self(this);
        const auto interpreter = mindroid::make<AtResponseCallback>(
            [self, index](const mindroid::sp<mindroid::Parcel>& answer, RadioApisResultType*) {
                return self->onAnswer(index, answer);
            });
        return mClient->sendAtCommand(cmd, mUserData, interpreter) == 0;
    }

    RADIO_APIS_RESULT onAnswer(size_t index, const mindroid::sp<mindroid::Parcel>& answer)
    {
        RADIO_APIS_RESULT result = RADIO_APIS_FAILURE;
        attempt([&] {
            result = mCommands[index]->interpreter->interpret(answer, nullptr);
            return true;
        });
        if (result == RADIO_APIS_SUCCESS) {
            goOnAfter(index);
        } else {
            fail(result);
        }
        return result;
    }

    /// Each step starts when the one before it is done, out of its answer or its pause: what a chain needs of the
    /// stack does not grow with its length.
    void goOnAfter(size_t index)
    {
        if (mCommands[index]->delay > 0) {
            failUnless(attempt([&] { return startPause(index); }));
        } else {
            failUnless(attempt([&] { return runStep(index + 1); }));
        }
    }

    bool startPause(size_t index)
    {
        const mindroid::sp<AtChainPromise> self(this);
        const auto step = mindroid::make<Promise>();
        step->delay(std::chrono::milliseconds(mCommands[index]->delay))
            ->then([self, index](const T&, const mindroid::sp<mindroid::Exception>& exception) {
                self->failUnless(!exception && attempt([&] { return self->runStep(index + 1); }));
            });
        step->complete(T());
        return true;
    }

    void failUnless(bool done)
    {
        if (!done) {
            fail(RADIO_APIS_FAILURE);
        }
    }

    /// What `operation` returns; false without the memory for it.
    template <typename Operation>
    static bool attempt(Operation operation)
    {
        try {
            return operation();
        } catch (const std::exception&) {
            return false;
        }
    }

    /// Tells the caller how the chain ended; the last that a chain does.
    void fail(int result)
    {
        endWithException(mCallback, mUserData, [=] {
            return mindroid::make<mindroid::CompletionException>(mindroid::make<RadioException>(result));
        });
    }

    std::vector<mindroid::sp<CmdPair>> mCommands;
    mindroid::sp<VornAtClient> mClient;
    void* mUserData = nullptr;
    mindroid::sp<RadioApiCallback> mCallback;
};

using AtChain = AtChainPromise<mindroid::sp<mindroid::Void>>;
