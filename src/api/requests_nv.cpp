#include "api/registry.h"
#include "radio_apis/nv.h"

int radioReadNv(int id, signed char index, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::readNv, id, index, userData, callback);
}

int radioWriteNv(int id, signed char index, const unsigned char* data, unsigned int dataLen, void* userData,
                 RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::writeNv, id, index, data, dataLen, userData, callback);
}
