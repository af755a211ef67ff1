/// The framework's exceptions.
#pragma once

#include "mindroid/object.h"

#include <exception>
#include <string>

namespace mindroid {

/// Base of all framework exceptions. It is also an object, so that it can be kept under a strong pointer.
class Exception : public Object, public std::exception {
public:
    explicit Exception(std::string message, sp<Exception> cause = nullptr);

    const char* what() const noexcept override;
    const std::string& getMessage() const { return mMessage; }
    const sp<Exception>& getCause() const { return mCause; } ///< null when there is none

private:
    std::string mMessage;
    sp<Exception> mCause;
};

/// The use of a null strong pointer.
class NullPointerException : public Exception {
public:
    using Exception::Exception;
};

/// A text that is not a number of the wanted kind.
class NumberFormatException : public Exception {
public:
    using Exception::Exception;
};

/// A read past the end of a parcel, or of another kind than what was written.
class ParcelException : public Exception {
public:
    using Exception::Exception;
};

} // namespace mindroid
