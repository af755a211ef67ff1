/// Answers to requests of the vendor and the standard client: the first byte chooses the request, the second one
/// whether a good result goes first, the others make the answer's fields.
#include "input.h"
#include "radio/vorn_radio_client.h"
#include "requests.h"
#include "support/fake_modem.h"
#include "vs/vorn_vs_client.h"

#include <cstdlib>

namespace {

using fuzz::asked;
using test::FakeModem;

int gNumbers[] = {1, 2};
const unsigned char kBytes[] = {1, 2};

/// Every request whose answer is read, and one of each client for which the result is all.
const std::vector<fuzz::Request>& requests()
{
    using Vs = VornVsClient;
    using Radio = VornRadioClient;
    static const std::vector<fuzz::Request> all = {
        asked(&Vs::getFeatureState, 1),
        asked(&Vs::getSarDsiState),
        asked(&Vs::getPowerStatistics),
        asked(&Vs::getModemHeapList),
        asked(&Vs::getSimTrayStatus),
        asked(&Vs::getSmlStatus, kBytes, 2U),
        asked(&Vs::getRlkStatus, kBytes, 2U),
        asked(&Vs::getLteCellInfo),
        asked(&Vs::getRRCStatus),
        asked(&Vs::getServingCellularCellInfo),
        asked(&Vs::getAllCellularCellInfo),
        asked(&Vs::getSceneMode, gNumbers, 2U),
        asked(&Vs::getAtomData, 1, 2, gNumbers, 2U),
        asked(&Vs::getMetricsData, 1, 2, 3, gNumbers, 2U),
        asked(&Vs::getNecData, 1, kBytes, 2U),
        asked(&Vs::getModemProtocolInfo),
        asked(&Vs::getModemIndicationPolicy),
        asked(&Vs::getIndicationReportRecords),
        asked(&Vs::getQosData, 1),
        asked(&Vs::getRfIccInfo),
        asked(&Vs::getNetworkActionState, 1),
        asked(&Vs::sendScreenState, 1),
        asked(&Radio::getOperationMode),
        asked(&Radio::getMsimSubModeState),
        asked(&Radio::readNv, 1, int8_t{0}),
        asked(&Radio::getTxCarkit, 6, 1, 0, 0),
        asked(&Radio::requestIccSimAuthentication, RadioUimAuthenticateReqInfo{}),
        asked(&Radio::getImsRtpRedunCapability),
        asked(&Radio::getImsRtpRedunPublicKey, RadioImsRtpRedunKeyInfoType{}),
        asked(&Radio::getDataActPacketRoute),
        asked(&Radio::getDataIfupPacketRoute),
        asked(&Radio::writeNv, 1, int8_t{0}, kBytes, 2U),
    };
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2) {
        return 0;
    }
    int calls = 0;
    if (requests()[data[0] % requests().size()](&calls) != 0) {
        std::abort();
    }
    const host::MessagePtr answer(vorn_msg_init(0, 1));
    if (data[1] % 2 == 0) {
        const uint32_t success = 0;
        vorn_msg_add_tlv(answer.get(), 0, sizeof success, &success);
    }
    fuzz::Input fields(data + 2, size - 2);
    fuzz::addFields(answer.get(), fields);
    FakeModem::instance().answerWith(answer.get());
    if (calls != 1) {
        std::abort();
    }
    return 0;
}
