/// Several AT commands, one strictly after the other, with one callback at the end.
#pragma once

#include "at/at_callbacks.h"
#include "at/vorn_at_client.h"
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
    /// on the timer thread.
    void start(const mindroid::sp<VornAtClient>& client, void* userData, RadioApiCallback::Function cb)
    {
        mClient = client;
        mUserData = userData;
        mCallback = mindroid::make<RadioApiCallback>(std::move(cb));
        const mindroid::sp<AtChainPromise> self(this);
        const auto head = mindroid::make<Promise>();
        auto tail = head;
        for (size_t i = 0; i < mCommands.size(); ++i) {
            tail = tail->compose([self, i](const T&) { return self->runStep(i); });
            if (mCommands[i]->delay > 0) {
                tail = tail->delay(std::chrono::milliseconds(mCommands[i]->delay));
            }
        }
        tail->catchException([self](const mindroid::sp<mindroid::Exception>& exception) {
            if (!self->mLastIsUnderWay) {
                processRadioException(self->mCallback, self->mUserData, exception);
            }
        });
        if (mCommands.empty()) {
            mindroid::runAfter(std::chrono::milliseconds(0), [self] {
                ZeroedResult record;
                self->mCallback->call(self->mUserData, RADIO_APIS_SUCCESS, &record);
            });
        }
        head->complete(T());
    }

private:
    using Promise = mindroid::Promise<T>;

    static void fail(const mindroid::sp<Promise>& step, int result)
    {
        step->completeExceptionally(
            mindroid::make<mindroid::CompletionException>(mindroid::make<RadioException>(result)));
    }

    /// Sends one command; the promise tells what its interpreter says.
    mindroid::sp<mindroid::Thenable<T>> runStep(size_t index)
    {
        const CmdPair& pair = *mCommands[index];
        const auto step = mindroid::make<Promise>();
        const auto interpreter = mindroid::make<AtResponseCallback>(
            [step, own = pair.interpreter](const mindroid::sp<mindroid::Parcel>& answer,
                                           RadioApisResultType* record) {
                const RADIO_APIS_RESULT result = own->interpret(answer, record);
                if (result == RADIO_APIS_SUCCESS) {
                    step->complete(T());
                } else {
                    fail(step, result);
                }
                return result;
            });
        if (send(index, pair.text->c_str(), interpreter) != 0) {
            // Not from here: the caller may still be inside the request function.
            mindroid::runAfter(std::chrono::milliseconds(0), [step] { fail(step, RADIO_APIS_FAILURE); });
        }
        return step;
    }

    /// Once the last command is under way the transport calls the caller back, with the record, whatever the
    /// answer; then the exception of its step is nobody's business any more.
    int send(size_t index, const char* cmd, const mindroid::sp<AtResponseCallback>& interpreter)
    {
        if (index + 1 < mCommands.size()) {
            return mClient->sendAtCommand(cmd, mUserData, interpreter);
        }
        mLastIsUnderWay = true;
        const int refused = mClient->sendAtCommand(cmd, mUserData, mCallback, interpreter);
        if (refused != 0) {
            mLastIsUnderWay = false;
        }
        return refused;
    }

    std::vector<mindroid::sp<CmdPair>> mCommands;
    mindroid::sp<VornAtClient> mClient;
    void* mUserData = nullptr;
    mindroid::sp<RadioApiCallback> mCallback;
    bool mLastIsUnderWay = false; ///< only the thread of the last step changes it, before its answer can come
};

using AtChain = AtChainPromise<mindroid::sp<mindroid::Void>>;
