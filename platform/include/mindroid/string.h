/// The framework's immutable string.
#pragma once

#include "mindroid/object.h"

#include <string>
#include <string_view>

namespace mindroid {

class String : public Object {
public:
    explicit String(std::string_view text) : mText(text) {}

    static sp<String> valueOf(std::string_view text) { return make<String>(text); }

    const char* c_str() const { return mText.c_str(); }
    size_t length() const { return mText.size(); }
    std::string_view view() const { return mText; }

    bool equals(const sp<Object>& other) const override;
    size_t hashCode() const override;

private:
    const std::string mText;
};

} // namespace mindroid
