#include "cutils/properties.h"
#include "host/device.h"
#include "zor/log.h"
#include "zor/property.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <mutex>

namespace {

/// What a caller's buffer holds, including the NUL.
constexpr size_t kPropertySize = 92;

struct SetProperties {
    std::mutex mutex;
    std::map<std::string, std::string, std::less<>> values;
};

SetProperties& setProperties()
{
    static SetProperties& instance = *new SetProperties;
    return instance;
}

bool findInFile(std::string_view key, std::string& value)
{
    const std::string root = host::deviceRoot();
    if (root.empty()) {
        return false;
    }
    const std::string path = root + "/default.prop";
    std::ifstream file(path);
    static std::atomic<bool> hasTold = false;
    if (!file && !hasTold.exchange(true)) {
        // Without it the device has no modem channel, which is all that the library can tell.
        zorLogE("properties", "RADIO_DEVICE_ROOT: %s can't be read", path.c_str());
    }
    for (std::string line; std::getline(file, line);) {
        const size_t begin = line.find_first_not_of(" \t");
        const size_t equals = line.find('=');
        if (begin == std::string::npos || line[begin] == '#' || equals == std::string::npos ||
            equals < begin) {
            continue;
        }
        if (std::string_view(line).substr(begin, equals - begin) == key) {
            value = line.substr(equals + 1);
            return true;
        }
    }
    return false;
}

int getProperty(const char* key, char* value, const char* defaultValue) noexcept
{
    if (key == nullptr || value == nullptr) {
        return 0;
    }
    value[0] = '\0';
    try {
        std::string text = defaultValue != nullptr ? defaultValue : "";
        host::findProperty(key, text);
        const size_t length = std::min(text.size(), kPropertySize - 1);
        std::memcpy(value, text.data(), length);
        value[length] = '\0';
        return static_cast<int>(length);
    } catch (const std::exception&) {
        return 0; // no memory: as good as not set
    }
}

} // namespace

namespace host {

std::string deviceRoot()
{
    const char* root = std::getenv("RADIO_DEVICE_ROOT");
    return root != nullptr ? root : "";
}

bool findProperty(std::string_view key, std::string& value)
{
    {
        SetProperties& properties = setProperties();
        const std::lock_guard lock(properties.mutex);
        const auto found = properties.values.find(key);
        if (found != properties.values.end()) {
            value = found->second;
            return true;
        }
    }
    return findInFile(key, value);
}

void setProperty(std::string_view key, std::string_view value)
{
    SetProperties& properties = setProperties();
    const std::lock_guard lock(properties.mutex);
    properties.values.insert_or_assign(std::string(key), std::string(value));
}

} // namespace host

int zor_property_get(const char* key, char* value, const char* default_value)
{
    return getProperty(key, value, default_value);
}

int property_get(const char* key, char* value, const char* default_value)
{
    return getProperty(key, value, default_value);
}
