#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioLteCellInfo> =
    std::tuple{member("arfcn", &RadioLteCellInfo::arfcn), member("pci", &RadioLteCellInfo::pci),
               member("connected", &RadioLteCellInfo::connected)};

template <>
inline constexpr auto kMembers<RadioRrcStatus> = std::tuple{member("status", &RadioRrcStatus::status)};

template <>
inline constexpr auto kMembers<RadioServingCell> = std::tuple{
    member("failure", &RadioServingCell::failure),
    member("rat", &RadioServingCell::rat),
    member("mcc", &RadioServingCell::mcc),
    member("mnc", &RadioServingCell::mnc),
    member("mncDigits", &RadioServingCell::mncDigits),
    member("tac", &RadioServingCell::tac),
    member("pci", &RadioServingCell::pci),
    member("arfcn", &RadioServingCell::arfcn),
    member("band", &RadioServingCell::band),
    member("cellIdLow", &RadioServingCell::cellIdLow),
    member("cellIdHigh", &RadioServingCell::cellIdHigh),
    signedMember("rsrp", &RadioServingCell::rsrp),
    signedMember("rsrq", &RadioServingCell::rsrq),
    signedMember("sinr", &RadioServingCell::sinr),
    signedMember("rssi", &RadioServingCell::rssi),
    member("dlBandwidth", &RadioServingCell::dlBandwidth),
    member("ulArfcn", &RadioServingCell::ulArfcn),
    member("ulBandwidth", &RadioServingCell::ulBandwidth),
    member("timingAdvance", &RadioServingCell::timingAdvance),
    member("cqi", &RadioServingCell::cqi),
    member("rrcState", &RadioServingCell::rrcState),
    member("rxAntennas", &RadioServingCell::rxAntennas),
    member("txAntennas", &RadioServingCell::txAntennas),
};

template <>
inline constexpr auto kMembers<RadioNeighbourCell> = std::tuple{
    member("rat", &RadioNeighbourCell::rat),         member("arfcn", &RadioNeighbourCell::arfcn),
    member("pci", &RadioNeighbourCell::pci),         member("band", &RadioNeighbourCell::band),
    signedMember("rsrp", &RadioNeighbourCell::rsrp), signedMember("rsrq", &RadioNeighbourCell::rsrq),
    signedMember("sinr", &RadioNeighbourCell::sinr), member("cellIdLow", &RadioNeighbourCell::cellIdLow)};

namespace {

/// The serving cell's members and the neighbours on one level, so that a failure stands where every request
/// has it.
Json showAllCells(const Rsp& rsp)
{
    Json out = toJson(rsp.allCellInfo.serving);
    listMember("neighbours", &RadioAllCellInfo::neighbourCount,
               &RadioAllCellInfo::neighbours)(out, rsp.allCellInfo);
    return out;
}

} // namespace

std::vector<Request> cellRequests()
{
    const std::string group = "Cells";
    return {
        {"radioGetLteCellInfo",
         group,
         "Summary of the LTE cell",
         {},
         [](const Arguments&, Reply to) { return radioGetLteCellInfo(to.userData, to.callback); },
         show(&Rsp::lteCellInfo)},
        {"radioGetRRCStatus",
         group,
         "State of the radio resource control: 1 idle, 2 connected, 3 inactive",
         {},
         [](const Arguments&, Reply to) { return radioGetRRCStatus(to.userData, to.callback); },
         show(&Rsp::rrcStatus)},
        {"radioGetServingCellularCellInfo",
         group,
         "The serving cell",
         {},
         [](const Arguments&, Reply to) { return radioGetServingCellularCellInfo(to.userData, to.callback); },
         show(&Rsp::servingCellInfo)},
        {"radioGetAllCellularCellInfo",
         group,
         "The serving cell and its neighbours",
         {},
         [](const Arguments&, Reply to) { return radioGetAllCellularCellInfo(to.userData, to.callback); },
         showAllCells},
    };
}

} // namespace radioctl
