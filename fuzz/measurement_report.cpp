/// The measurement report: a count, then the block. The first cell of what is delivered must be wholly in the
/// block.
#include "vs/measurement_report.h"

#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const auto out = std::make_unique<RadioVeyraCellInfo>();
    convertMeasurementReport({data + 1, size - 1}, data[0], *out);
    constexpr size_t kBytesBeforeFirstCell = 12 + 20 + 10;
    if (out->count > kRadioMaxReportCells || (out->count != 0 && size - 1 < kBytesBeforeFirstCell + 12)) {
        std::abort();
    }
    return 0;
}
