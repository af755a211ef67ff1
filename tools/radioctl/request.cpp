#include "radioctl/request.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

namespace radioctl {

std::string Request::name() const
{
    std::string kebab;
    const std::string_view rest = std::string_view(entryPoint).substr(std::string_view("radio").size());
    for (size_t i = 0; i < rest.size(); ++i) {
        const auto isUpper = [&](size_t at) {
            return at < rest.size() && std::isupper(static_cast<unsigned char>(rest[at]));
        };
        // A word begins at a capital, but for those inside an abbreviation: GetRRCStatus is get-rrc-status.
        const bool begins =
            isUpper(i) && i != 0 && (!isUpper(i - 1) || (i + 1 < rest.size() && !isUpper(i + 1)));
        if (begins) {
            kebab += '-';
        }
        kebab += static_cast<char>(std::tolower(static_cast<unsigned char>(rest[i])));
    }
    return kebab;
}

std::string Request::usage() const
{
    std::string text = name();
    for (const Argument& argument : arguments) {
        text += argument.takesRest ? fmt::format(" [{}...]", argument.name) : " " + argument.name;
    }
    text += fmt::format("\n\n{}\n", help);
    for (const Argument& argument : arguments) {
        text += fmt::format("\n  {:<18} {} ({})", argument.name, argument.help, argument.form);
        text += argument.details.empty() ? "" : "\n" + argument.details;
    }
    return text + (text.ends_with('\n') ? "" : "\n");
}

const std::vector<Request>& requests()
{
    static const std::vector<Request> all = [] {
        std::vector<Request> rows;
        for (auto part : {cellRequests, deviceRequests, antennaRequests, powerRequests, sceneRequests,
                          simRequests, serviceRequests, redundancyRequests, networkRequests, campingRequests,
                          carrierAggregationRequests, coexistenceRequests, indicationRequests,
                          metricsRequests, atomRequests, nvRequests, bandRequests, rfRequests}) {
            std::ranges::move(part(), std::back_inserter(rows));
        }
        return rows;
    }();
    return all;
}

const Request* findRequest(std::string_view name)
{
    const auto found = std::ranges::find_if(requests(), [=](const Request& request) {
        return request.name() == name || request.entryPoint == name;
    });
    return found == requests().end() ? nullptr : &*found;
}

} // namespace radioctl
