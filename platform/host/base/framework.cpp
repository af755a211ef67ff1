#include "mindroid/exception.h"
#include "mindroid/integer.h"
#include "mindroid/object.h"
#include "mindroid/string.h"

#include <functional>

namespace mindroid {

void throwNullPointerException()
{
    throw NullPointerException("null pointer");
}

bool Object::equals(const sp<Object>& other) const
{
    return other.get() == this;
}

size_t Object::hashCode() const
{
    return std::hash<const Object*>()(this);
}

Exception::Exception(std::string message, sp<Exception> cause)
    : mMessage(std::move(message)), mCause(std::move(cause))
{}

const char* Exception::what() const noexcept
{
    return mMessage.c_str();
}

bool String::equals(const sp<Object>& other) const
{
    const auto* text = dynamic_cast<const String*>(other.get());
    return text != nullptr && text->mText == mText;
}

size_t String::hashCode() const
{
    return std::hash<std::string>()(mText);
}

int32_t Integer::parseInt(std::string_view text)
{
    const std::optional<int32_t> value = tryParse(text);
    if (!value) {
        throw NumberFormatException("not a decimal integer: " + std::string(text));
    }
    return *value;
}

} // namespace mindroid
