/// Answers to the questions after bands: the first byte chooses one, the others are the answer's text.
#include "at/vorn_at_client.h"
#include "radio_apis/results.h"
#include "support/fake_modem.h"

#include <cstdlib>

namespace {

using test::FakeModem;

void onResult(void* calls, RADIO_APIS_RESULT, RadioApisResultType* record)
{
    ++*static_cast<int*>(calls);
    if (record == nullptr) {
        std::abort();
    }
}

void onBandPrefer(void* calls, RADIO_APIS_RESULT result, RadioApisResultType* record)
{
    onResult(calls, result, record);
    if (record->rsp.bandPrefer.length > kRadioMaxBandBytes) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto client = mindroid::make<VornAtClient>(false, 0);
    if (size == 0) {
        return 0;
    }
    const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
    const test::Fields answer = {test::result(0), test::text(0x8100, text.c_str())};
    const int question = data[0] % 16;
    int calls = 0;
    int refused = 0;
    if (question < 8) {
        refused = client->getBandPrefer(question, &calls, onBandPrefer);
    } else if (question < 14) {
        refused = client->getBand(question - 8, &calls, onResult);
    } else if (question == 14) {
        refused = client->getAvailableBandModes(&calls, onResult);
    } else {
        refused = client->getBandsTxNum(5, 78, 0, &calls, onResult);
    }
    while (!FakeModem::instance().sent.empty()) {
        FakeModem::instance().answer(answer);
    }
    if (calls != (refused == 0 ? 1 : 0)) {
        std::abort();
    }
    return 0;
}
