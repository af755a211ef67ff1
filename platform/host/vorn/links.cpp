#include "links.h"

#include "embedded_link.h"
#include "tracing_link.h"
#include "unix_link.h"

#include "host/device.h"

#include <cstdlib>
#include <unistd.h>

namespace host {
namespace {

constexpr std::string_view kEmbedded = "embedded";
constexpr std::string_view kEmbeddedFile = "embedded:";
constexpr std::string_view kUnix = "unix:";

/// Whoever gave the name may not know where it comes from: the library reads it in the device file, and takes a
/// device's own name when that tells it nothing.
std::string noSuchDevice()
{
    const std::string kinds = "a workstation has none but embedded, embedded:FILE and unix:PATH; ";
    const char* chosen = std::getenv("RADIO_VORN_DEVICE");
    const std::string root = deviceRoot();
    if (root.empty() || (chosen != nullptr && *chosen != '\0')) {
        return kinds + "choose one with RADIO_VORN_DEVICE";
    }
    const std::string file = root + "/odm/etc/vorn_device_config.xml";
    if (access(file.c_str(), R_OK) != 0) {
        return kinds + "the one to use stands in " + file + ", which can't be read";
    }
    std::string platform;
    findProperty("ro.boot.hardware", platform);
    return kinds + "name one in " + file + " for the platform \"" + platform +
           "\" (property ro.boot.hardware)";
}

/// Whether the device name begins like this and goes on.
bool hasRest(const std::string& device, std::string_view begin)
{
    return device.starts_with(begin) && device.size() > begin.size();
}

std::unique_ptr<Link> makeUntraced(const std::string& device, LinkEvents& events)
{
    if (device == kEmbedded) {
        return std::make_unique<EmbeddedLink>(sim::Scenario::builtIn(), events);
    }
    if (hasRest(device, kEmbeddedFile)) {
        const std::string file = device.substr(kEmbeddedFile.size());
        return std::make_unique<EmbeddedLink>(sim::Scenario::fromFile(file), events);
    }
    if (hasRest(device, kUnix)) {
        return std::make_unique<UnixLink>(device.substr(kUnix.size()), events);
    }
    throw LinkError(noSuchDevice());
}

} // namespace

std::unique_ptr<Link> makeLink(const std::string& device, LinkEvents& events)
{
    try {
        if (auto trace = sim::Trace::fromEnvironment()) {
            return std::make_unique<TracingLink>(
                std::move(trace), events, [&](LinkEvents& outer) { return makeUntraced(device, outer); });
        }
        return makeUntraced(device, events);
    } catch (const std::runtime_error& error) {
        throw LinkError("device \"" + device + "\": " + error.what());
    }
}

} // namespace host
