/// What the files of the standard client share.
#pragma once

#include "radio/vorn_radio_client.h"
#include "zor/log.h"

namespace radio {

inline constexpr char kTag[] = "VornRadioClient";

} // namespace radio

/// Ids of the standard messages.
namespace RadioMessage {

inline constexpr uint16_t WriteNv = 51;
inline constexpr uint16_t ReadNv = 53;

} // namespace RadioMessage

template <typename Fill>
int VornRadioClient::query(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb,
                           Fill fill)
{
    return sendQuery(radio::kTag, request, userData, cb, fill);
}
