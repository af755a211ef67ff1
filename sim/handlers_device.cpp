// What the modem tells about itself and the device, and the SIM lock data that it keeps.

#include "contents.h"
#include "handlers.h"

#include <string_view>

namespace sim {
namespace {

struct Heap {
    std::string_view name; ///< at most 19 characters
    uint32_t size;
    uint32_t used;
};

constexpr Heap kHeaps[] = {
    {"layer1", 2'097'152, 1'310'720},
    {"rrc", 4'194'304, 2'359'296},
    {"nas", 1'048'576, 393'216},
    {"ims", 3'145'728, 1'572'864},
};
constexpr uint32_t kPoolSize = 16'777'216;
constexpr size_t kHeapNameSize = 20;

} // namespace

/// Online or off: in terms of AT commands, full functionality or radio off.
Answer getOperationMode(Slot& slot, const Request&)
{
    Answer answer;
    answer.fields.setNumber(256, static_cast<uint8_t>(slot.radioOn()));
    return answer;
}

Answer setOperationMode(Slot& slot, const Request& request)
{
    slot.setLevel(request.fields.number<uint8_t>(256) == 1 ? "1" : "4");
    return {};
}

/// The same that the indication of its changes tells.
Answer getMultiSimState(Slot& slot, const Request& request)
{
    return {ModemResult::Success, multiSimContents({request.slots, slot})};
}

/// The modem assumes what it is told.
Answer sendDeviceState(Slot& slot, const Request& request)
{
    slot.settings.store(request.spec, request.fields);
    return {ModemResult::Success, request.fields};
}

/// The band asked for in 16 bits, and the number of transmitters that serve it.
Answer getCarkit(Slot& slot, const Request& request)
{
    constexpr uint8_t kUnknownRat = 255;
    const Bytes& query = request.fields.bytes(0x8102);
    if (toNumber<uint8_t>(query, 2) == kUnknownRat) {
        return {ModemResult::NotSupported};
    }
    const auto band = toNumber<uint16_t>(query);
    uint8_t transmitters = 1;
    for (const Cell* cell : {slot.camped(), slot.lteCell()}) {
        if (cell != nullptr && cell->band == band) {
            transmitters = cell->txAntennas;
        }
    }
    Bytes data = toBytes(band);
    append(data, transmitters);
    Answer answer;
    answer.fields.set(0x8100, std::move(data));
    return answer;
}

Answer getSimTrays(Slot& slot, const Request&)
{
    std::vector<Bytes> trays;
    for (const int32_t tray : slot.simTrays) {
        trays.push_back(toBytes(tray));
    }
    Answer answer;
    answer.fields.set(256, std::move(trays));
    return answer;
}

/// Keeps a SIM lock blob or status, field 256 or 257, and hands it back.
Answer setLockData(Slot& slot, const Request& request)
{
    slot.settings.store(request.spec, request.fields);
    Answer answer;
    answer.fields.set(257, request.fields.begin()->second);
    return answer;
}

/// The type asked for, the number of bytes that came with the request, and these.
Answer getNecData(Slot&, const Request& request)
{
    const auto& elements = request.fields.elements(257);
    Bytes block = toBytes(request.fields.number<int32_t>(256));
    append(block, static_cast<uint32_t>(elements.size()));
    for (const Bytes& element : elements) {
        block.push_back(element.front());
    }
    Answer answer;
    answer.fields.set(256, std::move(block));
    return answer;
}

/// The serving cell block, or nothing without service.
Answer getProtocolInfo(Slot& slot, const Request&)
{
    const Cell* cell = slot.camped();
    Answer answer;
    answer.fields.set(256, cell != nullptr ? servingCellBlock(*cell, slot.plmn) : Bytes());
    return answer;
}

/// Words: number of pools, size, used and free bytes of the pool, its largest free block, number of heaps;
/// then for each heap its name of 20 bytes, its size and its used bytes.
Answer getHeapList(Slot&, const Request&)
{
    uint32_t used = 0;
    for (const Heap& heap : kHeaps) {
        used += heap.used;
    }
    Bytes block;
    for (const uint32_t word : {1U, kPoolSize, used, kPoolSize - used, (kPoolSize - used) / 2,
                                static_cast<uint32_t>(std::size(kHeaps))}) {
        append(block, word);
    }
    for (const Heap& heap : kHeaps) {
        const size_t begin = block.size();
        block.insert(block.end(), heap.name.begin(), heap.name.end());
        block.resize(begin + kHeapNameSize);
        append(block, heap.size);
        append(block, heap.used);
    }
    Answer answer;
    answer.fields.set(256, std::move(block));
    return answer;
}

/// The statistics go to the modem's own log; the answer only says that they were taken.
Answer getPowerStatistics(Slot&, const Request&)
{
    return {};
}

/// The first mode that the Wi-Fi side reported, and the band that the modem transmits in.
Answer getRfIccInfo(Slot& slot, const Request&)
{
    const Fields* modes = slot.settings.find("SendRfIccModeState", {});
    const Cell* cell = slot.camped();
    Answer answer;
    answer.fields.setNumber(256, modes != nullptr ? modes->number<uint8_t>(256) : uint8_t{0});
    answer.fields.setNumber(257, static_cast<uint16_t>(cell != nullptr ? cell->band : 0));
    return answer;
}

} // namespace sim
