/// Every request that radioctl knows: one row each.
#pragma once

#include "radio_apis/radio_apis.h"
#include "radioctl/arguments.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace radioctl {

using Json = nlohmann::ordered_json;
using Rsp = decltype(RadioApisResultType::rsp);

/// Where an answer is to go.
struct Reply {
    void* userData;
    RadioRequestCallback callback;
};

struct Request {
    std::string entryPoint; ///< the function of the library
    std::string group;
    std::string help;
    std::vector<Argument> arguments;
    std::function<int(const Arguments& in, Reply to)> send;
    std::function<Json(const Rsp&)> show;                     ///< empty when the answer carries nothing
    std::function<Json(const Arguments&)> showSent = nullptr; ///< for what is written in several forms
    std::function<void(const Arguments&)> check = nullptr;    ///< of arguments together; throws UsageError

    /// The entry point's name on the command line: radioGetLteCellInfo is get-lte-cell-info.
    std::string name() const;

    /// `name ARGUMENT...` and what the arguments are.
    std::string usage() const;
};

/// All requests, in the order in which they are listed.
const std::vector<Request>& requests();

/// Null when there is none of that name; an entry point's name is understood too.
const Request* findRequest(std::string_view name);

/// The parts of the table.
std::vector<Request> cellRequests();
std::vector<Request> deviceRequests();
std::vector<Request> antennaRequests();
std::vector<Request> powerRequests();
std::vector<Request> sceneRequests();
std::vector<Request> simRequests();
std::vector<Request> serviceRequests();
std::vector<Request> redundancyRequests();
std::vector<Request> networkRequests();
std::vector<Request> campingRequests();
std::vector<Request> carrierAggregationRequests();
std::vector<Request> coexistenceRequests();
std::vector<Request> indicationRequests();
std::vector<Request> metricsRequests();
std::vector<Request> atomRequests();
std::vector<Request> nvRequests();
std::vector<Request> bandRequests();
std::vector<Request> rfRequests();

} // namespace radioctl
