#include "api/registry.h"
#include "radio_apis/search.h"

int radioHplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::hplmnBgSearch, info, userData, callback);
}
