/// The device around the modem: sensors, screen, identity, test tables, calls over IMS and Wi-Fi.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

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

int VornAtClient::setAolScenario(int scenario, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+ERFIDX=0,%d", scenario), userData, cb);
}

int VornAtClient::updateFoldScreenStatus(int state, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+EDMFAPP=20000,204,\"%d\"", state), userData, cb);
}

int VornAtClient::setImeiSvn(int svn, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<32>("AT+EGMR=1,9,\"%02x\"", static_cast<unsigned>(svn)), userData, cb);
}

int VornAtClient::setAtcTableInit(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+EGMC=1,\"RF_EM_Init\"", userData, cb);
}

int VornAtClient::setAtcTableDeInit(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+EGMC=1,\"RF_EM_DeInit\"", userData, cb);
}

int VornAtClient::setCarrierOmacpFqdn(const char* fqdn, void* userData, RadioRequestCallback cb)
{
    return isPlainText(__func__, fqdn)
               ? sendSetter(AtText<256>("AT+EPVSSET=\"epdg_identifier\",\"%s\"", fqdn), userData, cb)
               : RADIO_APIS_FAILURE;
}

int VornAtClient::getImsUssdEnabled(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER", __func__);
    const auto store = [](RadioApisResultType& record, int32_t field) {
        return record.rsp.imsUssd.enabled = field;
    };
    return sendQuery("AT+ECFGGET=\"ussd_support\"", userData, cb,
                     at::singleValue(__func__, "enabled", store));
}

int VornAtClient::setCiwlanUiSwitch(bool enable, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "VornAtClient setCiwlanUiSwitch enable=%d", enable ? 1 : 0);
    if (!enable) {
        return sendSetter("AT+EVODATA=0,0,0,0", userData, cb);
    }
    // What becomes of Wi-Fi calling itself is not for the caller, who waits for the second answer alone.
    sendAtCommand("AT+EWFCP=1", nullptr, mindroid::make<AtResponseCallback>(completeWithoutResultCheck));
    return sendSetter("AT+EVODATA=1,0,0,1", userData, cb);
}
