/// Calls over IMS and Wi-Fi.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

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

int VornAtClient::setCarrierOmacpFqdn(const char* fqdn, void* userData, RadioRequestCallback cb)
{
    return isPlainText(__func__, fqdn)
               ? sendSetter(AtText<256>("AT+EPVSSET=\"epdg_identifier\",\"%s\"", fqdn), userData, cb)
               : RADIO_APIS_FAILURE;
}
