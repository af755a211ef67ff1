/// Commands to the simulation, one or a list of them: each is answered by whether it was done, and by why not.
#include "command_message.h"
#include "json.h"
#include "nobody.h"

#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using nlohmann::json;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const json parsed = json::parse(text, nullptr, false);
    if (parsed.dump().find("nvFile") != std::string::npos) {
        return 0; // the fuzzer's choice of a file to write
    }
    static const sim::Scenario scenario = sim::Scenario::builtIn();
    fuzz::Nobody nobody;
    sim::Modem modem(scenario, nobody);
    sim::TimePoint now;
    const auto command = [&](const std::string& line) {
        const auto message = host::toMessage({1, line});
        const json answer = json::parse(modem.control(host::commandFrom(*message).text, now));
        if (host::commandFrom(*message).text != line || answer.at("ok") == answer.contains("error")) {
            std::abort();
        }
        now += std::chrono::seconds(1);
        modem.advance(now);
    };
    if (parsed.is_array()) {
        std::ranges::for_each(parsed, [&](const json& item) { command(item.dump()); });
    } else {
        command(text);
    }
    return 0;
}
