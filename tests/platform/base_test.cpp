#include "android/log.h"
#include "cutils/properties.h"
#include "host/device.h"
#include "host/log_sink.h"
#include "mindroid/exception.h"
#include "mindroid/integer.h"
#include "mindroid/log.h"
#include "mindroid/parcel.h"
#include "mindroid/string.h"
#include "zor/log.h"
#include "zor/property.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

using mindroid::Integer;
using mindroid::Parcel;
using mindroid::ParcelException;
using mindroid::sp;

TEST(Integer, takesWholeDecimalNumbersOnly)
{
    const std::pair<const char*, std::optional<int32_t>> rows[] = {
        {"0", 0},
        {"+7", 7},
        {"-5", -5},
        {"007", 7},
        {"2147483647", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"2147483648", std::nullopt},
        {"99999999999999999999", std::nullopt},
        {"", std::nullopt},
        {"+", std::nullopt},
        {"-", std::nullopt},
        {"+-1", std::nullopt},
        {"--1", std::nullopt},
        {" 2", std::nullopt},
        {"2 ", std::nullopt},
        {"0x1", std::nullopt},
        {"1.0", std::nullopt},
    };
    for (const auto& [text, value] : rows) {
        EXPECT_EQ(Integer::tryParse(text), value) << text;
        if (value) {
            EXPECT_EQ(Integer::parseInt(text), *value);
        } else {
            EXPECT_THROW(Integer::parseInt(text), mindroid::NumberFormatException) << text;
        }
    }
}

TEST(Parcel, isReadAsItWasWritten)
{
    const sp<Parcel> parcel = Parcel::obtain();
    EXPECT_THROW(parcel->getInt(), ParcelException);
    const std::string longText(1000, 'x');
    for (int32_t i = 0; i < 100; ++i) {
        parcel->putBoolean(i % 2 == 0);
        parcel->putByte(static_cast<int8_t>(-i));
        parcel->putInt(-i * 1000000);
        parcel->putString(i == 50 ? longText : "");
    }
    parcel->rewind();
    for (int32_t i = 0; i < 100; ++i) {
        EXPECT_THROW(parcel->getInt(), ParcelException);
        EXPECT_EQ(parcel->getBoolean(), i % 2 == 0);
        EXPECT_THROW(parcel->getBoolean(), ParcelException);
        EXPECT_EQ(parcel->getByte(), -i);
        EXPECT_THROW(parcel->getString(), ParcelException);
        EXPECT_EQ(parcel->getInt(), -i * 1000000);
        EXPECT_THROW(parcel->getByte(), ParcelException);
        EXPECT_EQ(parcel->getString(), i == 50 ? longText : "");
    }
    EXPECT_TRUE(parcel->atEnd());
    EXPECT_THROW(parcel->getString(), ParcelException);
}

TEST(Framework, nullPointersThrowAndStringsCompareByText)
{
    const sp<mindroid::String> none;
    EXPECT_THROW(none->length(), mindroid::NullPointerException);
    const auto text = mindroid::String::valueOf("text");
    EXPECT_TRUE(text->equals(mindroid::String::valueOf("text")));
    EXPECT_FALSE(text->equals(sp<mindroid::Object>(Parcel::obtain())));
    EXPECT_EQ(text->hashCode(), mindroid::String::valueOf("text")->hashCode());
    const mindroid::Exception outer("outer", mindroid::make<mindroid::Exception>("inner"));
    EXPECT_STREQ(outer.getCause()->what(), "inner");
}

void logOneOfEach()
{
    zorLogD("Tag", "debug %d", 1);
    __android_log_print(ANDROID_LOG_DEBUG, "Tag", "android debug");
    zorLogW("Tag", "two\r\nlines");
    mindroid::Log::e("Tag", "%s", std::string(1000, 'x').c_str());
    __android_log_print(ANDROID_LOG_ERROR, nullptr, "no tag");
}

TEST(Log, levelOfTheEnvironmentDecides)
{
    const std::string debug = "D Tag: debug 1\nD Tag: android debug\n";
    const std::string warning = "W Tag: two  lines\n";
    const std::string error = "E Tag: " + std::string(1000, 'x') + "\nE no tag\n";
    const std::pair<const char*, std::string> rows[] = {
        {"debug", debug + warning + error}, {"warn", warning + error}, {"error", error}, {"off", ""}};
    for (const auto& [level, lines] : rows) {
        // The level is read once in a process, so each row needs one.
        const auto logAndExit = [level = level] {
            setenv("RADIO_LOG", level, 1);
            host::setLogSink(nullptr);
            logOneOfEach();
            _Exit(0);
        };
        EXPECT_EXIT(logAndExit(), testing::ExitedWithCode(0), lines.empty() ? "^$" : "^" + lines + "$")
            << level;
    }
}

TEST(Log, sinkGetsEveryLineUntilItIsTakenAway)
{
    std::vector<std::string> lines;
    host::setLogSink([&](const host::LogLine& line) {
        lines.push_back(std::to_string(line.priority) + line.tag + ":" + line.text);
    });
    logOneOfEach();
    host::setLogSink(nullptr);
    logOneOfEach();
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[0], "3Tag:debug 1");
    EXPECT_EQ(lines[2], "5Tag:two\r\nlines");
    EXPECT_EQ(lines[4], "6:no tag");
}

TEST(Properties, comeFromTheDeviceRootUnlessSet)
{
    const std::filesystem::path root =
        std::filesystem::temp_directory_path() / ("root" + std::to_string(getpid()));
    std::filesystem::create_directories(root);
    std::ofstream(root / "default.prop")
        << "# a.comment=1\n  a.key= v = w \nno line\n=x\na.long=" << std::string(100, 'l')
        << "\na.set=file\nlast=end";
    setenv("RADIO_DEVICE_ROOT", root.c_str(), 1);
    host::setProperty("a.set", "process");
    const std::pair<const char*, std::string> rows[] = {
        {"a.key", " v = w "},   {"# a.comment", "default"},
        {"no line", "default"}, {"a.long", std::string(91, 'l')},
        {"a.set", "process"},   {"last", "end"}};
    for (const auto& [key, expected] : rows) {
        char value[92];
        EXPECT_EQ(zor_property_get(key, value, "default"), static_cast<int>(expected.size())) << key;
        EXPECT_EQ(value, expected) << key;
    }
    char value[92] = "old";
    EXPECT_EQ(property_get("unknown", value, nullptr), 0);
    EXPECT_STREQ(value, "");
    std::filesystem::remove_all(root);
    unsetenv("RADIO_DEVICE_ROOT");
    EXPECT_EQ(property_get("last", value, "gone"), 4);
}

} // namespace
