/// @file
/// Events that the modem raises by itself, and how to receive them.
///
/// Two things are needed: the modem must be told to send an indication (radioRegisterVsEvent,
/// radioRegisterRadioEvent), and somebody must listen for the event it becomes (registerRadioEvent).
///
/// What is switched on is remembered twice: by the instance, for all its threads, and by the message library.
/// radioApisDeinit, and radioApisReleaseService of any instance, make the message library forget the subscriptions of
/// all instances. The instances that stay do not notice: what was on counts as on, and switching it on again
/// registers nothing and returns 0. To get it back, call radioApisInit of that instance, which makes the instance
/// forget, too, and then switch on again. Whichever thread calls radioApisInit ends the instance's subscriptions for
/// all of them.
#pragma once

#include "radio_apis/blob.h"
#include "radio_apis/cell_info.h"
#include "radio_apis/result.h"

#include <cstdint>

/// The events. 401 to 499 are raised by the vendor client, 10000 to 10999 by the standard client.
enum RADIO_EVENT_TYPE : int32_t {
    RADIO_EVENT_NONE = 0,
    RADIO_EVENT_NEC_IND = 403,
    RADIO_EVENT_VEYRA_CELL_INFO_IND = 409,
    RADIO_EVENT_VEYRA_EVENT_IND = 410,
    RADIO_EVENT_SIDO_ISSUE_IND = 414,
    RADIO_EVENT_TEST_IND = 419,
    RADIO_EVENT_QOS_PERIOD_REPORT_IND = 420,
    RADIO_EVENT_QOS_EVENT_REPORT_IND = 421,
    RADIO_EVENT_MCC_CHANGED_IND = 423,
    RADIO_EVENT_HST_MODE_IND = 424,
    RADIO_EVENT_SERVING_CELL_INFO_IND = 425,
    RADIO_EVENT_HYPER_UPLINK_STATE_IND = 426,
    RADIO_EVENT_ATOM_DATA_IND = 427,
    RADIO_EVENT_IMS_RTP_CONTROL_IND = 428,
    RADIO_EVENT_OLOG_IND = 430,
    RADIO_EVENT_RF_ICC_CLAT_INFO_IND = 433,
    RADIO_EVENT_RF_ICC_TX_SHARING_IND = 434,
    RADIO_EVENT_SINGLE_SIM_CHANGE_IND = 435, ///< never subscribed: comes only if somebody else registers it
    RADIO_EVENT_SML_STATUS_IND = 436,
    RADIO_EVENT_RLK_STATUS_IND = 437,
    RADIO_EVENT_ALERT_EVENT_IND = 438,
    RADIO_EVENT_IMS_AUDIO_QUALITY_IND = 439, ///< never comes
    RADIO_EVENT_VODATA_IND = 440,
    RADIO_EVENT_ALL_CELL_INFO_IND = 441,
    RADIO_EVENT_CALL_STATE_CHANGE_IND = 442,
    RADIO_EVENT_NETWORK_ACTION_RESULT_IND = 443,
    RADIO_EVENT_SCENE_MODE_IND = 444,
    RADIO_EVENT_SMART_NETWORK_SELECT_IND = 445,
    RADIO_EVENT_RF_ICC_EVENT_IND = 446,
    RADIO_EVENT_NW_ETX_POWER = 10001,
    RADIO_EVENT_MSIM_SUB_MODE = 10002,
    RADIO_EVENT_FREQ_HOPPING = 10003, ///< never comes
    RADIO_EVENT_DATA_IFUP_PACKET_ROUTE = 10004,
    RADIO_EVENT_CALL_RTP_SESSION_MLC = 10005
};

/// Receives one event, on the modem library's delivery thread. It must not throw.
///
/// @param event     which event
/// @param userData  the pointer given at registration
/// @param data      the event's record, valid during the call only
/// @param length    the record's size in bytes
using RadioEventCallback = void (*)(RADIO_EVENT_TYPE event, void* userData, void* data, int length);

/// One switch of a subscription: `ind` is looked at only when `valid` is not 0.
struct RadioEventSwitch {
    uint8_t valid; ///< 0: nothing is to change
    uint8_t ind;   ///< 0: the modem need not send the indication; otherwise it shall
};

