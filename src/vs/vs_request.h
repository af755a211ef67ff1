/// What the files of the vendor client share.
#pragma once

#include "vs/vorn_vs_client.h"
#include "vs/vs_message.h"
#include "zor/log.h"

namespace vs {

inline constexpr char kTag[] = "VornVsClient";

} // namespace vs

template <typename Fill>
int VornVsClient::query(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb,
                        Fill fill)
{
    return sendQuery(vs::kTag, request, userData, cb, fill);
}
