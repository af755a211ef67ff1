/// Cells with their signals over time.
#pragma once

#include "interface/records.h"

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <tuple>

namespace interface {

/// Shows the cells of one answer after the other, each cell with signal bars and a line of its last signals.
class CellTable {
public:
    /// The serving cell and the neighbours of a record as toJson() gives it; nothing when it tells of no cells.
    std::optional<std::string> of(const Json& record);

private:
    std::string line(std::string_view which, const Json& cell);
    std::string history(const Json& cell);

    using Cell = std::tuple<int, int64_t, int64_t>; ///< technology, ARFCN and physical cell identity
    std::map<Cell, std::deque<int>> mSignals;
};

} // namespace interface