/// The switchable vendor indications. The first call of radioRegisterVsEvent switches on all others of the vendor
/// client, whatever its switches say, but for RADIO_EVENT_SINGLE_SIM_CHANGE_IND.
struct RegVsEvtType {
    RadioEventSwitch nec;              ///< RADIO_EVENT_NEC_IND
    RadioEventSwitch test;             ///< RADIO_EVENT_TEST_IND
    RadioEventSwitch servingCellInfo;  ///< RADIO_EVENT_SERVING_CELL_INFO_IND
    RadioEventSwitch hyperUplinkState; ///< RADIO_EVENT_HYPER_UPLINK_STATE_IND
    RadioEventSwitch reserved4;        ///< ignored
    RadioEventSwitch reserved5;        ///< ignored
    RadioEventSwitch mccChanged;       ///< RADIO_EVENT_MCC_CHANGED_IND
    RadioEventSwitch reserved7;        ///< ignored
};
static_assert(sizeof(RegVsEvtType) == 16);

/// The switchable standard indications. Each call of radioRegisterRadioEvent switches on those of
/// RADIO_EVENT_DATA_IFUP_PACKET_ROUTE and RADIO_EVENT_CALL_RTP_SESSION_MLC, whatever its switches say, and also when
/// they are on already.
struct RegRadioEvtType {
    RadioEventSwitch nwEtxPower;  ///< RADIO_EVENT_NW_ETX_POWER
    RadioEventSwitch msimSubMode; ///< RADIO_EVENT_MSIM_SUB_MODE
};
static_assert(sizeof(RegRadioEvtType) == 4);

/// Record of RADIO_EVENT_NW_ETX_POWER.
struct RadioNwEtxPower {
    int32_t txPower; ///< in hundredths of a unit; the modem counts eighths, of which only whole units stay
};
static_assert(sizeof(RadioNwEtxPower) == 4);

/// Record of RADIO_EVENT_MSIM_SUB_MODE.
struct RadioMsimSubMode {
    int32_t subMode; ///< the modem's sub-mode plus 2; 2 when it sent none
    int32_t state;   ///< 2 when the modem reports the mode as active, otherwise 1
};
static_assert(sizeof(RadioMsimSubMode) == 8);

/// Record of RADIO_EVENT_DATA_IFUP_PACKET_ROUTE: four values as the modem defines them.
struct RadioDataIfupPacketRoute {
    uint8_t values[4]; ///< as the modem defines them
};
static_assert(sizeof(RadioDataIfupPacketRoute) == 4);

/// Record of RADIO_EVENT_CALL_RTP_SESSION_MLC.
struct RadioCallRtpSessionMlc {
    int32_t id;    ///< the call's identifier
    int32_t event; ///< the modem's event number
};
static_assert(sizeof(RadioCallRtpSessionMlc) == 8);

/// Records of RADIO_EVENT_SML_STATUS_IND and RADIO_EVENT_RLK_STATUS_IND: lock data as the modem sent it.
using RadioLockStatusEvent = RadioBlob<512>;
static_assert(sizeof(RadioLockStatusEvent) == 516);

/// Record of RADIO_EVENT_NEC_IND, and of both QoS report events.
using RadioReportEvent = RadioBlob<2048>;
static_assert(sizeof(RadioReportEvent) == 2052);

/// Record of RADIO_EVENT_ATOM_DATA_IND.
using RadioAtomDataEvent = RadioBlob<4096>;
static_assert(sizeof(RadioAtomDataEvent) == 4100);

/// Record of RADIO_EVENT_TEST_IND, RADIO_EVENT_VEYRA_EVENT_IND and RADIO_EVENT_HST_MODE_IND.
struct RadioValueEvent {
    int32_t value; ///< as the modem defines it
};
static_assert(sizeof(RadioValueEvent) == 4);

inline constexpr unsigned kRadioMaxReportCells = 200; ///< that a report holds

/// One measured cell. The values are the modem's and passed through.
struct RadioVeyraCell {
    uint8_t rat;            ///< of the frequency
    uint64_t subscription;  ///< of the subscription
    uint64_t group;         ///< of the frequency group; 0 without a valid PLMN
    uint16_t pci;           ///< physical cell identity
    uint16_t mcc;           ///< mobile country code, decimal; 0 without a valid PLMN
    uint16_t mnc;           ///< mobile network code, decimal; 0 without a valid PLMN
    uint32_t arfcn;         ///< EARFCN or NR-ARFCN of the frequency
    uint8_t beam;           ///< index of the beam
    int16_t rsrp;           ///< reference signal received power
    int16_t rsrq;           ///< reference signal received quality
    int16_t sinr;           ///< signal to interference and noise ratio
    uint16_t quality;       ///< as the modem defines it
    uint64_t reserved1;     ///< 0
    int16_t offset;         ///< of the frequency
    uint8_t reserved2[118]; ///< 0
};
static_assert(sizeof(RadioVeyraCell) == 176);

