/// Carrier aggregation, bandwidth parts and dynamic spectrum sharing.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

namespace {

constexpr int kLte = 4;
constexpr int kNr = 5;
constexpr char kGetNrca[] = "AT+ESBP=7,\"SBP_NR_CA\"";

int32_t storeNrca(RadioApisResultType& record, int32_t field)
{
    return record.rsp.nrcaConfig.nrcaState = static_cast<uint8_t>(field);
}

int32_t storeBwp(RadioApisResultType& record, int32_t field)
{
    return record.rsp.bwpConfig.bwpState = static_cast<uint8_t>(field);
}

int32_t storeCa(RadioApisResultType& record, int32_t field)
{
    return record.rsp.caInfo.caStatus = field;
}

int32_t storeDss(RadioApisResultType& record, int32_t field)
{
    return record.rsp.dssConfig.value = field;
}

} // namespace

int VornAtClient::setCaStatus(int rat, bool enable, void* userData, RadioRequestCallback cb)
{
    switch (rat) {
    case kNr:
        return sendSetter(AtText<64>("AT+ESBP=5,\"SBP_NR_CA\",%d", enable ? 1 : 0), userData, cb);
    case kLte:
        return sendSetter(AtText<64>("AT+ECASW=%d", enable ? 1 : 0), userData, cb);
    default:
        zorLogE(kTag, "%s: unknown rat, rat:%d", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
}

int VornAtClient::getCaStatus(int rat, void* userData, RadioRequestCallback cb)
{
    if (rat != kLte && rat != kNr) {
        zorLogE(kTag, "%s: unknown rat, rat:%d", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
    return sendQuery(rat == kLte ? "AT+ECASW?" : kGetNrca, userData, cb,
                     at::singleValue(__func__, "caStatus", storeCa));
}

int VornAtClient::setNrcaConfig(unsigned char value, unsigned char, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+ESBP=5,\"SBP_NR_CA\",%d", value), userData, cb);
}

int VornAtClient::getNrcaConfig(void* userData, RadioRequestCallback cb)
{
    return sendQuery(kGetNrca, userData, cb, at::singleValue(__func__, "nrcaState", storeNrca));
}

int VornAtClient::readNRCAConfig(void* userData, RadioRequestCallback cb)
{
    return sendQuery(kGetNrca, userData, cb, at::singleValue(__func__, "nrcaState", storeNrca));
}

int VornAtClient::setBwpConfig(unsigned char value, unsigned char, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+ESBP=5,\"SBP_NR_BWP_SWITCH\",%d", value), userData, cb);
}

int VornAtClient::getBwpConfig(void* userData, RadioRequestCallback cb)
{
    return sendQuery("AT+ESBP=7,\"SBP_NR_BWP_SWITCH\"", userData, cb,
                     at::singleValue(__func__, "bwpState", storeBwp));
}

int VornAtClient::setWhiteSANRCAConfig(const char* list, void* userData, RadioRequestCallback cb)
{
    return isPlainText(__func__, list)
               ? sendSetter(AtText<256>("AT+ECACOMB=1,4,\"%s\",1", list), userData, cb)
               : RADIO_APIS_FAILURE;
}

int VornAtClient::setBlackSANRCAConfig(const char* list, void* userData, RadioRequestCallback cb)
{
    return isPlainText(__func__, list)
               ? sendSetter(AtText<256>("AT+ECACOMB=1,5,\"%s\",1", list), userData, cb)
               : RADIO_APIS_FAILURE;
}

int VornAtClient::setWhiteNSANRCAConfig(const char* list, void* userData, RadioRequestCallback cb)
{
    return isPlainText(__func__, list)
               ? sendSetter(AtText<256>("AT+ECACOMB=1,2,\"%s\",1", list), userData, cb)
               : RADIO_APIS_FAILURE;
}

int VornAtClient::resetSANSAWhiteList(int list, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+ECACOMB=1,%d,\"reset\",1", list), userData, cb);
}

int VornAtClient::setDssConfig(int value, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE\",%d", value),
                      userData, cb);
}

int VornAtClient::setDssAdditionalConfig(int value, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_UE_CAP_DSS_ADDITIONAL_CTRL\",%d", value), userData, cb);
}

int VornAtClient::readDssConfig(void* userData, RadioRequestCallback cb)
{
    return sendQuery("AT+ESBP=7,\"SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE\"", userData, cb,
                     at::singleValue(__func__, "value", storeDss));
}

int VornAtClient::setUst5gUCBandConfig(const char* lteBands, const char* nrBands, void* userData,
                                       RadioRequestCallback cb)
{
    if (!isPlainText(__func__, lteBands) || !isPlainText(__func__, nrBands)) {
        return RADIO_APIS_FAILURE;
    }
    return sendSetter(AtText<256>("AT+E5GUC=2,,\"%s\",\"%s\",,", lteBands, nrBands), userData, cb);
}

int VornAtClient::setUst5gUCConfig(unsigned char, unsigned char, unsigned char, void*, RadioRequestCallback)
{
    zorLogE(kTag, "%s : unsupported operation, plese see Java setUst5gUCConfig instead", __func__);
    return RADIO_APIS_FAILURE;
}
