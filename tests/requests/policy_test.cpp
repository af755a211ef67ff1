#include "support/request_rows.h"

using namespace test;

TEST(Policy, Requests)
{
    const auto policies = [](const Texts& log, uint32_t sent, uint32_t kept) {
        Bytes block = packed(sent);
        Bytes record = packed(kept);
        for (uint32_t i = 0; i < sent; ++i) {
            RadioPolicyConfig policy{i, 1, 5000 + i, -7, 12, {}, 2, "klmnopqrs"};
            std::memcpy(policy.text1, "abcdefghij", 10);
            append(block, packed(policy));
            append(record, i < kept ? packed(RadioPolicyConfig{i, 1, 5000 + i, -7, 9, "abcdefghi", 2, "kl"})
                                    : Bytes());
        }
        return query(Untold, log, radioGetModemIndicationPolicy, 0x3839, {}, {raw(256, block)}, record);
    };
    const auto reports = [](const Texts& log, uint32_t sent, uint32_t kept) {
        Bytes block = packed(sent);
        Bytes record = packed(kept);
        for (uint32_t i = 0; i < sent; ++i) {
            append(block, packed(i, 1000 + i));
            append(record, i < kept ? packed(i, 1000 + i) : Bytes());
        }
        return query(Untold, log, radioGetIndicationReportRecords, 0x383D, {}, {raw(256, block)}, record);
    };
    checkVendorRows({
        setter({"setModemIndicationPolicy - enter. slotId=2", "setModemIndicationPolicy cb enter"},
               radioSetModemIndicationPolicy, 0x3837, 1588),
        policies({"getModemIndicationPolicy - enter", "getModemIndicationPolicy cb enter",
                  "getModemIndicationPolicy modem indication policy len:48"},
                 60, 48),
        policies({}, 3, 3),
        reports({"getIndicationReportRecords - enter", "getIndicationReportRecords cb enter",
                 "modem indication policy len:100"},
                101, 100),
        reports({}, 0, 0),
        setter("setIndicationConfig - enter", radioSetIndicationConfig, 0x385F,
               {int32(256, 4), array(257, countingRecords(5, 64))}, 4,
               recordOf<RadioIndicationConfigListType>(joined({packed(65), counting(320)}))),
    });
}
