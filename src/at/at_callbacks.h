/// Shared holders of the functions that an AT command ends in.
#pragma once

#include "mindroid/object.h"
#include "mindroid/parcel.h"
#include "radio_apis/results.h"

#include <exception>
#include <functional>
#include <new>
#include <utility>

/// Interprets the parsed answer of one command: fills the record and returns the result code. The parcel is
/// null when the answer had no text, the record when nobody waits for one.
class AtResponseCallback : public mindroid::Object {
public:
    using Function =
        std::function<RADIO_APIS_RESULT(const mindroid::sp<mindroid::Parcel>&, RadioApisResultType*)>;

    explicit AtResponseCallback(Function function) : mFunction(std::move(function)) {}

    /// The interpreter's verdict; RADIO_APIS_FAILURE when there is no interpreter, or when it throws, as
    /// those do that read what the answer does not hold. Want of memory says nothing of the answer and goes on to
    /// who asked.
    RADIO_APIS_RESULT interpret(const mindroid::sp<mindroid::Parcel>& answer,
                                RadioApisResultType* record) const
    {
        try {
            return mFunction ? mFunction(answer, record) : RADIO_APIS_FAILURE;
        } catch (const std::bad_alloc&) {
            throw;
        } catch (const std::exception&) {
            return RADIO_APIS_FAILURE;
        }
    }

private:
    Function mFunction;
};

/// The caller's request callback.
class RadioApiCallback : public mindroid::Object {
public:
    using Function = std::function<void(void*, RADIO_APIS_RESULT, RadioApisResultType*)>;

    explicit RadioApiCallback(Function function) : mFunction(std::move(function)) {}

    /// Does nothing when there is no function.
    void call(void* userData, RADIO_APIS_RESULT result, RadioApisResultType* record) const
    {
        if (mFunction) {
            mFunction(userData, result, record);
        }
    }

private:
    Function mFunction;
};
