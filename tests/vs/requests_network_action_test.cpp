/// How network actions lie in their message.
#include "support/request_rows.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Row = RequestRow;

/// Cells differ in how many entries their lists have, and in whether their optional values are present.
RadioActionCellInfo cell(uint16_t number)
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
Row row(RadioActionConfigType action, int sent, const Fields& cells)
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
    request.insert(request.end(), cells.begin(), cells.end());
    return setter("sendNetworkAction", radioSendNetworkAction, 0x3871, request, action);
}

/// An action with lists of cells, and the numbers of cells that are due on the wire for them.
Row lists(RadioActionCellList first, RadioActionCellList second, uint8_t firstSent, uint8_t secondSent)
{
    Bytes block = packed(0x01828384, uint8_t{0x85}, uint8_t{0x86}, 0x0788898A);
    for (const auto& [list, sent, end] :
         {std::tuple{&first, firstSent, 14028u}, {&second, secondSent, 28046u}}) {
        append(block, {list->present, sent});
        for (uint16_t i = 0; i < 64; ++i) {
            list->cells[i] = cell(i);
            append(block, i < sent ? wireCell(i) : Bytes());
        }
        block.resize(end);
    }
    RadioActionConfigType action{.cellsPresent = 2, .header = 0x01828384, .headerByte = 0x85};
    action.optionalPresent = 0x86;
    action.optional = 0x0788898A;
    action.first = first;
    action.second = second;
    return row(action, 0, {raw(263, block)});
}

} // namespace

TEST(VsNetworkActions, AreSentByteForByte)
{
    const std::vector<Row> rows = {
        row({.parameterCount = 0}, 0, {}),
        row({.parameterCount = 8}, 8, {}),
        row({.parameterCount = 10, .header = 9}, 8, {}),
        row({.cellsPresent = 1, .optional = 7}, 0, {raw(263, Bytes(28046))}),
        lists({1, 2, {}}, {3, 16, {}}, 2, 16),
        lists({1, 0, {}}, {0, 5, {}}, 0, 0),
        lists({1, 64, {}}, {1, 65, {}}, 64, 64),
        lists({1, 255, {}}, {1, 1, {}}, 64, 1),
    };
    checkRows(rows, "VornVsClient", {});
}
