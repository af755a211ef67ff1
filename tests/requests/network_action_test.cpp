#include "support/request_rows.h"

using namespace test;

namespace {

/// Cells differ in how many entries their lists have, and in whether their optional values are present.
RadioActionCellInfo actionCell(uint16_t number)
{
    const auto count = static_cast<uint16_t>(number % 19 == 18 ? 0x0300 : number % 19);
    RadioActionCellInfo info{
        number, 0x0203,     0x04,   0x05060708, 0x09, 0x0A0B0C0D, 0x0E0F, 0x10, 0x1112131415161718,
        0x0A01, 0x191A1B1C, 0x0A02, 0x1D1E1F20, count};
    std::tie(info.dPresent, info.d, info.ePresent, info.e, info.fPresent, info.f) =
        std::tuple(0x0A03, 0x21222324, 0x0A04, 0x25262728, 0x0A05, 0x292A2B2C);
    std::tie(info.gPresent, info.g[0], info.g[1]) = std::tuple(0x0A06, 0x2D2E2F30, 0x31323334);
    std::tie(info.hPresent, info.h[0], info.h[1], info.h[2]) =
        std::tuple(0x0A07, 0x35363738, 0x393A3B3C, 0x3D3E3F40);
    std::tie(info.iPresent, info.jCount) = std::tuple(0x0A08, count);
    if (number % 2 != 0) {
        info.aPresent = info.bPresent = info.dPresent = info.ePresent = 0;
        info.fPresent = info.gPresent = info.hPresent = info.iPresent = 0;
    }
    for (uint8_t i = 0; i < 16; ++i) {
        info.c[i] = 0x41424300u + i;
        info.j[i] = {static_cast<uint16_t>(0x4400 + i), static_cast<uint16_t>(0x4500 + i), i};
    }
    return info;
}

Bytes wireCell(uint16_t number)
{
    const auto count = static_cast<uint8_t>(std::min(number % 19, 16));
    Bytes bytes = packed(number, uint16_t{0x0203}, uint8_t{0x04}, 0x05060708, uint8_t{0x09}, 0x0A0B0C0D,
                         uint16_t{0x0E0F}, uint8_t{0x10}, 0x1112131415161718);
    const auto addOptional = [&](auto... values) {
        const Bytes part = packed(values...);
        append(bytes, number % 2 == 0 ? part : Bytes(part.size()));
    };
    addOptional(uint8_t{1}, 0x191A1B1C, uint8_t{2}, 0x1D1E1F20);
    bytes.push_back(count);
    for (int i = 0; i < count; ++i) {
        append(bytes, packed(0x41424300 + i));
    }
    bytes.resize(100);
    addOptional(uint8_t{3}, 0x21222324, uint8_t{4}, 0x25262728, uint8_t{5}, 0x292A2B2C, uint8_t{6},
                0x2D2E2F30, 0x31323334, uint8_t{7}, 0x35363738, 0x393A3B3C, 0x3D3E3F40, uint8_t{8}, count);
    for (uint8_t i = 0; i < count; ++i) {
        addOptional(static_cast<uint16_t>(0x4400 + i), static_cast<uint16_t>(0x4500 + i), i);
    }
    bytes.resize(219);
    return bytes;
}

/// The action with its numbers filled in; `sent` of its parameter blocks are due, and `cells`.
RequestRow action(const Texts& log, RadioActionConfigType action, int sent, const Fields& cells = {})
{
    Fields request = int32s(256, {1, -2, 3, 4, 5, 6});
    std::memcpy(&action, packed(1, -2, 3, 4, 5, 6).data(), 24);
    std::vector<Bytes> blocks;
    for (int i = 0; i < 8; ++i) {
        action.parameters[i] = {{i, 10 + i, 20 + i, 30 + i}};
        if (i < sent) {
            blocks.push_back(packed(i, 10 + i, 20 + i, 30 + i));
        }
    }
    request.push_back(array(262, blocks));
    return setter(log, radioSendNetworkAction, 0x3871, joined({request, cells}), action);
}

/// An action with lists of cells, and the numbers of cells that are due on the wire for them.
RequestRow cellLists(RadioActionCellList first, RadioActionCellList second, uint8_t firstSent,
                     uint8_t secondSent)
{
    Bytes block = packed(0x01828384, uint8_t{0x85}, uint8_t{0x86}, 0x0788898A);
    for (const auto& [list, sent, end] :
         {std::tuple{&first, firstSent, 14028u}, {&second, secondSent, 28046u}}) {
        append(block, {list->present, sent});
        for (uint16_t i = 0; i < 64; ++i) {
            list->cells[i] = actionCell(i);
            append(block, i < sent ? wireCell(i) : Bytes());
        }
        block.resize(end);
    }
    RadioActionConfigType config{.cellsPresent = 2, .header = 0x01828384, .headerByte = 0x85};
    config.optionalPresent = 0x86;
    config.optional = 0x0788898A;
    config.first = first;
    config.second = second;
    return action({}, config, 0, {raw(263, block)});
}

} // namespace

TEST(NetworkAction, Requests)
{
    checkVendorRows({
        action("sendNetworkAction - enter", {.parameterCount = 0}, 0),
        action({}, {.parameterCount = 8}, 8),
        action({}, {.parameterCount = 10, .header = 9}, 8),
        action({}, {.cellsPresent = 1, .optional = 7}, 0, {raw(263, Bytes(28046))}),
        cellLists({1, 2, {}}, {3, 16, {}}, 2, 16),
        cellLists({1, 0, {}}, {0, 5, {}}, 0, 0),
        cellLists({1, 64, {}}, {1, 65, {}}, 64, 64),
        cellLists({1, 255, {}}, {1, 1, {}}, 64, 1),
        setter("rollbackNetworkAction - enter", radioRollbackNetworkAction, 0x3873),
        query(Untold, {"getNetworkActionState - enter", "getNetworkActionState cb enter"},
              radioGetNetworkActionState, 0x3875, {int32(256, -7)}, int32s(256, {5, -6, 7}), packed(5, -6, 7),
              -7),
    });
}
