#include "support/request_rows.h"

using namespace test;

TEST(Qos, Requests)
{
    Bytes bytes = counting(5);
    checkVendorRows({
        setter("setQosReportPeriod - enter", radioSetQosReportPeriod, 0x3861, {int32(256, 7)}, 0x500000007L),
        setter("setQosConfig - enter", radioSetQosConfig, 0x3863, {uint8(256, 255), raw(257, bytes)},
               int8_t{-1}, bytes.data(), 5u),
        query(Untold, {"getQosData - enter", "getQosData cb enter"}, radioGetQosData, 0x3865,
              {int32(256, -2)}, {raw(256, counting(3000))}, blob(2048), -2),
    });
    checkListLimits<uint8_t>(radioSetQosConfig, int8_t{1});
}
