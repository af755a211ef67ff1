#include "api/registry.h"
#include "radio_apis/atom.h"

int radioLoadAtomApplication(const RadioLoadAtomApplicationType& application, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::loadAtomApplication, application, userData, callback);
}

int radioUnloadAtomApplication(int id, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::unloadAtomApplication, id, userData, callback);
}

int radioSetAtomStatus(int id, int status, int subPolicy, const RadioAtomInfoType& info, void* userData,
                       RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setAtomStatus, id, status, subPolicy, info, userData, callback);
}

int radioGetAtomData(int type, int option, int* ids, unsigned int count, void* userData,
                     RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getAtomData, type, option, ids, count, userData, callback);
}
