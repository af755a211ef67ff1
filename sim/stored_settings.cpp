#include "stored_settings.h"

#include <algorithm>

namespace sim {

namespace {

Bytes withoutTrailingZeros(Bytes bytes)
{
    while (!bytes.empty() && bytes.back() == 0) {
        bytes.pop_back();
    }
    return bytes;
}

} // namespace

Bytes keyOf(const MessageSpec& message, const Fields& fields)
{
    const auto spec = std::ranges::find_if(message.request, &FieldSpec::isKey);
    return spec == message.request.end() ? Bytes() : withoutTrailingZeros(fields.bytes(spec->tag));
}

Bytes keyOf(int32_t number)
{
    return withoutTrailingZeros(toBytes(number));
}

void StoredSettings::store(const MessageSpec& setter, Fields fields)
{
    const Bytes key = keyOf(setter, fields);
    mStored[setter.name][key] = std::move(fields);
}

bool StoredSettings::erase(std::string_view setter, const Bytes& key)
{
    const auto found = mStored.find(setter);
    return found != mStored.end() && found->second.erase(key) != 0;
}

const StoredSettings::ByKey& StoredSettings::all(std::string_view setter) const
{
    static const auto& nothing = *new ByKey; // outlives the delivery thread at exit
    const auto found = mStored.find(setter);
    return found == mStored.end() ? nothing : found->second;
}

const Fields* StoredSettings::find(std::string_view setter, const Bytes& key) const
{
    const ByKey& stored = all(setter);
    const auto found = stored.find(key);
    return found == stored.end() ? nullptr : &found->second;
}

nlohmann::json StoredSettings::toJson() const
{
    nlohmann::json object = nlohmann::json::object();
    for (const auto& [name, settings] : mStored) {
        const MessageSpec& spec = *Protocol::instance().find(name);
        object[name] = nlohmann::json::array();
        for (const auto& [key, fields] : settings) {
            object[name].push_back(fieldsToJson(fields, spec.request));
        }
    }
    return object;
}

} // namespace sim
