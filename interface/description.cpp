#include "interface/description.h"

#include <algorithm>

namespace interface {

namespace {

template <typename Table, typename Key, typename Projection>
auto* find(const Table& table, const Key& key, Projection projection)
{
    const auto found = std::ranges::find(table, key, projection);
    return found != table.end() ? &*found : nullptr;
}

} // namespace

const Request* findRequest(std::string_view name)
{
    const Request* request = find(requests(), name, &Request::name);
    return request != nullptr ? request : find(requests(), name, &Request::function);
}

const Event* findEvent(std::string_view name)
{
    return find(events(), name, &Event::name);
}

const Event* findEvent(RADIO_EVENT_TYPE type)
{
    return find(events(), type, &Event::type);
}

const Record* findRecord(std::string_view name)
{
    return find(records(), name, &Record::name);
}

} // namespace interface
