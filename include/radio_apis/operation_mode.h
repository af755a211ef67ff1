/// Operation mode of the modem (3GPP TS 27.007, +CFUN).
#pragma once

#include <cstdint>

/// What the modem is wanted to do; only the low three bits count.
enum RADIO_OPERATION_MODE_TYPE : int32_t {
    RADIO_OPERATION_MODE_OFF = 0,   ///< as every value whose low three bits are not 4
    RADIO_OPERATION_MODE_ONLINE = 4 ///< as every value whose low three bits are 4
};

/// The operation mode.
struct RadioOperationMode {
    uint32_t failure; ///< 1 when the modem reported a failure, otherwise 0
    uint32_t mode;    ///< as the modem numbers it
};
