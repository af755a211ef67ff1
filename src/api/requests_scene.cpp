#include "api/registry.h"
#include "radio_apis/scene.h"

int radioSetHyperUplinkMode(int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setHyperUplinkMode, mode, userData, callback);
}

int radioSetHyperUplinkParas(const RadioHyperUplinkParasType& paras, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setHyperUplinkParas, paras, userData, callback);
}

int radioSetSceneMode(int scene, int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSceneMode, scene, mode, userData, callback);
}

int radioGetSceneMode(int* scenes, unsigned int count, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getSceneMode, scenes, count, userData, callback);
}

int radioSetQoeScore(int type, int score, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setQoeScore, type, score, userData, callback);
}

int radioSendScoreInfo(const RadioScoreInfoListType& scores, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendScoreInfo, scores, userData, callback);
}

int radioSetSiteCellInfo(int action, const RadioSiteCellInfoType& info, void* userData,
                         RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSiteCellInfo, action, info, userData, callback);
}
