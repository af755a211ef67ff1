/// Answers to requests of the vendor and the standard client: the first byte chooses the request, the second one
/// whether a good result goes first, the others make the answer's fields.
#include "input.h"
#include "radio/vorn_radio_client.h"
#include "radio_apis/results.h"
#include "support/fake_modem.h"
#include "vs/vorn_vs_client.h"

#include <cstdlib>

namespace {

using test::FakeModem;

/// Reads the whole record, as a caller would.
void onResult(void* calls, RADIO_APIS_RESULT, RadioApisResultType* record)
{
    ++*static_cast<int*>(calls);
    if (record == nullptr) {
        return;
    }
    volatile uint8_t last = 0;
    for (size_t i = 0; i < sizeof *record; ++i) {
        last = reinterpret_cast<const uint8_t*>(record)[i];
    }
    static_cast<void>(last);
}

int gNumbers[] = {1, 2};
constexpr unsigned char kBytes[] = {1, 2};

/// Every request whose answer is read, and one of those for whom the result is all.
int send(int request, int* calls)
{
    static VornVsClient vs(false, 0);
    static VornRadioClient radio(false, 0);
    switch (request) {
    case 0:
        return vs.getFeatureState(1, calls, onResult);
    case 1:
        return vs.getSarDsiState(calls, onResult);
    case 2:
        return vs.getPowerStatistics(calls, onResult);
    case 3:
        return vs.getModemHeapList(calls, onResult);
    case 4:
        return vs.getSimTrayStatus(calls, onResult);
    case 5:
        return vs.getSmlStatus(kBytes, 2, calls, onResult);
    case 6:
        return vs.getRlkStatus(kBytes, 2, calls, onResult);
    case 7:
        return vs.getLteCellInfo(calls, onResult);
    case 8:
        return vs.getRRCStatus(calls, onResult);
    case 9:
        return vs.getServingCellularCellInfo(calls, onResult);
    case 10:
        return vs.getAllCellularCellInfo(calls, onResult);
    case 11:
        return vs.getSceneMode(gNumbers, 2, calls, onResult);
    case 12:
        return vs.getAtomData(1, 2, gNumbers, 2, calls, onResult);
    case 13:
        return vs.getMetricsData(1, 2, 3, gNumbers, 2, calls, onResult);
    case 14:
        return vs.getNecData(1, kBytes, 2, calls, onResult);
    case 15:
        return vs.getModemProtocolInfo(calls, onResult);
    case 16:
        return vs.getModemIndicationPolicy(calls, onResult);
    case 17:
        return vs.getIndicationReportRecords(calls, onResult);
    case 18:
        return vs.getQosData(1, calls, onResult);
    case 19:
        return vs.getRfIccInfo(calls, onResult);
    case 20:
        return vs.getNetworkActionState(1, calls, onResult);
    case 21:
        return vs.sendScreenState(1, calls, onResult);
    case 22:
        return radio.getOperationMode(calls, onResult);
    case 23:
        return radio.getMsimSubModeState(calls, onResult);
    case 24:
        return radio.readNv(1, 0, calls, onResult);
    case 25:
        return radio.getTxCarkit(6, 1, 0, 0, calls, onResult);
    case 26:
        return radio.requestIccSimAuthentication({}, calls, onResult);
    case 27:
        return radio.getImsRtpRedunCapability(calls, onResult);
    case 28:
        return radio.getImsRtpRedunPublicKey({}, calls, onResult);
    case 29:
        return radio.getDataActPacketRoute(calls, onResult);
    case 30:
        return radio.getDataIfupPacketRoute(calls, onResult);
    default:
        return radio.writeNv(1, 0, kBytes, 2, calls, onResult);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2) {
        return 0;
    }
    int calls = 0;
    if (send(data[0] % 32, &calls) != 0) {
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
