/// The text of an AT command.
#pragma once

#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>

/// A command formatted into a buffer of fixed size, as the modem's commands have one; a longer text is cut.
template <size_t size>
class AtText {
public:
    explicit AtText(const char* format, ...) __attribute__((format(printf, 2, 3)))
    {
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(mText.data(), size, format, arguments);
        va_end(arguments);
    }

    operator const char*() const
    {
        return mText.data();
    } // NOLINT: it stands for the text wherever one is due

private:
    std::array<char, size> mText{};
};
