/// The library as a caller sees it, for one test.
#pragma once

#include "api/registry.h"
#include "kst/libkst.h"
#include "radio_apis/radio_apis.h"
#include "support/device_root.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace test {

inline constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;

/// A device that supports the library. Whatever a test initialised on it, on whichever thread, ends with it.
struct Device {
    DeviceRoot root;

    Device() { setSupport("1"); }
    ~Device()
    {
        // The status library, when it was opened, reports to the channel's client.
        if (void* library = dlopen("libkst.so", RTLD_LAZY | RTLD_NOLOAD)) {
            reinterpret_cast<decltype(&libkst_deinit)>(dlsym(library, "libkst_deinit"))();
            dlclose(library);
        }
        for (unsigned instance = 0; instance < kInstances; ++instance) {
            tlssubid = instance;
            radioApisReleaseService(kModem);
        }
        delete registry.channelClient.exchange(nullptr);
        tlssubid = 0;
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    void setSupport(const std::string& value) const
    {
        root.write("default.prop", "ro.vendor.zor_vorn_support=" + value + "\n");
    }
};

/// Such a device, and an instance that the test's thread has chosen.
struct Instance : Device {
    explicit Instance(unsigned number) { EXPECT_EQ(radioApisInit(kModem, number), 0); }
};

/// The slot's bit in the messages of an instance.
constexpr uint8_t slotBit(unsigned instance)
{
    return static_cast<uint8_t>(1U << instance);
}

} // namespace test
