/// Values that come later, and what is to happen then.
#pragma once

#include "mindroid/exception.h"
#include "mindroid/object.h"

#include <chrono>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace mindroid {

/// The value of promises that promise nothing but their completion.
class Void : public Object {};

/// Wraps what made a step of a chain fail.
class CompletionException : public Exception {
public:
    explicit CompletionException(const sp<Exception>& cause);
};

/// Runs a function once after a pause, on the one timer thread of the process; pauses of equal ends run in
/// the order of their starting. Never from inside the call, not even for a pause of 0. Throws where it never runs the
/// function, for want of memory or of the thread.
void runAfter(std::chrono::milliseconds pause, std::function<void()> function);

/// What a promise gets whose step threw instead of making one.
const sp<Exception>& failureOfStep();

/// What other code sees of a promise: something that calls back when it is done.
template <typename T>
class Thenable : public Object {
public:
    using Callback = std::function<void(const T& value, const sp<Exception>& exception)>;

    /// Calls back once: at once when this is completed already, else on the thread that completes it.
    /// `exception` is null after normal completion.
    virtual void then(Callback callback) = 0;
};

/// Completed once, with a value or an exception; later completions change nothing. All operations may be used
/// from any thread. Callbacks run on the completing thread, without a lock, in the order of registration.
template <typename T>
class Promise : public Thenable<T> {
public:
    using Callback = typename Thenable<T>::Callback;

    void complete(T value) { finish(std::move(value), nullptr); }

    /// Throws NullPointerException for a null exception.
    void completeExceptionally(sp<Exception> exception)
    {
        if (!exception) {
            throw NullPointerException("Exception must not be null");
        }
        finish(T(), std::move(exception));
    }

    void then(Callback callback) override
    {
        {
            const std::lock_guard lock(mMutex);
            if (!mDone) {
                mCallbacks.push_back(std::move(callback));
                return;
            }
        }
        callback(mValue, mException);
    }

    /// After normal completion runs `next`, whose promise's outcome becomes the returned promise's. An
    /// exception is passed on without running anything; what `next` throws becomes one.
    sp<Promise> compose(std::function<sp<Thenable<T>>(const T&)> next)
    {
        auto result = make<Promise>();
        then([next = std::move(next), result](const T& value, const sp<Exception>& exception) {
            if (exception) {
                result->completeExceptionally(exception);
                return;
            }
            try {
                next(value)->then([result](const T& composed, const sp<Exception>& failure) {
                    result->finish(composed, failure);
                });
            } catch (const std::exception&) {
                result->completeExceptionally(failureOfStep());
            }
        });
        return result;
    }

    /// Completes like this promise, after normal completion `pause` later on the timer thread.
    sp<Promise> delay(std::chrono::milliseconds pause)
    {
        return compose([pause](const T& value) {
            auto delayed = make<Promise>();
            runAfter(pause, [delayed, value] { delayed->complete(value); });
            return delayed;
        });
    }

    /// Handles an exception of this promise or of those that it was composed of.
    void catchException(std::function<void(const sp<Exception>&)> handler)
    {
        then([handler = std::move(handler)](const T&, const sp<Exception>& exception) {
            if (exception) {
                handler(exception);
            }
        });
    }

private:
    void finish(T value, sp<Exception> exception)
    {
        std::vector<Callback> callbacks;
        {
            const std::lock_guard lock(mMutex);
            if (mDone) {
                return;
            }
            mDone = true;
            mValue = std::move(value);
            mException = std::move(exception);
            callbacks.swap(mCallbacks);
        }
        for (const Callback& callback : callbacks) {
            callback(mValue, mException);
        }
    }

    std::mutex mMutex;
    bool mDone = false;
    T mValue{};
    sp<Exception> mException;
    std::vector<Callback> mCallbacks;
};

} // namespace mindroid
