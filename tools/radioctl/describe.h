/// Records as JSON, from lists of their members.
#pragma once

#include "radioctl/request.h"

#include <fmt/format.h>

#include <algorithm>
#include <tuple>

namespace radioctl {

/// The members of a record, in the order in which they are shown; specialised per record.
template <typename Record>
inline constexpr auto kMembers = std::tuple{};

template <typename Record>
Json toJson(const Record& record);

/// A member shown as what it is: a number, a record, or an array of either.
template <typename Record, typename T>
constexpr auto member(const char* name, T Record::*pointer)
{
    return [=](Json& out, const Record& record) { out[name] = toJson(record.*pointer); };
}

/// An unsigned word in which the modem carries a signed number.
template <typename Record>
constexpr auto signedMember(const char* name, uint32_t Record::*pointer)
{
    return [=](Json& out, const Record& record) { out[name] = static_cast<int32_t>(record.*pointer); };
}

/// The first `count` elements of an array.
template <typename Record, typename Count, typename T, size_t size>
constexpr auto listMember(const char* name, Count Record::*count, T (Record::*pointer)[size])
{
    return [=](Json& out, const Record& record) {
        Json list = Json::array();
        for (size_t i = 0; i < std::min<size_t>(record.*count, size); ++i) {
            list.push_back(toJson((record.*pointer)[i]));
        }
        out[name] = std::move(list);
    };
}

/// The first `count` bytes of a buffer, as hexadecimal digits.
template <typename Record, typename Count, size_t size>
constexpr auto bytesMember(const char* name, Count Record::*count, uint8_t (Record::*pointer)[size])
{
    return [=](Json& out, const Record& record) {
        const uint8_t* begin = record.*pointer;
        out[name] =
            fmt::format("{:02x}", fmt::join(begin, begin + std::min<size_t>(record.*count, size), ""));
    };
}

template <typename Record>
Json toJson(const Record& record)
{
    if constexpr (std::is_arithmetic_v<Record>) {
        return record;
    } else {
        Json out = Json::object();
        std::apply([&](const auto&... show) { (show(out, record), ...); }, kMembers<Record>);
        return out;
    }
}

/// How a request shows the member of the result record that it fills.
template <typename T>
auto show(T Rsp::*pointer)
{
    return [=](const Rsp& rsp) { return toJson(rsp.*pointer); };
}

} // namespace radioctl
