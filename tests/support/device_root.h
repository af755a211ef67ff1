/// A device's file system for one test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace test {

/// An empty device root as long as it lives.
class DeviceRoot {
public:
    DeviceRoot()
    {
        std::string name = std::filesystem::temp_directory_path() / "device-XXXXXX";
        mPath = mkdtemp(name.data());
        setenv("RADIO_DEVICE_ROOT", mPath.c_str(), 1);
    }
    ~DeviceRoot()
    {
        unsetenv("RADIO_DEVICE_ROOT");
        std::filesystem::remove_all(mPath);
    }
    DeviceRoot(const DeviceRoot&) = delete;
    DeviceRoot& operator=(const DeviceRoot&) = delete;

    void write(const std::string& file, const std::string& contents) const
    {
        const auto path = mPath / file;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << contents;
    }

private:
    std::filesystem::path mPath;
};

} // namespace test
