/// The SIM card and its lock.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/vorn_at_client.h"

#include <algorithm>
#include <string_view>

using at::kTag;
using mindroid::make;
using mindroid::Parcel;

namespace {

/// The answer's data is the IMSI alone, taken as text: it may begin with zeros.
bool onImsi(Parcel& answer, RadioApisResultType& record)
{
    constexpr std::string_view kTestNetwork = "00101";
    const std::string_view imsi = answer.getString();
    auto& card = record.rsp.simCardType;
    const bool isImsi = !imsi.empty() && imsi.size() < sizeof card.imsi &&
                        std::ranges::all_of(imsi, [](char c) { return c >= '0' && c <= '9'; });
    if (isImsi) {
        card.type = imsi.starts_with(kTestNetwork) ? 1 : 0;
        std::ranges::copy(imsi, card.imsi);
    }
    return isImsi;
}

bool onSimCategory(Parcel& answer, RadioApisResultType& record)
{
    auto& lock = record.rsp.simlockCategory;
    const std::string_view category = answer.getString().substr(0, sizeof lock.category - 1);
    std::ranges::copy(category, lock.category);
    lock.length = static_cast<uint32_t>(category.size());
    zorLogD(kTag, "simCategory: %s, len: %d", lock.category, static_cast<int>(lock.length));
    return true;
}

} // namespace

int VornAtClient::getSimCardType(int, void* userData, RadioRequestCallback cb)
{
    return sendAtCommandRspRawStr("AT+CIMI", userData, cb, make<AtResponseCallback>(at::ifAccepted(onImsi)));
}

int VornAtClient::getSimlockCategoryData(void* userData, RadioRequestCallback cb)
{
    return sendAtCommandRspRawStr("AT+ESMLRSUF?", userData, cb,
                                  make<AtResponseCallback>(at::ifAccepted(onSimCategory)));
}

int VornAtClient::getSimlockLockStatus(void*, RadioRequestCallback)
{
    zorLogE(kTag, "%s : unsupported operation, plese see Java remoteSimlockGetSimlockStatusEx instead",
            __func__);
    return RADIO_APIS_FAILURE;
}