/// Record of RADIO_EVENT_VEYRA_CELL_INFO_IND: a measurement report.
struct RadioVeyraCellInfo {
    uint32_t count;                             ///< cells that were measured, at most 200
    uint32_t reserved;                          ///< 0
    RadioVeyraCell cells[kRadioMaxReportCells]; ///< the first `count` count
};
static_assert(sizeof(RadioVeyraCellInfo) == 35208);

/// Record of RADIO_EVENT_SIDO_ISSUE_IND, as the modem defines it.
struct RadioSidoIssueEvent {
    int32_t values[21]; ///< as the modem defines them
};
static_assert(sizeof(RadioSidoIssueEvent) == 84);

/// Record of RADIO_EVENT_SERVING_CELL_INFO_IND: the members of RadioServingCell, as the modem sends them.
struct RadioServingCellEvent {
    uint32_t rat;           ///< 4: LTE, 5: NR
    uint32_t mcc;           ///< mobile country code
    uint32_t mnc;           ///< mobile network code
    uint32_t tac;           ///< tracking area code
    uint32_t pci;           ///< physical cell identity
    uint32_t arfcn;         ///< downlink EARFCN or NR-ARFCN
    uint32_t reserved;      ///< without meaning
    uint32_t cellIdLow;     ///< cell identity, low 32 bits
    uint32_t cellIdHigh;    ///< cell identity, bits above them
    uint32_t band;          ///< operating band
    uint32_t rsrp;          ///< dBm, two's complement
    uint32_t rsrq;          ///< dB, two's complement
    uint32_t sinr;          ///< dB, two's complement
    uint32_t rssi;          ///< dBm, two's complement
    uint32_t dlBandwidth;   ///< downlink bandwidth, kHz
    uint32_t ulArfcn;       ///< uplink EARFCN or NR-ARFCN
    uint32_t ulBandwidth;   ///< uplink bandwidth, kHz
    uint32_t timingAdvance; ///< timing advance as the modem counts it
    uint32_t cqi;           ///< channel quality indicator, 0 to 15
    uint32_t rrcState;      ///< as RadioRrcStatus
    uint8_t mncDigits;      ///< number of digits of the MNC, 2 or 3
    uint8_t rxAntennas;     ///< receive antennas in use
    uint8_t txAntennas;     ///< transmit antennas in use
    uint32_t cause;         ///< why it is reported, as the modem defines it
};
static_assert(sizeof(RadioServingCellEvent) == 88);

/// Record of RADIO_EVENT_HYPER_UPLINK_STATE_IND.
struct RadioHyperUplinkStateEvent {
    int32_t scene; ///< the scene, as the modem defines it
    int32_t state; ///< its state
    int32_t type;  ///< its kind
};
static_assert(sizeof(RadioHyperUplinkStateEvent) == 12);

/// Record of RADIO_EVENT_IMS_RTP_CONTROL_IND.
struct RadioImsRtpControlEvent {
    uint16_t control; ///< what the modem asks for, as it defines it
};
static_assert(sizeof(RadioImsRtpControlEvent) == 2);

/// Record of RADIO_EVENT_OLOG_IND.
struct RadioOlogEvent {
    int32_t dataLength; ///< bytes that were logged
    int32_t dataLost;   ///< bytes that were lost
};
static_assert(sizeof(RadioOlogEvent) == 8);

/// Record of RADIO_EVENT_SINGLE_SIM_CHANGE_IND.
struct RadioSingleSimChangeEvent {
    uint8_t state; ///< as the modem defines it
};
static_assert(sizeof(RadioSingleSimChangeEvent) == 1);

/// Record of RADIO_EVENT_MCC_CHANGED_IND.
struct RadioMccChangedEvent {
    int32_t mcc;         ///< mobile country code now
    int32_t previousMcc; ///< mobile country code before
};
static_assert(sizeof(RadioMccChangedEvent) == 8);

/// Record of RADIO_EVENT_ALERT_EVENT_IND.
struct RadioAlertEvent {
    int32_t type;       ///< what happened, as the modem defines it
    int32_t level;      ///< how grave it is, as the modem defines it
    int32_t entries[5]; ///< what the modem did not send is 0
};
static_assert(sizeof(RadioAlertEvent) == 28);

/// Records of RADIO_EVENT_VODATA_IND and RADIO_EVENT_CALL_STATE_CHANGE_IND.
struct RadioStateEvent {
    int32_t id;    ///< the call's identifier
    int32_t state; ///< its state, as the modem defines it
};
static_assert(sizeof(RadioStateEvent) == 8);

