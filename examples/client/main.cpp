#include <radio_apis/radio_apis.h>

#include <cstdio>
#include <semaphore>

int main()
{
    if (radioApisInit(RADIO_APIS_SERVICE_MODEM, 0) != RADIO_APIS_SUCCESS) {
        return 1;
    }
    std::binary_semaphore answered(0);
    const auto onAnswer = [](void* user, RADIO_APIS_RESULT result, RadioApisResultType* record) {
        if (result == RADIO_APIS_SUCCESS) {
            std::printf("EARFCN %u, PCI %u\n", record->rsp.lteCellInfo.arfcn, record->rsp.lteCellInfo.pci);
        }
        static_cast<std::binary_semaphore*>(user)->release();
    };
    if (radioGetLteCellInfo(&answered, onAnswer) == RADIO_APIS_SUCCESS) {
        answered.acquire();
    }
}
