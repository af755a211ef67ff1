/// Cell information: what the modem says of its serving cell and its neighbours.
#include "vs/vs_request.h"

#include <algorithm>
#include <cstddef>

using vs::kTag;

namespace {

/// The modem's block differs from the record in its words at bytes 24 to 27, which have no place in the
/// record.
void fillServingCell(const VornView& in, RadioServingCell& out)
{
    out.failure = in.getResult() != 0;
    const auto block = in.bytes(256);
    const auto copy = [&](size_t from, size_t to, size_t until) {
        copyBytes(block, from, {reinterpret_cast<uint8_t*>(&out) + to, until - to});
    };
    copy(0, offsetof(RadioServingCell, rat), offsetof(RadioServingCell, cellIdLow));
    copy(28, offsetof(RadioServingCell, cellIdLow), offsetof(RadioServingCell, txAntennas) + 1);
}

} // namespace

int VornVsClient::getLteCellInfo(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    return query(newRequest(VsMessage::GetLteCellInfo), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     auto& info = out.rsp.lteCellInfo;
                     info.arfcn = in.getVornUint32Val(256, 0);
                     info.pci = in.getVornUint32Val(257, 0);
                     info.connected = in.getVornUint32Val(258, 0) != 0;
                 });
}

int VornVsClient::getRRCStatus(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    return query(newRequest(VsMessage::GetRRCStatus), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     auto& status = out.rsp.rrcStatus.status;
                     status = in.getVornUint32Val(256, 1);
                     zorLogD(kTag, "%s rrc status:%d  ", "operator()", static_cast<int>(status));
                 });
}

int VornVsClient::getServingCellularCellInfo(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    return query(
        newRequest(VsMessage::GetServingCellularCellInfo), userData, cb,
        [](const VornView& in, RadioApisResultType& out) { fillServingCell(in, out.rsp.servingCellInfo); });
}

int VornVsClient::getAllCellularCellInfo(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    return query(newRequest(VsMessage::GetAllCellularCellInfo), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     auto& cells = out.rsp.allCellInfo;
                     fillServingCell(in, cells.serving);
                     const uint16_t count = in.getVornArrayTlvNum(257);
                     zorLogD(kTag, "neighbor_cell_info_len:%d", count);
                     cells.neighbourCount = std::min<uint32_t>(count, kRadioMaxNeighbourCells);
                     for (uint16_t i = 0; i < cells.neighbourCount; ++i) {
                         copyBytes(
                             in.elementBytes(257, i), 0,
                             {reinterpret_cast<uint8_t*>(&cells.neighbours[i]), sizeof(RadioNeighbourCell)});
                     }
                 });
}
