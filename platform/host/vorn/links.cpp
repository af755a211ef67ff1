#include "links.h"

#include "embedded_link.h"
#include "tracing_link.h"
#include "unix_link.h"

namespace host {
namespace {

constexpr std::string_view kEmbedded = "embedded";
constexpr std::string_view kEmbeddedFile = "embedded:";
constexpr std::string_view kUnix = "unix:";

std::unique_ptr<Link> makeUntraced(const std::string& device, LinkEvents& events)
{
    if (device == kEmbedded) {
        return std::make_unique<EmbeddedLink>(sim::Scenario::builtIn(), events);
    }
    if (device.starts_with(kEmbeddedFile)) {
        const std::string file = device.substr(kEmbeddedFile.size());
        return std::make_unique<EmbeddedLink>(sim::Scenario::fromFile(file), events);
    }
    if (device.starts_with(kUnix)) {
        return std::make_unique<UnixLink>(device.substr(kUnix.size()), events);
    }
    throw LinkError("it is none of embedded, embedded:FILE, unix:PATH");
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
