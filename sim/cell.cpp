#include "cell.h"

namespace sim {
namespace {

constexpr uint32_t kMaxEarfcn = 262143;
constexpr uint32_t kMaxNrArfcn = 3279165;

Rat ratFromJson(const JsonNode& node)
{
    const std::string text = node.text();
    if (text == "LTE") {
        return Rat::Lte;
    }
    if (text == "NR") {
        return Rat::Nr;
    }
    node.fail("must be LTE or NR");
}

RrcState rrcFromJson(const JsonNode& node)
{
    const std::string text = node.text();
    if (text == "idle") {
        return RrcState::Idle;
    }
    if (text == "connected") {
        return RrcState::Connected;
    }
    if (text == "inactive") {
        return RrcState::Inactive;
    }
    node.fail("must be idle, connected or inactive");
}

/// What serving cells and neighbours have in common.
Cell measuredCell(JsonNode& node)
{
    Cell cell;
    cell.rat = ratFromJson(node.member("rat"));
    const bool nr = cell.rat == Rat::Nr;
    cell.arfcn = node.member("arfcn").number<uint32_t>(0, nr ? kMaxNrArfcn : kMaxEarfcn);
    cell.pci = node.member("pci").number<uint32_t>(0, nr ? 1007 : 503);
    cell.band = node.member("band").number<uint32_t>(1, nr ? 1024 : 256);
    const int64_t identities = int64_t{1} << (nr ? 36 : 28);
    cell.identity = static_cast<uint64_t>(node.member("cellIdentity").number<int64_t>(0, identities - 1));
    cell.rsrp = node.member("rsrp").number<int32_t>(-157, -31);
    cell.rsrq = node.member("rsrq").number<int32_t>(-43, 20);
    cell.sinr = node.member("sinr").number<int32_t>(-23, 40);
    return cell;
}

} // namespace

Plmn plmnFromJson(JsonNode node)
{
    Plmn plmn;
    plmn.mcc = node.member("mcc").number<uint32_t>(0, 999);
    plmn.mncDigits = node.member("mncDigits").number<uint8_t>(2, 3);
    plmn.mnc = node.member("mnc").number<uint32_t>(0, plmn.mncDigits == 2 ? 99 : 999);
    node.finish();
    return plmn;
}

Cell servingCellFromJson(JsonNode node)
{
    Cell cell = measuredCell(node);
    cell.tac = node.member("tac").number<uint32_t>(0, cell.rat == Rat::Nr ? 0xFFFFFF : 0xFFFF);
    cell.rssi = node.member("rssi").number<int32_t>(-140, 0);
    cell.bandwidth = node.member("bandwidthKhz").number<uint32_t>(1400, 400000);
    cell.uplinkArfcn = node.member("uplinkArfcn").number<uint32_t>(0, kMaxNrArfcn);
    cell.uplinkBandwidth = node.member("uplinkBandwidthKhz").number<uint32_t>(1400, 400000);
    cell.timingAdvance = node.member("timingAdvance").number<uint32_t>(0, 3846);
    cell.cqi = node.member("cqi").number<uint32_t>(0, 15);
    cell.rrc = rrcFromJson(node.member("rrc"));
    cell.rxAntennas = node.member("rxAntennas").number<uint8_t>(1, 8);
    cell.txAntennas = node.member("txAntennas").number<uint8_t>(1, 4);
    node.finish();
    return cell;
}

Cell neighbourFromJson(JsonNode node)
{
    const Cell cell = measuredCell(node);
    node.finish();
    return cell;
}

Bytes servingCellBlock(const Cell& cell, const Plmn& plmn)
{
    constexpr uint32_t kReserved = 0xFFFFFFFF;
    Bytes block;
    for (const uint32_t word : {static_cast<uint32_t>(cell.rat),
                                plmn.mcc,
                                plmn.mnc,
                                cell.tac,
                                cell.pci,
                                cell.arfcn,
                                kReserved,
                                static_cast<uint32_t>(cell.identity),
                                static_cast<uint32_t>(cell.identity >> 32),
                                cell.band,
                                static_cast<uint32_t>(cell.rsrp),
                                static_cast<uint32_t>(cell.rsrq),
                                static_cast<uint32_t>(cell.sinr),
                                static_cast<uint32_t>(cell.rssi),
                                cell.bandwidth,
                                cell.uplinkArfcn,
                                cell.uplinkBandwidth,
                                cell.timingAdvance,
                                cell.cqi,
                                static_cast<uint32_t>(cell.rrc)}) {
        append(block, word);
    }
    append(block, plmn.mncDigits);
    append(block, cell.rxAntennas);
    append(block, cell.txAntennas);
    return block;
}

Bytes neighbourBlock(const Cell& cell)
{
    Bytes block;
    for (const uint32_t word : {static_cast<uint32_t>(cell.rat), cell.arfcn, cell.pci, cell.band,
                                static_cast<uint32_t>(cell.rsrp), static_cast<uint32_t>(cell.rsrq),
                                static_cast<uint32_t>(cell.sinr), static_cast<uint32_t>(cell.identity)}) {
        append(block, word);
    }
    return block;
}

nlohmann::json cellToJson(const Cell& cell)
{
    return {{"rat", cell.rat == Rat::Nr ? "NR" : "LTE"},
            {"arfcn", cell.arfcn},
            {"pci", cell.pci},
            {"band", cell.band},
            {"cellIdentity", cell.identity},
            {"rsrp", cell.rsrp},
            {"rsrq", cell.rsrq},
            {"sinr", cell.sinr}};
}

} // namespace sim
