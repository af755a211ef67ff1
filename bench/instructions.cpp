/// Does one thing as often as asked, for a tool that counts instructions: instructions CASE TIMES.
#include "at/at_cmd_parser.h"
#include "host/device.h"
#include "inputs.h"
#include "radio_apis/converters.h"
#include "radio_apis/radio_apis.h"
#include "vorn/vorn_msg.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <semaphore>
#include <string>

namespace {

std::binary_semaphore answered(0);
volatile uint32_t gSink;

void onResult(void*, RADIO_APIS_RESULT, RadioApisResultType*)
{
    answered.release();
}

void openLibrary()
{
    setenv("RADIO_VORN_DEVICE", "embedded", 1);
    host::setProperty("ro.vendor.zor_vorn_support", "1");
    if (radioApisInit(RADIO_APIS_SERVICE_MODEM, 0) != RADIO_APIS_SUCCESS) {
        std::abort();
    }
}

void voidRequest(int times)
{
    openLibrary();
    for (int i = 0; i < times; ++i) {
        radioSetSarState(1, 2, nullptr, onResult);
        answered.acquire();
    }
}

template <uint16_t kFields>
void buildMessage(int times)
{
    for (int i = 0; i < times; ++i) {
        vorn_msg_deinit(bench::messageOfNumbers(kFields));
    }
}

template <uint16_t kFields>
void readMessage(int times)
{
    vorn_msg_t* message = bench::messageOfNumbers(kFields);
    for (int i = 0; i < times; ++i) {
        for (uint16_t tag = bench::kFirstTag; tag < bench::kFirstTag + kFields; ++tag) {
            uint16_t size = 0;
            uint32_t value = 0;
            std::memcpy(&value, vorn_msg_get_val_ptr(message, tag, &size), sizeof value);
            gSink = value;
        }
    }
    vorn_msg_deinit(message);
}

template <int kFields>
void parseAnswer(int times)
{
    const std::string text = bench::answerWithFields(kFields);
    for (int i = 0; i < times; ++i) {
        AtCmdParser::instance().parserAtCmdResponse(text.c_str());
    }
}

void ignore(RADIO_EVENT_TYPE, void*, void* data, int)
{
    gSink = static_cast<const RadioVeyraCellInfo*>(data)->count;
}

void measurementReport(int times)
{
    vorn_msg_t* indication = bench::reportIndication();
    for (int i = 0; i < times; ++i) {
        vornVsClientNotifyVeyraInfoIndEvent(indication, 0, nullptr, ignore);
    }
    vorn_msg_deinit(indication);
}

} // namespace

int main(int argc, char** argv)
{
    const std::map<std::string, void (*)(int)> cases = {
        {"voidRequest", voidRequest},     {"messageBuilt3", buildMessage<3>},
        {"messageRead3", readMessage<3>}, {"messageRead10", readMessage<10>},
        {"atAnswer1", parseAnswer<1>},    {"atAnswer5", parseAnswer<5>},
        {"atAnswer24", parseAnswer<24>},  {"measurementReport", measurementReport},
    };
    const auto found = argc == 3 ? cases.find(argv[1]) : cases.end();
    if (found == cases.end()) {
        std::fputs("Usage: instructions CASE TIMES\n", stderr);
        return 2;
    }
    found->second(std::atoi(argv[2]));
    return 0;
}
