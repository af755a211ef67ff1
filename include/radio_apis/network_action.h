/// @file
/// \domain{Network actions}
///
/// Network actions: instructions of the device's network optimisation.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxActionCells = 64;       ///< of one list
inline constexpr unsigned kRadioMaxActionParameters = 8;   ///< of one action
inline constexpr unsigned kRadioMaxActionListEntries = 16; ///< of a cell's list

/// One parameter block, as the modem defines it.
struct RadioActionParameter {
    int32_t values[4]; ///< passed through
};
static_assert(sizeof(RadioActionParameter) == 16);

/// An entry of a cell's second list.
struct RadioActionCellListEntry {
    uint16_t value1; ///< passed through
    uint16_t value2; ///< passed through
    uint8_t value3;  ///< passed through
};
static_assert(sizeof(RadioActionCellListEntry) == 6);

/// A cell that an action aims at. The values are the modem's and passed through; those behind a `…Present`
/// are sent only when that is not 0. Of a `…Present` the low 8 bits are sent: use 1.
struct RadioActionCellInfo {
    uint16_t value1;                        ///< passed through
    uint16_t value2;                        ///< passed through
    uint8_t value3;                         ///< passed through
    uint32_t value4;                        ///< passed through
    uint8_t value5;                         ///< passed through
    uint32_t value6;                        ///< passed through
    uint16_t value7;                        ///< passed through
    uint8_t value8;                         ///< passed through
    uint64_t value9;                        ///< passed through
    uint16_t aPresent;                      ///< whether `a` is sent
    uint32_t a;                             ///< passed through when `aPresent`
    uint16_t bPresent;                      ///< whether `b` is sent
    uint32_t b;                             ///< passed through when `bPresent`
    uint16_t cCount;                        ///< entries of `c` that are sent; of more than 16 the first 16
    uint32_t c[kRadioMaxActionListEntries]; ///< the first `cCount` count
    uint16_t dPresent;                      ///< whether `d` is sent
    uint32_t d;                             ///< passed through when `dPresent`
    uint16_t ePresent;                      ///< whether `e` is sent
    uint32_t e;                             ///< passed through when `ePresent`
    uint16_t fPresent;                      ///< whether `f` is sent
    uint32_t f;                             ///< passed through when `fPresent`
    uint16_t gPresent;                      ///< whether `g` is sent
    uint32_t g[2];                          ///< passed through when `gPresent`
    uint16_t hPresent;                      ///< whether `h` is sent
    uint32_t h[3];                          ///< passed through when `hPresent`
    uint16_t iPresent;                      ///< whether `j` is sent
    uint16_t jCount; ///< entries of `j` that are sent when `iPresent`; of more than 16 the first 16
    RadioActionCellListEntry j[kRadioMaxActionListEntries]; ///< the first `jCount` count
};

/// A list of cells.
struct RadioActionCellList {
    uint8_t present;                                 ///< 0: the list is not sent
    uint8_t count;                                   ///< of more than 64 the first 64 are sent
    RadioActionCellInfo cells[kRadioMaxActionCells]; ///< the first `count` count
};

/// An action. Its values are the modem's and passed through.
struct RadioActionConfigType {
    int32_t id;                                                 ///< the action's number
    int32_t type;                                               ///< kind of action
    int32_t values[4];                                          ///< passed through
    uint32_t parameterCount;                                    ///< of more than 8 the first 8 are sent
    RadioActionParameter parameters[kRadioMaxActionParameters]; ///< the first `parameterCount` count
    uint8_t cellsPresent;                                       ///< 0: nothing of what follows is sent
    uint32_t header;                                            ///< passed through
    uint8_t headerByte;                                         ///< passed through
    uint8_t optionalPresent;                                    ///< whether `optional` is sent
    uint32_t optional;                                          ///< passed through when `optionalPresent`
    RadioActionCellList first;                                  ///< the first list of cells
    RadioActionCellList second;                                 ///< the second list of cells
};

/// Result of radioGetNetworkActionState.
struct RadioNetworkActionState {
    int32_t id;     ///< the action's number
    int32_t state;  ///< as the modem defines it
    int32_t detail; ///< as the modem defines it
};

extern "C" {

/// Sends an action. The modem reports its outcome with RADIO_EVENT_NETWORK_ACTION_RESULT_IND.
///
/// @param action  see the record
/// \verdict
/// \sent
RADIO_API int radioSendNetworkAction(const RadioActionConfigType& action, void* userData,
                                     RadioRequestCallback callback);

/// Undoes an action.
///
/// @param id      the action's number
/// @param option  passed through
/// \verdict
/// \sent
RADIO_API int radioRollbackNetworkAction(int id, int option, void* userData, RadioRequestCallback callback);

/// The state of an action.
///
/// @param id  the action's number
/// \fills{networkActionState}
/// \sent
RADIO_API int radioGetNetworkActionState(int id, void* userData, RadioRequestCallback callback);

} // extern "C"
