/// @file
/// \domain{Atoms}
///
/// Atoms: small applications inside the modem that collect data.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxAtomStrings = 16; ///< strings of one application
inline constexpr unsigned kRadioMaxAtomValues = 32;  ///< values of one application

/// An application that collects data inside the modem.
struct RadioLoadAtomApplicationType {
    int32_t id;           ///< number of the application
    int32_t version;      ///< version of the application
    uint32_t stringCount; ///< number of strings; of more than 16 the first 16 are sent
    /// texts for the application, of at most 64 characters \countedby{stringCount}; each ends at its first NUL
    char strings[kRadioMaxAtomStrings][64];
    uint32_t valueCount;                 ///< number of values; of more than 32 the first 32 are sent
    int32_t values[kRadioMaxAtomValues]; ///< values for the application \countedby{valueCount}
    uint8_t block[284];                  ///< further data for the application; all bytes are sent
};

/// A number with a mask of bits, as an atom's report has it. As on the wire.
struct RadioAtomMask {
    int32_t id;    ///< what the mask is for, as the atom numbers it
    uint32_t mask; ///< bits, as the atom defines them
};

/// What an atom reports. As on the wire.
struct RadioAtomInfoType {
    uint32_t maskCount;          ///< number of masks, at most 40
    RadioAtomMask masks[40];     ///< masks of what is reported \countedby{maskCount}
    uint32_t parameterCount;     ///< number of parameters, at most 4
    RadioAtomMask parameters[4]; ///< parameters of the report \countedby{parameterCount}
};
static_assert(sizeof(RadioAtomInfoType) == 324 + 36);

extern "C" {

/// Loads an application that collects data inside the modem.
///
/// @param application  number, version and data of the application
/// \verdict
/// \sent
RADIO_API int radioLoadAtomApplication(const RadioLoadAtomApplicationType& application, void* userData,
                                       RadioRequestCallback callback);

/// Unloads an application that collects data inside the modem.
///
/// @param id  number of the application
/// \verdict
/// \sent
RADIO_API int radioUnloadAtomApplication(int id, void* userData, RadioRequestCallback callback);

/// Switches an atom, and sets what it reports.
///
/// @param id         number of the atom
/// @param status     status of the atom, as the modem defines it
/// @param subPolicy  policy of the atom, as the modem defines it
/// @param info       what the atom reports; sent as it is, with the elements that do not count
/// \verdict
/// \sent
RADIO_API int radioSetAtomStatus(int id, int status, int subPolicy, const RadioAtomInfoType& info,
                                 void* userData, RadioRequestCallback callback);

/// The data that atoms collected.
///
/// @param type    kind of data, as the modem defines it
/// @param option  option of the question, as the modem defines it
/// @param ids     numbers of the atoms \range{0 to 65535} \countedby{count}; may be null when `count` is 0
/// @param count   number of atoms
/// \fills{atomData}
/// \sentor{11 for null ids or too many of them}
RADIO_API int radioGetAtomData(int type, int option, int* ids, unsigned int count, void* userData,
                               RadioRequestCallback callback);

} // extern "C"
