#include "json_node.h"

namespace sim {
namespace {

int hexDigit(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

std::string range(auto min, auto max)
{
    return std::to_string(min) + " to " + std::to_string(max);
}

} // namespace

bool JsonNode::has(std::string_view key)
{
    requireObject();
    mRead.emplace(key);
    const auto found = mJson.find(std::string(key));
    return found != mJson.end() && !found->is_null();
}

JsonNode JsonNode::member(std::string_view key)
{
    const std::string path = mPath + "/" + std::string(key);
    if (!has(key)) {
        throw ScenarioError(path + ": missing");
    }
    return {mJson[std::string(key)], path};
}

std::optional<JsonNode> JsonNode::optionalMember(std::string_view key)
{
    return has(key) ? std::optional(member(key)) : std::nullopt;
}

std::vector<JsonNode> JsonNode::items(size_t maxCount) const
{
    if (!mJson.is_array()) {
        fail("must be a list");
    }
    if (mJson.size() > maxCount) {
        fail("has " + std::to_string(mJson.size()) + " entries, at most " + std::to_string(maxCount) +
             " are possible");
    }
    std::vector<JsonNode> nodes;
    for (const auto& item : mJson) {
        nodes.emplace_back(item, mPath + "/" + std::to_string(nodes.size()));
    }
    return nodes;
}

std::vector<std::pair<std::string, JsonNode>> JsonNode::members() const
{
    requireObject();
    std::vector<std::pair<std::string, JsonNode>> nodes;
    for (const auto& [key, value] : mJson.items()) {
        nodes.emplace_back(key, JsonNode(value, mPath + "/" + key));
    }
    return nodes;
}

int64_t JsonNode::integer(int64_t min, int64_t max) const
{
    if (!mJson.is_number_integer()) {
        fail("must be a whole number, " + range(min, max));
    }
    const bool tooBig =
        mJson.is_number_unsigned() && mJson.get<uint64_t>() > static_cast<uint64_t>(INT64_MAX);
    const auto value = mJson.get<int64_t>();
    if (tooBig || value < min || value > max) {
        fail("must be " + range(min, max) + ", not " + mJson.dump());
    }
    return value;
}

double JsonNode::fraction(double min, double max) const
{
    if (!mJson.is_number() || mJson.get<double>() < min || mJson.get<double>() > max) {
        fail("must be a number, " + range(min, max));
    }
    return mJson.get<double>();
}

bool JsonNode::flag() const
{
    if (!mJson.is_boolean()) {
        fail("must be true or false");
    }
    return mJson.get<bool>();
}

std::string JsonNode::text(size_t maxLength) const
{
    if (!mJson.is_string()) {
        fail("must be a text");
    }
    auto text = mJson.get<std::string>();
    if (text.size() > maxLength) {
        fail("is longer than " + std::to_string(maxLength) + " characters");
    }
    return text;
}

std::vector<uint8_t> JsonNode::hexBytes(size_t minLength, size_t maxLength) const
{
    const std::string digits = text(2 * maxLength + 1);
    std::vector<uint8_t> bytes;
    for (size_t i = 0; i + 1 < digits.size(); i += 2) {
        const int high = hexDigit(digits[i]);
        const int low = hexDigit(digits[i + 1]);
        if (high < 0 || low < 0) {
            fail("must be hexadecimal digits");
        }
        bytes.push_back(static_cast<uint8_t>(high * 16 + low));
    }
    if (digits.size() % 2 != 0) {
        fail("has an odd number of hexadecimal digits");
    }
    if (bytes.size() < minLength || bytes.size() > maxLength) {
        fail("must be " + range(minLength, maxLength) + " bytes, not " + std::to_string(bytes.size()));
    }
    return bytes;
}

void JsonNode::finish() const
{
    for (const auto& [key, value] : members()) {
        if (!mRead.contains(key) && key != "comment" && key != "$schema") {
            value.fail("unknown name");
        }
    }
}

void JsonNode::fail(const std::string& reason) const
{
    throw ScenarioError(complaint(reason));
}

void JsonNode::failUnknown(const std::string& reason, std::vector<std::string> known) const
{
    throw UnknownName(complaint(reason), std::move(known));
}

std::string JsonNode::complaint(const std::string& reason) const
{
    return (mPath.empty() ? "/" : mPath) + ": " + reason;
}

void JsonNode::requireObject() const
{
    if (!mJson.is_object()) {
        fail("must be an object");
    }
}

} // namespace sim