/// Record of RADIO_EVENT_ALL_CELL_INFO_IND: the cells of up to two subscriptions, the modem's block as it is. The
/// library does not check it: before they are used, `count` must be cut to 2, and the `neighbourCount` of each entry
/// to kRadioMaxNeighbourCells.
struct RadioAllCellInfoEvent {
    uint32_t count;            ///< of `cells`; may be more than there are
    uint32_t reserved;         ///< without meaning
    RadioAllCellInfo cells[2]; ///< one entry for each subscription; its `neighbourCount` may be above 64
};
static_assert(sizeof(RadioAllCellInfoEvent) == 4280);

/// The outcome of one network action.
struct RadioNetworkActionOutcome {
    int32_t id;        ///< the action's number
    int32_t type;      ///< kind of action
    int32_t result;    ///< 0: carried out; otherwise as the modem defines it
    int32_t values[4]; ///< as the modem defines them
};

/// Record of RADIO_EVENT_NETWORK_ACTION_RESULT_IND.
struct RadioNetworkActionResultEvent {
    uint32_t count;                         ///< at most 16
    RadioNetworkActionOutcome outcomes[16]; ///< the first `count` count
};
static_assert(sizeof(RadioNetworkActionResultEvent) == 452);

/// Record of RADIO_EVENT_SCENE_MODE_IND.
struct RadioSceneModeEvent {
    uint32_t count;      ///< at most 128
    int32_t values[128]; ///< scenes and their modes, in turns
};
static_assert(sizeof(RadioSceneModeEvent) == 516);

/// Record of RADIO_EVENT_SMART_NETWORK_SELECT_IND.
struct RadioSmartNetworkSelectEvent {
    int32_t rat;   ///< radio access technology, as the modem defines it
    int32_t arfcn; ///< downlink EARFCN or NR-ARFCN
    int32_t pci;   ///< physical cell identity
};
static_assert(sizeof(RadioSmartNetworkSelectEvent) == 12);

/// Record of RADIO_EVENT_RF_ICC_CLAT_INFO_IND.
struct RadioRfIccClatEvent {
    uint16_t band;      ///< the band concerned
    uint16_t bandwidth; ///< MHz
    uint16_t state;     ///< as the modem defines it
};
static_assert(sizeof(RadioRfIccClatEvent) == 6);

/// Record of RADIO_EVENT_RF_ICC_TX_SHARING_IND.
struct RadioRfIccTxSharingEvent {
    int32_t band;  ///< the band concerned
    int32_t state; ///< as the modem defines it
    int32_t power; ///< as the modem defines it
};
static_assert(sizeof(RadioRfIccTxSharingEvent) == 12);

/// Record of RADIO_EVENT_RF_ICC_EVENT_IND.
struct RadioRfIccEvent {
    int32_t event;       ///< which event, as the modem defines it
    uint32_t dataLength; ///< bytes of `data` that count, at most 128
    uint8_t data[128];   ///< as the event defines it
};
static_assert(sizeof(RadioRfIccEvent) == 136);

extern "C" {

/// Listens for one event of the calling thread's instance. The registration ends with
/// radioApisReleaseService.
///
/// @param event     401 to 499 or 10000 to 10999
/// @param userData  handed to each call of `callback`
/// @param callback  called once per event; it may register further listeners. Null is skipped
/// @return 0 when registered, also when the same event, user data and callback were registered before (the
///         callback is then still called once per event); 1 for any other event, when the instance is not
///         initialised, or without memory
RADIO_API int registerRadioEvent(RADIO_EVENT_TYPE event, void* userData, RadioEventCallback callback);

/// Switches vendor indications of the calling thread's instance on and off.
///
/// @param switches  what to switch; a switch that has the wanted state, as the instance remembers it, does nothing.
///                  The head of this file tells when that is not what the message library has. The wish is
///                  remembered also when it failed: to try again, switch the other way first, or call radioApisInit
/// @param userData  not used
/// @param callback  never called: the return value is the only answer
/// @return 0 when all that was tried succeeded, also when nothing was; otherwise 1, as when the channel is not open
///         or the instance is not initialised. The indications without a switch are all tried again by the next
///         call when one of them failed
RADIO_API int radioRegisterVsEvent(RegVsEvtType switches, void* userData, RadioRequestCallback callback);

/// Switches standard indications of the calling thread's instance on and off; otherwise as
/// radioRegisterVsEvent.
RADIO_API int radioRegisterRadioEvent(RegRadioEvtType switches, void* userData,
                                      RadioRequestCallback callback);

} // extern "C"
