/// @file
/// Radio access technologies, where the modem's numbers are the usual ones.
#pragma once

#include <cstdint>

/// A radio access technology. Arguments and members that number technologies otherwise say so.
enum RadioRat : int32_t {
    RADIO_RAT_GSM = 0,  ///< \label{GSM} and its successors GPRS and EDGE
    RADIO_RAT_UMTS = 1, ///< \label{UMTS}, the modem's 3G
    RADIO_RAT_CDMA = 3, ///< \label{CDMA} 1x and EV-DO
    RADIO_RAT_LTE = 4,  ///< \label{LTE}, E-UTRA
    RADIO_RAT_NR = 5    ///< \label{NR}, the radio of 5G
};

/// State of the radio resource control (3GPP TS 36.331, TS 38.331).
enum RadioRrcState : uint32_t {
    RADIO_RRC_IDLE = 1,      ///< no connection
    RADIO_RRC_CONNECTED = 2, ///< a connection
    RADIO_RRC_INACTIVE = 3   ///< a suspended connection, of NR only
};
