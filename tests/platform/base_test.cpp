#include "cutils/properties.h"
#include "host/device.h"
#include "mindroid/exception.h"
#include "mindroid/parcel.h"
#include "support/device_root.h"
#include "zor/log.h"
#include "zor/property.h"

#include <gtest/gtest.h>

#include <optional>
#include <unistd.h>

namespace {

using mindroid::Parcel;
using mindroid::ParcelException;
using mindroid::sp;

TEST(Parcel, isReadAsItWasWritten)
{
    const sp<Parcel> parcel = Parcel::obtain();
    EXPECT_THROW(sp<Parcel>()->getInt(), mindroid::NullPointerException);
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
        EXPECT_EQ(parcel->getByte(), -i);
        EXPECT_THROW(parcel->getString(), ParcelException);
        EXPECT_EQ(parcel->getInt(), -i * 1000000);
        EXPECT_EQ(parcel->getString(), i == 50 ? longText : "");
    }
    EXPECT_THROW(parcel->getInt(), ParcelException) << "nothing left";
}

TEST(Log, raisesNoSignalWhenItsReaderLeaves)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    const int standardError = dup(STDERR_FILENO);
    dup2(ends[1], STDERR_FILENO);
    zorLogE("test", "nobody reads this");
    dup2(standardError, STDERR_FILENO);
}

TEST(Properties, comeFromTheDeviceRootUnlessSet)
{
    std::optional<test::DeviceRoot> root(std::in_place);
    root->write("default.prop", "# a.comment=1\n  a.key= v = w \nno line\n=x\na.long=" +
                                    std::string(100, 'l') + "\na.set=file\nlast=end");
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
    root.reset();
    char value[92] = "old";
    EXPECT_EQ(property_get("last", value, nullptr), 0);
    EXPECT_STREQ(value, "");
}

} // namespace
