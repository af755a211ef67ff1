#include "api/registry.h"
#include "radio_apis/device_state.h"

int radioSendScreenState(int screenState, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendScreenState, screenState, userData, callback);
}

int radioSetMicroMotionState(int microMotionState, int multiplier, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setMicroMotionState, microMotionState, multiplier, userData,
                   callback);
}

int radioSetSyncWithAp(int sync, void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::setSyncWithAp, sync, userData, callback);
}

int radioSetFeatureState(int feature, int state, void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::setFeatureState, feature, state, userData, callback);
}

int radioGetFeatureState(int feature, void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::getFeatureState, feature, userData, callback);
}

int radioDispatchCase(unsigned int caseId, int param1, int param2, int param3, void* userData,
                      RadioRequestCallback callback)
{
    zorLogD(kApiTag, "radioDispatchCase: enter");
    return forward(__func__, &VornVsClient::dispatchCase, caseId, param1, param2, param3, userData, callback);
}

int radioSetDiagnoseConfig(unsigned int type, int* values, unsigned int count, void* userData,
                           RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setDiagnoseConfig, type, values, count, userData, callback);
}

int radioSetSidoIssueConfig(int* values, unsigned int count, void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::setSidoIssueConfig, values, count, userData, callback);
}

int radioSendDeviceStateExt(int deviceStateExt, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::sendDeviceStateExt, deviceStateExt, userData, callback);
}

int radioSetImbState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::setImbState, state, userData, callback);
}

int radioUpdateFoldScreenStatus(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::updateFoldScreenStatus, state, userData, callback);
}

int radioSetImeiSvn(int svn, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setImeiSvn, svn, userData, callback);
}
