/// Scenario files: refused with a reason, or good for a modem.
#include "nobody.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    auto json =
        nlohmann::json::parse(std::string_view(reinterpret_cast<const char*>(data), size), nullptr, false);
    if (json.is_discarded()) {
        return 0;
    }
    if (json.is_object()) {
        json.erase("nvFile"); // the fuzzer's choice of a file to write
    }
    try {
        fuzz::Nobody nobody;
        sim::Modem modem(sim::Scenario::fromJson(json), nobody);
        modem.advance({});
        if (const auto due = modem.nextDeadline()) {
            modem.advance(*due);
        }
    } catch (const sim::ScenarioError&) {
        // refused with a reason
    }
    return 0;
}
