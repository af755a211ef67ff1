/// The modem's non-volatile items, and the file that keeps them from one run to the next.
#pragma once

#include "value.h"

#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>

namespace sim {

constexpr int kSlots = 3;

using NvKey = std::pair<int32_t, int32_t>; ///< item and index
using NvItems = std::map<NvKey, Bytes>;
using NvOfSlots = std::array<NvItems, kSlots>;

constexpr size_t kMaxNvLength = 20480;
constexpr size_t kMaxNvItems = 4096; ///< of a slot

/// A list of {"id": ITEM, "index": INDEX, "data": HEX}. Throws ScenarioError.
NvItems nvItemsFromJson(const JsonNode& node);

/// What a file {"slots": [LIST, LIST, LIST]} holds; nothing when there is none yet. Throws ScenarioError.
std::optional<NvOfSlots> readNvFile(const std::filesystem::path& file);

/// Puts a new file in the place of the old one, at once: whoever reads it finds either. False, with a line in
/// the log, when that can't be done; the old one then stays.
bool writeNvFile(const std::filesystem::path& file, const NvOfSlots& slots);

} // namespace sim
