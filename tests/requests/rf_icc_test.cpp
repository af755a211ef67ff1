#include "support/request_rows.h"

using namespace test;

TEST(RfIcc, Requests)
{
    constexpr uint8_t kModes[] = {1, 2, 3, 254};
    checkVendorRows({
        query(Untold, {"getRfIccInfo - enter", "getRfIccInfo cb enter"}, radioGetRfIccInfo, 0x3879, {},
              {uint8(256, 200), uint16(257, 60000)}, {200, 0, 0x60, 0xEA}),
        setter({"sendRfIccClatKpi - enter", "freq:67305985, num:5, subPolicy:6"}, radioSendRfIccClatKpi,
               0x387B, 167),
        setter("sendRfIccModeState - enter", radioSendRfIccModeState, 0x387D,
               {uint8(256, 1), uint8(257, 2), uint8(258, 3), uint8(259, 254)}, kModes[0], kModes[1],
               kModes[2], kModes[3]),
        setter("sendRfIccDeviceErr - enter", radioSendRfIccDeviceErr, 0x387F, 33),
    });
}
