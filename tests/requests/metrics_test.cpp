#include "support/request_rows.h"

using namespace test;

TEST(Metrics, Requests)
{
    int values[] = {1, -2};
    const Bytes bytes = counting(3);
    const auto data = [&](const Texts& log, const Fields& answer, uint32_t kept, const Bytes& numbersOfIt) {
        Bytes record = blob(kept);
        record.resize(4 + 16384);
        append(record, numbersOfIt);
        return query(Untold, log, radioGetMetricsData, 0x382B,
                     {int32(256, 1), int32(257, 2), int32(259, 3), numbers<int32_t>(258, {1, -2})}, answer,
                     record, 1, 2, 3, values, 2u);
    };
    checkVendorRows({
        setter("startMetricsCollect - enter", radioStartMetricsCollect, 0x3827,
               {int32(256, 8), numbers<int32_t>(257, {1, -2})}, 8, values, 2u),
        setter("stopMetricsCollect - enter", radioStopMetricsCollect, 0x3829),
        data("getMetricsData - enter",
             {raw(256, counting(20000)), int32(257, 7), int32(258, 8), int32(259, 9)}, 16384,
             packed(7, 8, 9)),
        data({}, {}, 0, packed(-1, 0, 0)),
        query(Untold, {entered("radioGetNecData"), "getNecData - enter"}, radioGetNecData, 0x3823,
              {int32(256, 4), numbers<uint8_t>(257, {1, 2, 3})}, {raw(256, counting(3000))}, blob(2048), 4,
              bytes.data(), 3u),
        query(Untold, {"getModemProtocolInfo - enter", "getModemProtocolInfo cb enter"},
              radioGetModemProtocolInfo, 0x383B, {}, {raw(256, counting(5000))}, blob(4096)),
        setter("setVeyraConfigPolicy - enter", radioSetVeyraConfigPolicy, 0x380F,
               int32s(256, {1, 2, 3, 4, 5, 6, 7, 8}), VeyraConfigPolicy{{1, 2, 3, 4, 5, 6, 7, 8}}),
    });
    checkListLimits<int>(radioStartMetricsCollect, 1);
    checkListLimits<int>(radioGetMetricsData, 1, 2, 3);
    checkListLimits<uint8_t>(radioGetNecData, 1);
}
