#include "support/request_rows.h"

using namespace test;

TEST(Idc, Requests)
{
    const auto offset = [](const Texts& log, int rat, size_t given, size_t sent) {
        std::vector<RadioIdcOffsetConfig> configs;
        Bytes table;
        for (int i = 1; i <= static_cast<int>(given); ++i) {
            configs.push_back({0x1200 + i, -i, i << 20, 0x340000 + i});
            if (configs.size() <= sent) {
                append(table,
                       packed(static_cast<uint8_t>(i), uint8_t{0}, static_cast<uint16_t>(i), -i, i << 20));
            }
        }
        table.resize(240);
        return setter(log, radioSetIdcOffset, 4437,
                      {uint8(256, static_cast<uint8_t>(rat)), int16(257, -3), raw(0x8102, table)}, rat, -3,
                      configs);
    };
    checkStandardRows({offset("setIdcOffset - enter", 7, 0, 0), offset({}, 4, 3, 3), offset({}, 4, 25, 20)});
    const std::vector<RadioIdcOffsetConfig> configs(1);
    checkRefusals("D VornRadioClient: ",
                  {{call(radioSetIdcOffset, 5, 1, configs), "setIdcOffset - enter", 2},
                   {call(radioSetIdcOffset, 260, 1, configs), "setIdcOffset - enter", 2}});
}
