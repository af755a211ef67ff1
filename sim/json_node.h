/// Reading checked values out of JSON written by people: every complaint names the place and the reason.
#pragma once

#include "sim/scenario.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// One value inside a JSON text. Reading an object's members notes their names, so that finish() can complain
/// about those nobody asked for. It refers to the JSON it was made from.
class JsonNode {
public:
    JsonNode(const nlohmann::json& json, std::string path) : mJson(json), mPath(std::move(path)) {}

    const nlohmann::json& json() const { return mJson; }
    const std::string& path() const { return mPath; }

    /// Whether the member exists and is not null. Every other member function throws ScenarioError.
    bool has(std::string_view key);

    JsonNode member(std::string_view key);
    std::optional<JsonNode> optionalMember(std::string_view key);
    std::vector<JsonNode> items(size_t maxCount) const;
    std::vector<std::pair<std::string, JsonNode>> members() const;

    template <typename Number>
    Number number(Number min = std::numeric_limits<Number>::min(),
                  Number max = std::numeric_limits<Number>::max()) const
    {
        return static_cast<Number>(integer(static_cast<int64_t>(min), static_cast<int64_t>(max)));
    }
    double fraction(double min, double max) const;
    bool flag() const;
    std::string text(size_t maxLength = 4096) const;
    std::vector<uint8_t> hexBytes(size_t minLength, size_t maxLength) const;

    /// Complains about members that were never read.
    void finish() const;

    [[noreturn]] void fail(const std::string& reason) const;

    /// Throws UnknownName.
    [[noreturn]] void failUnknown(const std::string& reason, std::vector<std::string> known) const;

private:
    std::string complaint(const std::string& reason) const;
    int64_t integer(int64_t min, int64_t max) const;
    void requireObject() const;

    const nlohmann::json& mJson;
    std::string mPath;
    std::set<std::string, std::less<>> mRead;
};

} // namespace sim
