#include "nv_items.h"

#include "zor/log.h"

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>
#include <unistd.h>

namespace sim {
namespace {

using nlohmann::json;

json toJson(const NvItems& items)
{
    json list = json::array();
    for (const auto& [key, data] : items) {
        list.push_back({{"id", key.first}, {"index", key.second}, {"data", hexDigits(data)}});
    }
    return list;
}

NvOfSlots slotsFromJson(JsonNode root)
{
    const JsonNode list = root.member("slots");
    const auto slots = list.items(kSlots);
    if (slots.size() != kSlots) {
        list.fail("must have " + std::to_string(kSlots) + " entries");
    }
    root.finish();
    NvOfSlots items;
    for (size_t i = 0; i < items.size(); ++i) {
        items.at(i) = nvItemsFromJson(slots[i]);
    }
    return items;
}

} // namespace

NvItems nvItemsFromJson(const JsonNode& node)
{
    NvItems items;
    for (JsonNode item : node.items(kMaxNvItems)) {
        const NvKey key{item.member("id").number<int32_t>(), item.member("index").number<int32_t>()};
        items[key] = item.member("data").hexBytes(0, kMaxNvLength);
        item.finish();
    }
    return items;
}

std::optional<NvOfSlots> readNvFile(const std::filesystem::path& file)
{
    std::error_code error;
    if (!std::filesystem::exists(file, error) && !error) {
        return std::nullopt;
    }
    std::ifstream stream(file);
    if (!stream) {
        throw ScenarioError(file.string() + ": can't be read: " + std::generic_category().message(errno));
    }
    try {
        const json contents = json::parse(stream);
        return slotsFromJson(JsonNode(contents, ""));
    } catch (const std::exception& reason) {
        throw ScenarioError(file.string() + ": " + reason.what());
    }
}

bool writeNvFile(const std::filesystem::path& file, const NvOfSlots& slots)
{
    json contents = {{"slots", json::array()}};
    for (const NvItems& items : slots) {
        contents["slots"].push_back(toJson(items));
    }
    // Of this process alone: two that write at the same time must not write into one file.
    std::filesystem::path fresh = file;
    fresh += ".new." + std::to_string(getpid());
    std::ofstream stream(fresh);
    stream << contents.dump() << '\n';
    stream.close();
    std::error_code error;
    if (stream) {
        std::filesystem::rename(fresh, file, error);
    }
    if (!stream || error) {
        zorLogE("sim", "%s: can't be written", file.c_str());
        std::filesystem::remove(fresh, error);
        return false;
    }
    return true;
}

} // namespace sim
