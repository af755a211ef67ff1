#include "api/registry.h"
#include "radio_apis/cell_info.h"

int radioGetLteCellInfo(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getLteCellInfo, userData, callback);
}

int radioGetRRCStatus(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getRRCStatus, userData, callback);
}

int radioGetServingCellularCellInfo(void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::getServingCellularCellInfo, userData, callback);
}

int radioGetAllCellularCellInfo(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getAllCellularCellInfo, userData, callback);
}
