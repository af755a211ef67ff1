/// The members of cells, which requests and events share.
#pragma once

#include "radioctl/describe.h"

namespace radioctl {

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

template <>
inline constexpr auto kMembers<RadioAllCellInfo> =
    std::tuple{member("serving", &RadioAllCellInfo::serving),
               countedMember("neighbours", &RadioAllCellInfo::neighbours, "neighbourCount",
                             &RadioAllCellInfo::neighbourCount)};

} // namespace radioctl
