/// What a simulated modem starts with, read from a JSON file or built in.
#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace sim {

/// A scenario that can't be used: the message names the file, the place in it and the reason.
class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A checked scenario. Everything it does not mention has the value of the built-in one.
class Scenario {
public:
    static Scenario builtIn();
    static Scenario fromFile(const std::filesystem::path& file); ///< throws ScenarioError
    static Scenario fromJson(const nlohmann::json& json);        ///< throws ScenarioError

    const nlohmann::json& json() const { return mJson; }

private:
    explicit Scenario(nlohmann::json json) : mJson(std::move(json)) {}

    nlohmann::json mJson;
};

} // namespace sim
