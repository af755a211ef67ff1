// Which indications the modem sends, and the record of those that it sent.

#include "requests.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMaxReportRecords = 100;

/// Their number, then two words for each indication that was sent: its id and how often.
Answer getReportRecords(Slot& slot, const Request&)
{
    Bytes block = toBytes(static_cast<uint32_t>(std::min(slot.indicationsSent.size(), kMaxReportRecords)));
    for (const auto& [id, times] : slot.indicationsSent) {
        if (block.size() < 4 + 8 * kMaxReportRecords) {
            append(block, uint32_t{id});
            append(block, times);
        }
    }
    return blockAnswer(std::move(block));
}

} // namespace

Domain policyRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetIndicationReportRecords", getReportRecords},
        {.message = "GetModemIndicationPolicy", .reads = {"SetModemIndicationPolicy", 256, 256}},
    };
    return {messages};
}

} // namespace sim
