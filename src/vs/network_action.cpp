/// Network actions.
#include "vs/action_cell.h"
#include "vs/vs_request.h"

#include <cstring>

using vs::kTag;

namespace {

/// Copies an optional value; `flag` says on the wire whether it is there. The values on the wire are not
/// aligned.
template <typename Value>
void copyOptional(uint16_t present, const Value& in, uint8_t& flag, void* out)
{
    flag = static_cast<uint8_t>(present);
    if (present != 0) {
        std::memcpy(out, &in, sizeof in);
    }
}

uint8_t cutToList(uint16_t count)
{
    return static_cast<uint8_t>(std::min<unsigned>(count, kRadioMaxActionListEntries));
}

void copyCell(const RadioActionCellInfo& in, vorn_vs_action_cell_info_s_type& out)
{
    out.value1 = in.value1;
    out.value2 = in.value2;
    out.value3 = in.value3;
    out.value4 = in.value4;
    out.value5 = in.value5;
    out.value6 = in.value6;
    out.value7 = in.value7;
    out.value8 = in.value8;
    out.value9 = in.value9;
    copyOptional(in.aPresent, in.a, out.aPresent, &out.a);
    copyOptional(in.bPresent, in.b, out.bPresent, &out.b);
    out.cCount = cutToList(in.cCount);
    std::memcpy(out.c, in.c, out.cCount * sizeof in.c[0]);
    copyOptional(in.dPresent, in.d, out.dPresent, &out.d);
    copyOptional(in.ePresent, in.e, out.ePresent, &out.e);
    copyOptional(in.fPresent, in.f, out.fPresent, &out.f);
    copyOptional(in.gPresent, in.g, out.gPresent, &out.g);
    copyOptional(in.hPresent, in.h, out.hPresent, &out.h);
    out.iPresent = static_cast<uint8_t>(in.iPresent);
    if (in.iPresent != 0) {
        out.jCount = cutToList(in.jCount);
        for (uint8_t i = 0; i < out.jCount; ++i) {
            out.j[i] = {in.j[i].value1, in.j[i].value2, in.j[i].value3};
        }
    }
}

void copyList(const RadioActionCellList& in, vorn_vs_action_cell_list_s_type& out)
{
    out.present = in.present;
    if (in.present != 0) {
        out.count = static_cast<uint8_t>(std::min<unsigned>(in.count, kRadioMaxActionCells));
        copyRadioActionCellInfo(out.count, out.cells, in.cells);
    }
}

/// Fills a zeroed block.
void copyCells(const RadioActionConfigType& action, vorn_vs_action_cells_s_type& cells)
{
    cells.header = action.header;
    cells.headerByte = action.headerByte;
    cells.optionalPresent = action.optionalPresent;
    if (action.optionalPresent != 0) {
        cells.optional = action.optional;
    }
    copyList(action.first, cells.first);
    copyList(action.second, cells.second);
}

} // namespace

void copyRadioActionCellInfo(uint8_t count, vorn_vs_action_cell_info_s_type* out,
                             const RadioActionCellInfo* in)
{
    for (uint8_t i = 0; i < count; ++i) {
        copyCell(in[i], out[i]);
    }
}

int VornVsClient::sendNetworkAction(const RadioActionConfigType& action, void* userData,
                                    RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SendNetworkAction);
    request->addVornTlvInt32(256, action.id);
    request->addVornTlvInt32(257, action.type);
    for (uint16_t i = 0; i < std::size(action.values); ++i) {
        request->addVornTlvInt32(static_cast<uint16_t>(258 + i), action.values[i]);
    }
    addRecords(*request, 262, action.parameters, action.parameterCount);
    if (action.cellsPresent != 0) {
        vorn_vs_action_cells_s_type cells{};
        copyCells(action, cells);
        request->addVornTlv(263, sizeof cells, &cells);
    }
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::rollbackNetworkAction(int id, int option, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::RollbackNetworkAction);
    request->addVornTlvInt32(256, id);
    request->addVornTlvInt32(257, option);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::getNetworkActionState(int id, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::GetNetworkActionState);
    request->addVornTlvInt32(256, id);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "getNetworkActionState cb enter");
        auto& state = out.rsp.networkActionState;
        state.id = in.getVornInt32Val(256, 0);
        state.state = in.getVornInt32Val(257, 0);
        state.detail = in.getVornInt32Val(258, 0);
    });
}
