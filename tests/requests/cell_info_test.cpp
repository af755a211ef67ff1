#include "support/request_rows.h"

using namespace test;

TEST(CellInfo, Requests)
{
    // A serving cell block whose every byte tells its place, and what becomes of it: bytes 24 to 27 are left out.
    const Field servingBlock = raw(256, counting(83, 0));
    const Bytes servingCell = joined({packed(0u), counting(24, 0), counting(55, 28)});
    const auto allCells = [&](const Texts& log, size_t neighbours, uint32_t kept) {
        Bytes record = joined({servingCell, {0}, packed(kept)});
        std::vector<Bytes> elements;
        for (size_t i = 0; i < neighbours; ++i) {
            elements.push_back(counting(i == 1 ? 5 : 40, static_cast<uint8_t>(i)));
            if (i < kept) {
                append(record, elements[i]);
                record.resize(88 + 32 * (i + 1));
            }
        }
        return query(Flag, log, radioGetAllCellularCellInfo, 0x3821, {}, {servingBlock, array(257, elements)},
                     record);
    };
    checkVendorRows({
        query(Untold, "getLteCellInfo - enter. slotId=2", radioGetLteCellInfo, 0x3813, {},
              {uint32(256, 1300), uint8(257, 200), uint32(258, 0x100)}, packed(1300, 200, 1)),
        query(Untold, {"getRRCStatus - enter. slotId=2", "operator() rrc status:2  "}, radioGetRRCStatus,
              0x3825, {}, {uint32(256, 2)}, packed(2)),
        query(Untold, {}, radioGetRRCStatus, 0x3825, {}, {}, packed(1)),
        query(Flag,
              {entered("radioGetServingCellularCellInfo"), "getServingCellularCellInfo - enter. slotId=2"},
              radioGetServingCellularCellInfo, 0x381F, {}, {servingBlock}, servingCell),
        allCells({"getAllCellularCellInfo - enter. slotId=2", "neighbor_cell_info_len:70"}, 70, 64),
        allCells({}, 0, 0),
        allCells({}, 3, 3),
    });
}
