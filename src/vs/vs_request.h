/// What the files of the vendor client share.
#pragma once

#include "radio_apis/blob.h"
#include "vs/vorn_vs_client.h"
#include "vs/vs_message.h"
#include "zor/log.h"

#include <algorithm>

namespace vs {

inline constexpr char kTag[] = "VornVsClient";

} // namespace vs

/// The handler of answers without a payload that logs a line first; the line must outlive the request.
inline ResponseHandler onVoidResponse(const char* line)
{
    return [line](void* response, unsigned int code, RadioApisAsyncData* context) {
        zorLogD(vs::kTag, "%s", line);
        VornClient::processVoidResponseMsg(response, code, context);
    };
}

/// `count`, or the number of elements that an array holds when that is less.
template <typename Element, size_t size>
constexpr uint32_t cutTo(const Element (&)[size], uint32_t count)
{
    return std::min(count, static_cast<uint32_t>(size));
}

/// Copies a field of the modem's into a blob, as much as fits.
template <uint32_t capacity>
void fillBlob(std::span<const uint8_t> from, RadioBlob<capacity>& to)
{
    to.length = static_cast<uint32_t>(std::min<size_t>(from.size(), capacity));
    copyBytes(from, 0, to.data);
}

/// An array field of the first `count` records, of more than the list holds as many as it holds.
template <typename Record, size_t size>
int addRecords(VornData& request, uint16_t tag, const Record (&records)[size], uint32_t count)
{
    const void* pointers[size];
    for (size_t i = 0; i < size; ++i) {
        pointers[i] = &records[i];
    }
    return request.addVornTlvArray(tag, static_cast<uint16_t>(cutTo(records, count)), pointers,
                                   sizeof(Record));
}

/// Whether a list of the caller's can be sent: there are values, and their number fits a field. Logs it
/// otherwise.
bool isSendable(const void* values, unsigned int count);
