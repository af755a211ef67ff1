/// Records as rows of a table, for spreadsheets.
#pragma once

#include "interface/records.h"

#include <string>
#include <vector>

namespace interface {

/// The table of a record: a row for itself, and one for each record in it. Its columns are the members of all of them,
/// the same for every answer.
class Rows {
public:
    explicit Rows(const Record& record) { addColumns(record); }

    /// "time,part,..." and the columns' names.
    std::string heading() const;

    /// The rows of a record as toJson() gives it, each with its line end; `time` is what stands in front.
    std::string of(const std::string& time, const Json& record) const { return rows(time, "", record); }

private:
    void addColumns(const Record& record);
    std::string rows(const std::string& time, const std::string& part, const Json& record) const;

    std::vector<std::string> mColumns;
};

} // namespace interface
