/// @file
/// \domain{Network actions}
///
/// Network actions: instructions of the device's network optimisation.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxActionCells = 64;       ///< cells in one list
inline constexpr unsigned kRadioMaxActionParameters = 8;   ///< parameters of one action
inline constexpr unsigned kRadioMaxActionListEntries = 16; ///< entries in one list of a cell

/// One parameter of an action.
struct RadioActionParameter {
    int32_t values[4]; ///< values of the parameter, as the modem defines them
};
static_assert(sizeof(RadioActionParameter) == 16);

/// An entry of a cell's second list.
struct RadioActionCellListEntry {
    uint16_t value1; ///< first value of the entry, as the modem defines it
    uint16_t value2; ///< second value of the entry, as the modem defines it
    uint8_t value3;  ///< third value of the entry, as the modem defines it
};
static_assert(sizeof(RadioActionCellListEntry) == 6);

/// A cell that an action aims at. Optional values are sent only when the member in front of them, `…Present`, is not
/// 0; of that the low 8 bits are sent, so use 1.
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
    uint32_t a;        ///< optional value a of the cell, as the modem defines it; sent when `aPresent`
    uint16_t bPresent; ///< whether `b` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t b;        ///< optional value b of the cell, as the modem defines it; sent when `bPresent`
    uint16_t cCount;   ///< number of values in `c`; of more than 16 the first 16 are sent
    /// first list of the cell, as the modem defines it \countedby{cCount}
    uint32_t c[kRadioMaxActionListEntries];
    uint16_t dPresent; ///< whether `d` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t d;        ///< optional value d of the cell, as the modem defines it; sent when `dPresent`
    uint16_t ePresent; ///< whether `e` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t e;        ///< optional value e of the cell, as the modem defines it; sent when `ePresent`
    uint16_t fPresent; ///< whether `f` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint32_t f;        ///< optional value f of the cell, as the modem defines it; sent when `fPresent`
    uint16_t gPresent; ///< whether `g` is sent \range{0 to 255} \values{0: no, 1: yes}
    /// optional values g of the cell, as the modem defines them; sent when `gPresent`
    uint32_t g[2];
    uint16_t hPresent; ///< whether `h` is sent \range{0 to 255} \values{0: no, 1: yes}
    /// optional values h of the cell, as the modem defines them; sent when `hPresent`
    uint32_t h[3];
    uint16_t iPresent; ///< whether `j` is sent \range{0 to 255} \values{0: no, 1: yes}
    uint16_t jCount;   ///< number of entries in `j`; of more than 16 the first 16 are sent
    /// second list of the cell, sent when `iPresent` \countedby{jCount}
    RadioActionCellListEntry j[kRadioMaxActionListEntries];
};

/// A list of cells that an action aims at.
struct RadioActionCellList {
    uint8_t present; ///< whether the list is sent \values{0: no, 1: yes}
    uint8_t count;   ///< number of cells; of more than 64 the first 64 are sent
    /// cells that the action aims at \countedby{count}
    RadioActionCellInfo cells[kRadioMaxActionCells];
};

/// A network action.
struct RadioActionConfigType {
    int32_t id;              ///< number of the action
    int32_t type;            ///< kind of action, as the modem numbers it
    int32_t values[4];       ///< values of the action, as the modem defines them; sent in this order
    uint32_t parameterCount; ///< number of parameters; of more than 8 the first 8 are sent
    /// parameters of the action \countedby{parameterCount}
    RadioActionParameter parameters[kRadioMaxActionParameters];
    uint8_t cellsPresent;    ///< whether the members behind this one are sent \values{0: no, 1: yes}
    uint32_t header;         ///< header of the cells, as the modem defines it
    uint8_t headerByte;      ///< second part of the header, as the modem defines it
    uint8_t optionalPresent; ///< whether `optional` is sent \values{0: no, 1: yes}
    /// optional value of the header, as the modem defines it; sent when `optionalPresent`
    uint32_t optional;
    RadioActionCellList first;  ///< first list of cells
    RadioActionCellList second; ///< second list of cells
};

/// Result of radioGetNetworkActionState.
struct RadioNetworkActionState {
    int32_t id;     ///< number of the action
    int32_t state;  ///< state of the action, as the modem defines it
    int32_t detail; ///< detail of the state, as the modem defines it
};

extern "C" {

/// Sends an instruction of the device's network optimisation, a network action. The modem reports its outcome with
/// RADIO_EVENT_NETWORK_ACTION_RESULT_IND.
///
/// @param action  the action and the cells that it aims at
/// \verdict
/// \sent
RADIO_API int radioSendNetworkAction(const RadioActionConfigType& action, void* userData,
                                     RadioRequestCallback callback);

/// Undoes a network action.
///
/// @param id      number of the action
/// @param option  option of the request, as the modem defines it
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
