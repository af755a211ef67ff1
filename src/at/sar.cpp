/// Specific absorption rate: the sensor.
#include "at/at_answer.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

int VornAtClient::connectSarSensor(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+ESARSEN=0,0", userData, cb);
}

int VornAtClient::disconnectSarSensor(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+ESARSEN=0,1", userData, cb);
}

int VornAtClient::setSarSensorChannel(int channel, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+ESARSIDX=0,%d", channel), userData, cb);
}

int VornAtClient::getSarSnsData(void* userData, RadioRequestCallback cb)
{
    return sendQuery("AT+ERFIDX?", userData, cb, at::severalValues(1));
}
