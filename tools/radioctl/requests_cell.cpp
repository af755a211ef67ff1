#include "radioctl/call.h"
#include "radioctl/describe_cells.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioLteCellInfo> =
    std::tuple{member("arfcn", &RadioLteCellInfo::arfcn), member("pci", &RadioLteCellInfo::pci),
               member("connected", &RadioLteCellInfo::connected)};

template <>
inline constexpr auto kMembers<RadioRrcStatus> = std::tuple{member("status", &RadioRrcStatus::status)};

namespace {

/// The serving cell's members and the neighbours on one level, so that a failure stands where every request
/// has it.
Json showAllCells(const Rsp& rsp)
{
    const RadioAllCellInfo& cells = rsp.allCellInfo;
    Json out = toJson(cells.serving);
    out["neighbours"] = arrayToJson(cells.neighbours, cells.neighbourCount);
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
         call(radioGetLteCellInfo),
         show(&Rsp::lteCellInfo)},
        {"radioGetRRCStatus",
         group,
         "State of the radio resource control: 1 idle, 2 connected, 3 inactive",
         {},
         call(radioGetRRCStatus),
         show(&Rsp::rrcStatus)},
        {"radioGetServingCellularCellInfo",
         group,
         "The serving cell",
         {},
         call(radioGetServingCellularCellInfo),
         show(&Rsp::servingCellInfo)},
        {"radioGetAllCellularCellInfo",
         group,
         "The serving cell and its neighbours",
         {},
         call(radioGetAllCellularCellInfo),
         showAllCells},
    };
}

} // namespace radioctl
