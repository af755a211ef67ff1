/// The result record that every request callback is given.
#pragma once

#include "radio_apis/cell_info.h"
#include "radio_apis/device_state.h"
#include "radio_apis/nv.h"
#include "radio_apis/service_mode.h"

/// One record for all requests: each request's header tells which member of `rsp` it fills. Reading another
/// one gives bytes of the filled one. What an answer did not carry is zero. The record belongs to the library
/// and is valid only while the callback runs.
struct RadioApisResultType {
    union {
        RadioLteCellInfo lteCellInfo;
        RadioRrcStatus rrcStatus;
        RadioServingCell servingCellInfo;
        RadioAllCellInfo allCellInfo;
        RadioModemVerdict microMotion;
        RadioServiceMode serviceModeInfo;
        RadioNvItem nvItemData;
        RadioModemVerdict nvWrite;
    } rsp;
};
