#include "api/registry.h"
#include "radio_apis/multi_sim.h"

int radioGetMsimSubModeState(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::getMsimSubModeState, userData, callback);
}

int radioSetDsdaPreferCustThresh(int rat, int thresh1, int thresh2, void* userData,
                                 RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::setDsdaPreferCustThresh, rat, thresh1, thresh2, userData,
                   callback);
}

int radioSetMsimSubModePref(int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setMsimSubModePref, mode, userData, callback);
}
