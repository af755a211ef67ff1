/// @file
/// \domain{Network actions}
///
/// Network actions: instructions of the device's network optimisation.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxActionCells = 64;       ///< cells in one list
inline constexpr unsigned kRadioMaxActionParameters = 8;   ///< parameter blocks of one action
inline constexpr unsigned kRadioMaxActionListEntries = 16; ///< entries in a cell's list

/// One parameter block of an action.
struct RadioActionParameter {
    int32_t values[4]; ///< values of the parameter block, as the modem defines them
};
static_assert(sizeof(RadioActionParameter) == 16);

/// An entry of a cell's second list.
struct RadioActionCellListEntry {
    uint16_t value1; ///< first value of the entry, as the modem defines it
    uint16_t value2; ///< second value of the entry, as the modem defines it
    uint8_t value3;  ///< third value of the entry, as the modem defines it
};
static_assert(sizeof(RadioActionCellListEntry) == 6);

/// A cell that an action aims at. The values behind a `…Present` are sent only when that is not 0. Of a `…Present` the
/// low 8 bits are sent: use 1.
struct RadioActionCellInfo {
    uint16_t value1;   ///< first value of the cell, as the modem defines it
    uint16_t value2;   ///< second value of the cell, as the modem defines it
    uint8_t value3;    ///< third value of the cell, as the modem defines it
    uint32_t value4;   ///< fourth value of the cell, as the modem defines it
    uint8_t value5;    ///< fifth value of the cell, as the modem defines it
    uint32_t value6;   ///< sixth value of the cell, as the modem defines it
    uint16_t value7;   ///< seventh value of the cell, as the modem defines it
    uint8_t value8;    ///< eighth value of the cell, as the modem defines it
    uint64_t value9;   ///< ninth value of the cell, as the modem defines it
    uint16_t aPresent; ///< whether `a` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t a;        ///< optional value a, as the modem defines it
    uint16_t bPresent; ///< whether `b` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t b;        ///< optional value b, as the modem defines it
    uint16_t cCount;   ///< number of values in `c`; of more than 16 the first 16 are sent
    uint32_t c[kRadioMaxActionListEntries]; ///< first list of the cell \countedby{cCount}
    uint16_t dPresent;                      ///< whether `d` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t d;                             ///< optional value d, as the modem defines it
    uint16_t ePresent;                      ///< whether `e` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t e;                             ///< optional value e, as the modem defines it
    uint16_t fPresent;                      ///< whether `f` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t f;                             ///< optional value f, as the modem defines it
    uint16_t gPresent;                      ///< whether `g` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t g[2];                          ///< optional values g, as the modem defines them
    uint16_t hPresent;                      ///< whether `h` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t h[3];                          ///< optional values h, as the modem defines them
    uint16_t iPresent;                      ///< whether `j` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint16_t jCount; ///< number of entries in `j`; of more than 16 the first 16 are sent
    RadioActionCellListEntry j[kRadioMaxActionListEntries]; ///< second list of the cell \countedby{jCount}
};

/// A list of cells that an action aims at.
struct RadioActionCellList {
    uint8_t present; ///< whether the list is sent \values{0: no, 1: yes}
    uint8_t count;   ///< number of cells; of more than 64 the first 64 are sent
    RadioActionCellInfo cells[kRadioMaxActionCells]; ///< cells that the action aims at \countedby{count}
};

/// An instruction of the device's network optimisation.
struct RadioActionConfigType {
    int32_t id;              ///< number of the action
    int32_t type;            ///< kind of action, as the modem defines it
    int32_t values[4];       ///< values of the action, as the modem defines them
    uint32_t parameterCount; ///< number of parameter blocks; of more than 8 the first 8 are sent
    /// parameter blocks of the action \countedby{parameterCount}
    RadioActionParameter parameters[kRadioMaxActionParameters];
    uint8_t cellsPresent;       ///< whether the members behind this one are sent \values{0: no, 1: yes}
    uint32_t header;            ///< value in front of the cells, as the modem defines it
    uint8_t headerByte;         ///< byte in front of the cells, as the modem defines it
    uint8_t optionalPresent;    ///< whether `optional` is sent \values{0: no, 1: yes}
    uint32_t optional;          ///< optional value in front of the cells, as the modem defines it
    RadioActionCellList first;  ///< first list of cells
    RadioActionCellList second; ///< second list of cells
};

/// Result of radioGetNetworkActionState: the state of an action.
struct RadioNetworkActionState {
    int32_t id;     ///< number of the action
    int32_t state;  ///< state of the action, as the modem defines it
    int32_t detail; ///< detail of the state, as the modem defines it
};

extern "C" {

/// Sends a network action. The modem reports its outcome with RADIO_EVENT_NETWORK_ACTION_RESULT_IND.
///
/// @param action  action, with the cells that it aims at
/// \verdict
/// \sent
RADIO_API int radioSendNetworkAction(const RadioActionConfigType& action, void* userData,
                                     RadioRequestCallback callback);

/// Undoes a network action.
///
/// @param id      number of the action
/// @param option  how to undo it, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioRollbackNetworkAction(int id, int option, void* userData, RadioRequestCallback callback);

/// The state of a network action.
///
/// @param id  number of the action
/// \fills{networkActionState}
/// \sent
RADIO_API int radioGetNetworkActionState(int id, void* userData, RadioRequestCallback callback);

} // extern "C"
