// Events as they come.
#include "interface/words.h"
#include "radioctl/help.h"
#include "radioctl/output.h"
#include "radioctl/program.h"
#include "radioctl/signals.h"

#include <fmt/format.h>

#include <algorithm>
#include <mutex>

namespace radioctl {

namespace {

struct StreamOptions {
    Words names;        ///< none: all events
    uint64_t count = 0; ///< stop after so many; 0: at SIGINT or SIGTERM
    Words then;
};

void addStreamOptions(CLI::App& app, StreamOptions& options)
{
    app.add_option("NAME", options.names, "which events (default: all)");
    app.add_option("--count", options.count, "stop after so many (default: at Ctrl-C)")
        ->type_name("N")
        ->check(CLI::PositiveNumber);
    app.add_option("--do", options.then,
                   "a command to run once the events are subscribed; may be given repeatedly")
        ->type_name("COMMAND")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

/// What the listeners share: those of events run one after the other on the delivery thread, the link's on another.
struct Stream {
    const StreamOptions& stream;
    const Options& options;
    std::mutex mutex;
    uint64_t printed = 0;

    void print(const std::string& what, const Json& record, const interface::Record* description)
    {
        if (options.json) {
            Json line = {{"time", now()}, {"instance", options.instance}, {"event", what}};
            addRecord(line, record, description, options);
            fmt::print("{}\n", line.dump());
        } else {
            fmt::print("{}  instance {}  {}\n{}", now(), options.instance, what,
                       record.is_null() ? "" : asText(record, description, options.raw));
        }
        std::fflush(stdout);
    }
};

void onEvent(RADIO_EVENT_TYPE type, void* user, void* data, int length)
{
    auto& stream = *static_cast<Stream*>(user);
    const interface::Event* event = interface::findEvent(type);
    const std::lock_guard lock(stream.mutex);
    const uint64_t wanted = stream.stream.count;
    if (event == nullptr || static_cast<uint32_t>(length) < event->record->size ||
        (wanted != 0 && stream.printed >= wanted)) {
        return;
    }
    stream.print(std::string(event->name), interface::toJson(*event->record, data), event->record);
    if (++stream.printed == wanted) {
        raiseEnd();
    }
}

std::vector<const interface::Event*> wantedEvents(const Words& names)
{
    std::vector<const interface::Event*> wanted;
    for (const std::string& name : names) {
        const interface::Event* event = interface::findEvent(name);
        if (event == nullptr) {
            throw UsageError(fmt::format("no event is called '{}'{}\nThe events are:\n{}", name,
                                         interface::suggestion(name, interface::namesOf(interface::events())),
                                         eventList()));
        }
        wanted.push_back(event);
    }
    for (const interface::Event& event : interface::events()) {
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

int runThen(Program& program, const Stream& stream)
{
    for (const std::string& text : stream.stream.then) {
        Words words = interface::splitWords(text);
        const Options options = takeOptions(words, stream.options);
        if (const int status = program.runChecked({std::move(words), options}); status != kExitSuccess) {
            return status;
        }
    }
    return kExitSuccess;
}

} // namespace

std::vector<OptionText> eventsOptions()
{
    return optionTexts(addStreamOptions);
}

int runEvents(Program& program, const Line& line)
{
    CLI::App app("Print events as they come, and the link's loss and return, until Ctrl-C.",
                 "radioctl events");
    StreamOptions options;
    addStreamOptions(app, options);
    app.footer("Events:\n" + eventList());
    if (!parseCommandOptions(app, line.words)) {
        return kExitSuccess;
    }
    const auto events = wantedEvents(options.names);
    Stream stream{options, line.options, {}};
    holdSignals();
    program.session(line.options);
    for (const interface::Event* event : events) {
        registerRadioEvent(event->type, &stream, onEvent);
    }
    onLinkChange([&](bool isUp) {
        const std::lock_guard lock(stream.mutex);
        stream.print(isUp ? "link-back" : "link-lost", nullptr, nullptr);
    });
    int status = kExitFailure;
    if (subscribe()) {
        fmt::print(stderr, "radioctl: listening for {}; Ctrl-C ends\n",
                   options.names.empty() ? "all events" : fmt::format("{}", fmt::join(options.names, ", ")));
        status = runThen(program, stream);
    } else {
        printError("events", "failed", "events: not all indications could be subscribed", line.options);
    }
    if (status == kExitSuccess) {
        awaitEnd();
    }
    // No listener runs any more after this.
    onLinkChange(nullptr);
    radioApisReleaseService(RADIO_APIS_SERVICE_MODEM);
    program.forgetSession();
    return status;
}

} // namespace radioctl
