#include "support/at_fixture.h"

using namespace test;

TEST(ServiceMode, Requests)
{
    checkSettings({
        {call(radioSetServiceMode, 2), chained({"AT+CFUN=0", "AT+CEMODE=2", "AT+CFUN=1"}),
         Texts{"setServiceMode: ENTER: 2", "setServiceMode: ENTER: cmd AT+CEMODE=2"}},
        {call(radioSetCentricMode, -1), chained({"AT+CFUN=0", "AT+CEUS=-1", "AT+CFUN=1"})},
    });
    checkQueries({
        {call(radioGetServiceMode), "AT+CEMODE?", "+CEMODE: 3,1", packed(3),
         "getServiceMode : result->rsp.serviceModeInfo.serviceMode : 3"},
        {call(radioGetCentricMode), "AT+CEUS?", "+CEUS: -1", packed(-1),
         "getCentricMode : result->rsp.centricModeInfo.centricMode : -1"},
    });
}
