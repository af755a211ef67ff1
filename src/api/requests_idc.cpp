#include "api/registry.h"
#include "radio_apis/idc.h"

int radioSetIdcOffset(int rat, int offset, const std::vector<RadioIdcOffsetConfig>& configs, void* userData,
                      RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::setIdcOffset, rat, offset, configs, userData, callback);
}
