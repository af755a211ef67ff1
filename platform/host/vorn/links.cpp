#include "links.h"

#include "embedded_link.h"

namespace host {
namespace {

constexpr std::string_view kEmbedded = "embedded";
constexpr std::string_view kEmbeddedFile = "embedded:";
constexpr std::string_view kUnix = "unix:";

} // namespace

std::unique_ptr<Link> makeLink(const std::string& device, LinkEvents& events)
{
    try {
        if (device == kEmbedded) {
            return std::make_unique<EmbeddedLink>(sim::Scenario::builtIn(), events);
        }
        if (device.starts_with(kEmbeddedFile)) {
            const std::string file = device.substr(kEmbeddedFile.size());
            return std::make_unique<EmbeddedLink>(sim::Scenario::fromFile(file), events);
        }
    } catch (const sim::ScenarioError& error) {
        throw LinkError("device " + device + ": " + error.what());
    }
    if (device.starts_with(kUnix)) {
        throw LinkError("device " + device + ": this library has no socket link");
    }
    throw LinkError("device \"" + device + "\" is none of embedded, embedded:FILE");
}

} // namespace host
