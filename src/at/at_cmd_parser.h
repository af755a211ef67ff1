/// The modem's textual answers to AT commands (3GPP TS 27.007).
#pragma once

#include "mindroid/object.h"
#include "mindroid/parcel.h"
#include "mindroid/string.h"

/// Turns an answer into a parcel of the fields of its information line. It never fails: what can't be
/// understood is an answer that was not accepted.
///
/// The parcel holds a boolean, whether the answer was accepted; then, when there was an information line, an
/// int, the number of its comma-separated fields; then for each field a byte, its kind, and its value:
/// kInteger and an int, or kString and a string.
class AtCmdParser {
public:
    static constexpr int8_t kInteger = 1;
    static constexpr int8_t kString = 3;

    static AtCmdParser& instance();

    mindroid::sp<mindroid::Parcel> parserAtCmdResponse(const mindroid::sp<mindroid::String>& answer) const;
    mindroid::sp<mindroid::Parcel> parserAtCmdResponse(const char* answer) const;

    /// The boolean, then the information line's data as one string.
    mindroid::sp<mindroid::Parcel>
    parserAtCmdResponseAsRawStr(const mindroid::sp<mindroid::String>& answer) const;
    mindroid::sp<mindroid::Parcel> parserAtCmdResponseAsRawStr(const char* answer) const;

    /// The parcel for given data.
    mindroid::sp<mindroid::Parcel> parserAtcmdData(bool ok, const mindroid::sp<mindroid::String>& data) const;

    /// The bare values, for readers who know their order and kinds.
    mindroid::sp<mindroid::Parcel> parserAtcmdData(const mindroid::sp<mindroid::String>& data) const;
};
