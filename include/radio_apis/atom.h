/// @file
/// \domain{Atoms}
///
/// Atoms: small applications inside the modem that collect data.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxAtomStrings = 16; ///< of one application
inline constexpr unsigned kRadioMaxAtomValues = 32;  ///< of one application

/// The application to load.
struct RadioLoadAtomApplicationType {
    int32_t id;                             ///< the application's number
    int32_t version;                        ///< its version
    uint32_t stringCount;                   ///< at most 16; more are not sent
    char strings[kRadioMaxAtomStrings][64]; ///< each ends at its first NUL
    uint32_t valueCount;                    ///< at most 32; more are not sent
    int32_t values[kRadioMaxAtomValues];    ///< the first `valueCount` count
    uint8_t block[284];                     ///< sent as it is
};

/// An atom and a mask of its events. As on the wire.
struct RadioAtomMask {
    int32_t id;    ///< the atom's number
    uint32_t mask; ///< bits as the atom defines them
};

/// What an atom reports. As on the wire.
struct RadioAtomInfoType {
    uint32_t maskCount;          ///< entries of `masks` that count, at most 40
    RadioAtomMask masks[40];     ///< the first `maskCount` count
    uint32_t parameterCount;     ///< entries of `parameters` that count, at most 4
    RadioAtomMask parameters[4]; ///< the first `parameterCount` count
};
static_assert(sizeof(RadioAtomInfoType) == 324 + 36);

extern "C" {

/// Loads an application.
///
/// @param application  see the record
/// \verdict
/// \sent
RADIO_API int radioLoadAtomApplication(const RadioLoadAtomApplicationType& application, void* userData,
                                       RadioRequestCallback callback);

/// Unloads an application.
///
/// @param id  its number
/// \verdict
/// \sent
RADIO_API int radioUnloadAtomApplication(int id, void* userData, RadioRequestCallback callback);

/// Switches an atom.
///
/// @param id         which atom
/// @param status     its status, passed through
/// @param subPolicy  passed through
/// @param info       what it reports
/// \verdict
/// \sent
RADIO_API int radioSetAtomStatus(int id, int status, int subPolicy, const RadioAtomInfoType& info,
                                 void* userData, RadioRequestCallback callback);

/// The data that atoms collected.
///
/// @param type    kind of data, passed through
/// @param option  passed through
/// @param ids     which atoms; may be null when `count` is 0
/// @param count   their number, at most 65535
/// \fills{atomData}
/// \sentor{11 for null ids or too many of them}
RADIO_API int radioGetAtomData(int type, int option, int* ids, unsigned int count, void* userData,
                               RadioRequestCallback callback);

} // extern "C"
