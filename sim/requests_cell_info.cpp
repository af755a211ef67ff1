// Where the modem camps: cell information and the state of the radio connection.

#include "requests.h"

namespace sim {
namespace {

Answer getLteCellInfo(Slot& slot, const Request&)
{
    const Cell* cell = slot.lteCell();
    const Cell none;
    const Cell& shown = cell != nullptr ? *cell : none;
    Answer answer;
    answer.fields.setNumber<uint32_t>(256, shown.arfcn);
    answer.fields.setNumber<uint32_t>(257, shown.pci);
    answer.fields.setNumber<uint32_t>(258, shown.rrc == RrcState::Connected ? 1 : 0);
    return answer;
}

Answer getServingCell(Slot& slot, const Request&)
{
    const Cell* cell = slot.camped();
    return blockAnswer(cell != nullptr ? servingCellBlock(*cell, slot.plmn) : servingCellBlock({}, {}));
}

Answer getAllCells(Slot& slot, const Request& request)
{
    Answer answer = getServingCell(slot, request);
    std::vector<Bytes> neighbours;
    if (slot.radioOn()) {
        for (const Cell& cell : slot.neighbours) {
            neighbours.push_back(neighbourBlock(cell));
        }
    }
    answer.fields.set(257, std::move(neighbours));
    return answer;
}

Answer getRrcStatus(Slot& slot, const Request&)
{
    const Cell* cell = slot.camped();
    Answer answer;
    answer.fields.setNumber(256, static_cast<uint32_t>(cell != nullptr ? cell->rrc : RrcState::Idle));
    return answer;
}

} // namespace

Domain cellInfoRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetAllCellularCellInfo", getAllCells},
        {"GetLteCellInfo", getLteCellInfo},
        {"GetRRCStatus", getRrcStatus},
        {"GetServingCellularCellInfo", getServingCell},
    };
    return {messages};
}

} // namespace sim
