#include "api/registry.h"
#include "radio_apis/antenna.h"

int radioSetAolState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setAolState, state, userData, callback);
}

int radioSetMtplLimitState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setMtplLimitState, state, userData, callback);
}

int radioSetAntFixState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setAntFixState, state, userData, callback);
}

int radioSetAntBlockState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setAntBlockState, state, userData, callback);
}

int radioSetAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback callback)
{
    constexpr int kNr = 4;
    if (rat < 0 || rat > kNr) {
        zorLogD(kApiTag, "%s : parameter rat(%d) is invlad", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
    if (rat == kNr) {
        return forward(__func__, &VornAtClient::setAntForceStateByRat, rat, state, userData, callback);
    }
    return forward(__func__, &VornVsClient::setAntForceStateByRat, rat, state, userData, callback);
}

int radiosetTxPathFilter(signed char rat, int band, int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setTxPathFilter, rat, band, mode, userData, callback);
}

int radioGetTxCarkit(int radioTech, int uiBand, int subband, int option, void* userData,
                     RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::getTxCarkit, radioTech, uiBand, subband, option, userData,
                   callback);
}

int radioSetAolScenario(int scenario, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setAolScenario, scenario, userData, callback);
}
