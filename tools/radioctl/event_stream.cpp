#include "radioctl/event_stream.h"

#include "radioctl/print.h"
#include "radioctl/signals.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <chrono>

namespace radioctl {

namespace {

/// What the listeners share; they run one after the other, on the delivery thread.
struct Stream {
    const StreamOptions& options;
    uint64_t printed = 0;
};

std::string now()
{
    using namespace std::chrono;
    const auto time = floor<milliseconds>(system_clock::now());
    const auto milli = duration_cast<milliseconds>(time.time_since_epoch()).count() % 1000;
    return fmt::format("{:%FT%T}.{:03}Z", fmt::gmtime(system_clock::to_time_t(time)), milli);
}

void print(const Stream& stream, const Event& event, const Json& record)
{
    if (stream.options.json) {
        const Json line = {{"time", now()},
                           {"instance", stream.options.instance},
                           {"event", event.name},
                           {"record", record}};
        fmt::print("{}\n", line.dump());
    } else {
        fmt::print("{}  instance {}  {}\n{}", now(), stream.options.instance, event.name, asTable(record));
    }
    std::fflush(stdout);
}

void onEvent(RADIO_EVENT_TYPE type, void* user, void* data, int length)
{
    auto& stream = *static_cast<Stream*>(user);
    const auto event = std::ranges::find(events(), type, &Event::type);
    const uint64_t wanted = stream.options.count;
    if (event == events().end() || static_cast<size_t>(length) < event->size ||
        (wanted != 0 && stream.printed >= wanted)) {
        return;
    }
    print(stream, *event, event->show(data));
    if (++stream.printed == wanted) {
        raiseEnd();
    }
}

std::vector<const Event*> wantedEvents(const std::vector<std::string>& names)
{
    std::vector<const Event*> wanted;
    for (const std::string& name : names) {
        const Event* event = findEvent(name);
        if (event == nullptr) {
            throw UsageError(fmt::format("no event is called '{}'; they are:\n{}", name, eventList()));
        }
        wanted.push_back(event);
    }
    for (const Event& event : events()) {
        if (names.empty()) {
            wanted.push_back(&event);
        }
    }
    return wanted;
}

bool subscribe()
{
    constexpr RadioEventSwitch kOn = {1, 1};
    const int vendor = radioRegisterVsEvent({kOn, kOn, kOn, kOn, {}, {}, kOn, {}}, nullptr, nullptr);
    const int standard = radioRegisterRadioEvent({kOn, kOn}, nullptr, nullptr);
    return vendor == RADIO_APIS_SUCCESS && standard == RADIO_APIS_SUCCESS;
}

} // namespace

int streamEvents(const StreamOptions& options, const std::function<int()>& whenSubscribed)
{
    Stream stream{options};
    for (const Event* event : wantedEvents(options.names)) {
        registerRadioEvent(event->type, &stream, onEvent);
    }
    if (!subscribe()) {
        fmt::print(stderr, "radioctl: events: not all indications could be subscribed\n");
        return kExitFailure;
    }
    const int status = whenSubscribed();
    if (status == kExitSuccess) {
        awaitEnd();
    }
    // No listener runs any more after this.
    radioApisReleaseService(RADIO_APIS_SERVICE_MODEM);
    return status;
}

std::string eventList()
{
    std::string text;
    for (const Event& event : events()) {
        text += fmt::format("  {}\n", event.name);
    }
    return text;
}

} // namespace radioctl
