/// Requests whose answers are fuzzed.
#pragma once

#include "radio_apis/results.h"

#include <functional>
#include <numeric>
#include <vector>

namespace fuzz {

/// Sends a request with fixed arguments; its callback counts.
using Request = std::function<int(int* calls)>;

/// Reads the whole record, as a caller would.
inline void onResult(void* calls, RADIO_APIS_RESULT, RadioApisResultType* record)
{
    ++*static_cast<int*>(calls);
    if (record != nullptr) {
        const auto* bytes = reinterpret_cast<const uint8_t*>(record);
        [[maybe_unused]] const volatile int sum = std::accumulate(bytes, bytes + sizeof *record, 0);
    }
}

template <typename Client>
Client& client()
{
    static Client only(false, 0);
    return only;
}

template <typename Client, typename... Parameters, typename... Arguments>
Request asked(int (Client::*method)(Parameters...), Arguments... arguments)
{
    return [=](int* calls) { return (client<Client>().*method)(arguments..., calls, onResult); };
}

} // namespace fuzz
