#include "inputs.h"

namespace bench {
namespace {

constexpr uint8_t kSubscriptions = 10;
constexpr size_t kSubscriptionSize = 2172;

} // namespace

vorn_msg_t* messageOfNumbers(uint16_t fields)
{
    vorn_msg_t* message = vorn_msg_init(0x3895, 1);
    for (uint16_t tag = kFirstTag; tag < kFirstTag + fields; ++tag) {
        const uint32_t value = tag;
        vorn_msg_add_tlv(message, tag, sizeof value, &value);
    }
    return message;
}

std::string answerWithFields(int64_t count)
{
    std::string text = "\r\n+X: 1";
    for (int64_t i = 1; i < count; ++i) {
        text += i % 3 == 0 ? ",\"text\"" : "," + std::to_string(i * 1000);
    }
    return text + "\r\n\r\nOK\r\n";
}

std::vector<uint8_t> fullReport()
{
    std::vector<uint8_t> report(kSubscriptions * kSubscriptionSize);
    for (size_t s = 0; s < kSubscriptions; ++s) {
        uint8_t* subscription = report.data() + s * kSubscriptionSize;
        subscription[8] = 2;
        for (uint8_t* group : {subscription + 12, subscription + 1092}) {
            group[3] = 10;
            for (size_t entry = 0; entry < 10; ++entry) {
                group[20 + entry * 106 + 5] = 8;
            }
        }
    }
    return report;
}

vorn_msg_t* reportIndication()
{
    const auto report = fullReport();
    vorn_msg_t* indication = vorn_msg_init(0x7E03, 1);
    vorn_msg_add_tlv(indication, 256, 1, &kSubscriptions);
    vorn_msg_add_tlv(indication, 258, static_cast<uint16_t>(report.size()), report.data());
    return indication;
}

} // namespace bench
