#include "api/registry.h"
#include "radio_apis/bands.h"

int radioSetBandPrefer(int rat, const unsigned char* bands, unsigned int length, void* userData,
                       RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setBandPrefer, rat, bands, length, userData, callback);
}

int radioGetBandPrefer(int rat, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getBandPrefer, rat, userData, callback);
}

int radioGetAvailableBandModes(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getAvailableBandModes, userData, callback);
}

int radioGetBand(int nwType, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getBand, nwType, userData, callback);
}

int radioGetBandsTxNum(int radioTech, int uiBand, int subband, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getBandsTxNum, radioTech, uiBand, subband, userData, callback);
}
