/// Answers to every question that is asked by an AT command: the first byte chooses one, the others are the answer's
/// text.
#include "at/vorn_at_client.h"
#include "requests.h"
#include "support/fake_modem.h"

#include <cstdlib>

/// This one is kept alive by strong pointers.
template <>
VornAtClient& fuzz::client()
{
    static const auto only = mindroid::make<VornAtClient>(false, 0);
    return *only;
}

namespace {

using At = VornAtClient;
using fuzz::asked;
using test::FakeModem;

void onBandPrefer(void* calls, RADIO_APIS_RESULT result, RadioApisResultType* record)
{
    fuzz::onResult(calls, result, record);
    if (record->rsp.bandPrefer.length > kRadioMaxBandBytes) {
        std::abort();
    }
}

std::vector<fuzz::Request> questions()
{
    std::vector<fuzz::Request> all = {
        asked(&At::getOperationMode),       asked(&At::queryFastDormancyMode),
        asked(&At::getImsUssdEnabled),      asked(&At::getSarSnsData),
        asked(&At::getAvailableBandModes),  asked(&At::queryLegacyFastDormancyMode),
        asked(&At::getCaStatus, 4),         asked(&At::getQrxlvminCfg, 13),
        asked(&At::getQrxlvminCfg, 20),     asked(&At::getCaStatus, 5),
        asked(&At::getNrcaConfig),          asked(&At::readNRCAConfig),
        asked(&At::getBwpConfig),           asked(&At::readDssConfig),
        asked(&At::getSimCardType, 0),      asked(&At::getServiceMode),
        asked(&At::getCentricMode),         asked(&At::getSimlockCategoryData),
        asked(&At::getBandsTxNum, 5, 78, 0)};
    for (int rat = 0; rat < 8; ++rat) {
        all.push_back([=](int* calls) { return fuzz::client<At>().getBandPrefer(rat, calls, onBandPrefer); });
        all.push_back(asked(&At::getBand, rat));
    }
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto all = questions();
    if (size == 0) {
        return 0;
    }
    const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
    const test::Fields answer = {test::result(0), test::text(0x8100, text.c_str())};
    int calls = 0;
    const int refused = all[data[0] % all.size()](&calls);
    while (!FakeModem::instance().sent.empty()) {
        FakeModem::instance().answer(answer);
    }
    if (calls != (refused == 0 ? 1 : 0)) {
        std::abort();
    }
    return 0;
}
