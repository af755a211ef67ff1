/// Requests to the simulated modem and what becomes of them.
#pragma once

#include "host/vorn_control.h"
#include "radio_apis/radio_apis.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <condition_variable>
#include <mutex>
#include <vector>

constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;

/// Counts the answers to many requests; each request has a counter of its own.
class Answers {
public:
    explicit Answers(size_t requests) : mCounters(requests) {}

    void* userData(size_t request)
    {
        mCounters[request].owner = this;
        return &mCounters[request];
    }
    static void onResult(void* user, RADIO_APIS_RESULT result, RadioApisResultType*)
    {
        auto& counter = *static_cast<Counter*>(user);
        const std::lock_guard lock(counter.owner->mMutex);
        ++counter.calls;
        counter.owner->mFailures += result != RADIO_APIS_SUCCESS;
        ++counter.owner->mTotal;
        counter.owner->mChanged.notify_all();
    }

    /// Waits until as many answers came as requests were accepted, then checks that each came once.
    void expectOnceEach(size_t accepted)
    {
        std::unique_lock lock(mMutex);
        EXPECT_TRUE(mChanged.wait_for(lock, std::chrono::seconds(60), [&] { return mTotal >= accepted; }))
            << mTotal;
        EXPECT_EQ(mTotal, accepted);
        for (const Counter& counter : mCounters) {
            EXPECT_LE(counter.calls, 1);
        }
    }
    size_t failures()
    {
        const std::lock_guard lock(mMutex);
        return mFailures;
    }

private:
    struct Counter {
        Answers* owner = nullptr;
        int calls = 0;
    };
    std::vector<Counter> mCounters;
    std::mutex mMutex;
    std::condition_variable mChanged;
    size_t mTotal = 0;
    size_t mFailures = 0;
};

inline nlohmann::json control(const nlohmann::json& command)
{
    nlohmann::json answer;
    const auto keep = [](const char* json, void* user) {
        *static_cast<nlohmann::json*>(user) = nlohmann::json::parse(json);
    };
    EXPECT_EQ(vorn_host_control(command.dump().c_str(), keep, &answer), 0);
    EXPECT_TRUE(answer.value("ok", false)) << answer;
    return answer;
}

/// What strikes the requests that `match` says.
inline void addFault(nlohmann::json match, nlohmann::json fault)
{
    fault["match"] = std::move(match);
    control({{"command", "fault-add"}, {"fault", fault}});
}
