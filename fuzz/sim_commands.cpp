/// Commands to the simulation, one or a list of them: each is answered by whether it was done, and by why not.
#include "host/wire/command_message.h"
#include "nobody.h"

#include <cstdlib>

using nlohmann::json;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzz::Nobody nobody;
    static sim::Modem modem(sim::Scenario::builtIn(), nobody); // made anew it would take longer than all else
    static sim::TimePoint now;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const json parsed = json::parse(text, nullptr, false);
    if (parsed.dump().find("nvFile") != std::string::npos) {
        return 0; // the fuzzer's choice of a file to write
    }
    const auto command = [&](const std::string& line) {
        const std::string sent = host::commandFrom(*host::toMessage({1, line})).text;
        const json answer = json::parse(modem.control(sent, now));
        if (sent != line || answer.at("ok") == answer.contains("error")) {
            std::abort();
        }
        modem.advance(now += std::chrono::seconds(1));
    };
    if (parsed.is_array()) {
        std::ranges::for_each(parsed, [&](const json& item) { command(item.dump()); });
    } else {
        command(text);
    }
    modem.control(json{{"command", "fault-clear"}}, now);
    return 0;
}
