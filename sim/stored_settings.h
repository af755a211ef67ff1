/// What plain setters left behind, for the matching getters.
#pragma once

#include "value.h"

#include <map>
#include <string>
#include <string_view>

namespace sim {

/// The bytes of a message's key field without their trailing zeros, so that keys of different width compare
/// as numbers do; empty when it has none.
Bytes keyOf(const MessageSpec& message, const Fields& fields);
Bytes keyOf(int32_t number);

class StoredSettings {
public:
    using ByKey = std::map<Bytes, Fields>;

    /// Keeps the fields of a request, in place of those of an earlier one with the same key.
    void store(const MessageSpec& setter, Fields fields);

    /// Forgets what the message of this name stored under a key; whether there was anything.
    bool erase(std::string_view setter, const Bytes& key);

    /// The fields that the message of this name last stored under a key; null when there are none.
    const Fields* find(std::string_view setter, const Bytes& key) const;

    /// All that it stored.
    const ByKey& all(std::string_view setter) const;

    nlohmann::json toJson() const;

private:
    std::map<std::string, ByKey, std::less<>> mStored; ///< by message name
};

} // namespace sim
