#include "support/at_fixture.h"

using namespace test;

TEST(Sar, Requests)
{
    checkVendorRows({
        setter("setSarState - enter, source=1, state=-2", radioSetSarState, 0x3895),
        setter("setSarDsiState - enter, state=-3", radioSetSarDsiState, 0x3897),
        query(Untold, {"getSarDsiState - enter", "operator() sar dsi state:-4  "}, radioGetSarDsiState,
              0x3899, {}, {int32(256, -4)}, packed(-4)),
        setter("setRtSarMode - enter, mode=-3", radioSetRtSarMode, 0x389B),
        setter({"setSarRegionCode - enter", "setSarRegionCode - cb enter"}, radioSetSarRegionCode, 0x383F),
    });
    checkSettings({
        {call(radioConnectSarSensor), "AT+ESARSEN=0,0"},
        {call(radioDisconnectSarSensor), "AT+ESARSEN=0,1"},
        {call(radioSetSarSensorChannel, 3), "AT+ESARSIDX=0,3"},
    });
    checkQueries({{call(radioGetSarSnsData), "AT+ERFIDX?", "+ERFIDX: 1,2,x,3", packed(2, 1, 2), Texts(), 0}});
}
