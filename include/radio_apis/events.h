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
#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// The events. 401 to 499 are raised by the vendor client, 10000 to 10999 by the standard client.
enum RADIO_EVENT_TYPE : int32_t {
    /// no event
    RADIO_EVENT_NONE = 0,
    /// data of the network evaluation \record{RadioReportEvent}
    RADIO_EVENT_NEC_IND = 403,
    /// measurement report: cells and how well they are received \record{RadioVeyraCellInfo}
    RADIO_EVENT_VEYRA_CELL_INFO_IND = 409,
    /// event of the measurements \record{RadioValueEvent}
    RADIO_EVENT_VEYRA_EVENT_IND = 410,
    /// issue of the supply's single-inductor dual-output converter \record{RadioSidoIssueEvent}
    RADIO_EVENT_SIDO_ISSUE_IND = 414,
    /// test of the indications \record{RadioValueEvent}
    RADIO_EVENT_TEST_IND = 419,
    /// quality of service, periodically \record{RadioReportEvent}
    RADIO_EVENT_QOS_PERIOD_REPORT_IND = 420,
    /// quality of service, when something happened \record{RadioReportEvent}
    RADIO_EVENT_QOS_EVENT_REPORT_IND = 421,
    /// another country: the mobile country code changed \record{RadioMccChangedEvent}
    RADIO_EVENT_MCC_CHANGED_IND = 423,
    /// change of the high-speed train mode \record{RadioValueEvent}
    RADIO_EVENT_HST_MODE_IND = 424,
    /// serving cell \record{RadioServingCellEvent}
    RADIO_EVENT_SERVING_CELL_INFO_IND = 425,
    /// state of the uplink enhancement \record{RadioHyperUplinkStateEvent}
    RADIO_EVENT_HYPER_UPLINK_STATE_IND = 426,
    /// data that an atom collected \record{RadioAtomDataEvent}
    RADIO_EVENT_ATOM_DATA_IND = 427,
    /// control of an IMS call's RTP session \record{RadioImsRtpControlEvent}
    RADIO_EVENT_IMS_RTP_CONTROL_IND = 428,
    /// how much was logged, and how much was lost \record{RadioOlogEvent}
    RADIO_EVENT_OLOG_IND = 430,
    /// coexistence with the device's other radios: the band concerned \called{rf-icc-clat} \record{RadioRfIccClatEvent}
    RADIO_EVENT_RF_ICC_CLAT_INFO_IND = 433,
    /// sharing of the transmit path with the device's other radios \record{RadioRfIccTxSharingEvent}
    RADIO_EVENT_RF_ICC_TX_SHARING_IND = 434,
    /// change between one and two SIM cards; comes only if somebody else registers the indication
    /// \record{RadioSingleSimChangeEvent}
    RADIO_EVENT_SINGLE_SIM_CHANGE_IND = 435,
    /// status of the carrier lock \record{RadioLockStatusEvent}
    RADIO_EVENT_SML_STATUS_IND = 436,
    /// status of the region lock \record{RadioLockStatusEvent}
    RADIO_EVENT_RLK_STATUS_IND = 437,
    /// alert of the modem \record{RadioAlertEvent}
    RADIO_EVENT_ALERT_EVENT_IND = 438,
    /// audio quality of an IMS call; never comes
    RADIO_EVENT_IMS_AUDIO_QUALITY_IND = 439,
    /// state of a call over a data connection \record{RadioStateEvent}
    RADIO_EVENT_VODATA_IND = 440,
    /// serving cells and neighbours of up to two subscriptions \record{RadioAllCellInfoEvent}
    RADIO_EVENT_ALL_CELL_INFO_IND = 441,
    /// change of a call's state \record{RadioStateEvent}
    RADIO_EVENT_CALL_STATE_CHANGE_IND = 442,
    /// outcome of network actions \record{RadioNetworkActionResultEvent}
    RADIO_EVENT_NETWORK_ACTION_RESULT_IND = 443,
    /// change of scene modes \record{RadioSceneModeEvent}
    RADIO_EVENT_SCENE_MODE_IND = 444,
    /// cell that the modem would select \record{RadioSmartNetworkSelectEvent}
    RADIO_EVENT_SMART_NETWORK_SELECT_IND = 445,
    /// event of the coexistence with the device's other radios \record{RadioRfIccEvent}
    RADIO_EVENT_RF_ICC_EVENT_IND = 446,
    /// transmit power \record{RadioNwEtxPower}
    RADIO_EVENT_NW_ETX_POWER = 10001,
    /// change of how the modem serves several SIM cards \record{RadioMsimSubMode}
    RADIO_EVENT_MSIM_SUB_MODE = 10002,
    /// frequency hopping; never comes
    RADIO_EVENT_FREQ_HOPPING = 10003,
    /// route of the packets of a new network interface \record{RadioDataIfupPacketRoute}
    RADIO_EVENT_DATA_IFUP_PACKET_ROUTE = 10004,
    /// event of an IMS call's RTP session \record{RadioCallRtpSessionMlc}
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
    uint8_t valid; ///< whether something is to change \values{0: no, 1: yes}; any number but 0 is yes
    uint8_t ind;   ///< whether the modem sends the indication \values{0: off, 1: on}; any number but 0 is on
};

/// The switchable vendor indications. The first call of radioRegisterVsEvent switches on all others of the vendor
/// client, whatever its switches say, but for RADIO_EVENT_SINGLE_SIM_CHANGE_IND.
struct RegVsEvtType {
    RadioEventSwitch nec;              ///< RADIO_EVENT_NEC_IND
    RadioEventSwitch test;             ///< RADIO_EVENT_TEST_IND
    RadioEventSwitch servingCellInfo;  ///< RADIO_EVENT_SERVING_CELL_INFO_IND
    RadioEventSwitch hyperUplinkState; ///< RADIO_EVENT_HYPER_UPLINK_STATE_IND
    RadioEventSwitch reserved4;        ///< ignored \unused
    RadioEventSwitch reserved5;        ///< ignored \unused
    RadioEventSwitch mccChanged;       ///< RADIO_EVENT_MCC_CHANGED_IND
    RadioEventSwitch reserved7;        ///< ignored \unused
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
    /// transmit power in hundredths of a unit; the modem counts eighths of the unit, of which only whole units stay
    int32_t txPower;
};
static_assert(sizeof(RadioNwEtxPower) == 4);

/// Record of RADIO_EVENT_MSIM_SUB_MODE.
struct RadioMsimSubMode {
    int32_t subMode; ///< how the modem serves the SIM cards: its sub-mode plus 2; 2 when it sent none
    int32_t state;   ///< whether the modem reports the sub-mode as active \values{1: inactive, 2: active}
};
static_assert(sizeof(RadioMsimSubMode) == 8);

/// Record of RADIO_EVENT_DATA_IFUP_PACKET_ROUTE.
struct RadioDataIfupPacketRoute {
    uint8_t values[4]; ///< route of the packets, as the modem defines it
};
static_assert(sizeof(RadioDataIfupPacketRoute) == 4);

/// Record of RADIO_EVENT_CALL_RTP_SESSION_MLC.
struct RadioCallRtpSessionMlc {
    int32_t id;    ///< identifier of the call
    int32_t event; ///< what happened to the session, as the modem numbers it \range{0 to 255}
};
static_assert(sizeof(RadioCallRtpSessionMlc) == 8);

/// Record of RADIO_EVENT_SML_STATUS_IND and RADIO_EVENT_RLK_STATUS_IND: lock data as the modem sent it,
/// the lock server's. \confidential
using RadioLockStatusEvent = RadioBlob<512>;
static_assert(sizeof(RadioLockStatusEvent) == 516);

/// Record of RADIO_EVENT_NEC_IND, RADIO_EVENT_QOS_PERIOD_REPORT_IND and RADIO_EVENT_QOS_EVENT_REPORT_IND: data as the
/// modem defines it.
using RadioReportEvent = RadioBlob<2048>;
static_assert(sizeof(RadioReportEvent) == 2052);

/// Record of RADIO_EVENT_ATOM_DATA_IND: data as the atom defines it.
using RadioAtomDataEvent = RadioBlob<4096>;
static_assert(sizeof(RadioAtomDataEvent) == 4100);

/// Record of RADIO_EVENT_TEST_IND, RADIO_EVENT_VEYRA_EVENT_IND and RADIO_EVENT_HST_MODE_IND.
struct RadioValueEvent {
    int32_t value; ///< what the event tells, as the modem defines it
};
static_assert(sizeof(RadioValueEvent) == 4);

inline constexpr unsigned kRadioMaxReportCells = 200; ///< cells in one report

/// One measured cell. The values are the modem's and passed through.
struct RadioVeyraCell {
    uint8_t rat;            ///< radio access technology, as the modem numbers it
    uint64_t subscription;  ///< subscription that the cell was measured for, as the modem numbers it
    uint64_t group;         ///< group of the frequency, as the modem numbers it; 0 without a valid PLMN
    uint16_t pci;           ///< physical cell identity
    uint16_t mcc;           ///< mobile country code, decimal; 0 without a valid PLMN
    uint16_t mnc;           ///< mobile network code, decimal; 0 without a valid PLMN
    uint32_t arfcn;         ///< downlink EARFCN or NR-ARFCN
    uint8_t beam;           ///< index of the beam
    int16_t rsrp;           ///< reference signal received power, as the modem counts it
    int16_t rsrq;           ///< reference signal received quality, as the modem counts it
    int16_t sinr;           ///< signal to interference and noise ratio, as the modem counts it
    uint16_t quality;       ///< quality of the cell, as the modem defines it
    uint64_t reserved1;     ///< always 0 \unused
    int16_t offset;         ///< offset of the frequency, as the modem defines it
    uint8_t reserved2[118]; ///< always 0 \unused
};
static_assert(sizeof(RadioVeyraCell) == 176);

/// Record of RADIO_EVENT_VEYRA_CELL_INFO_IND: a measurement report.
struct RadioVeyraCellInfo {
    uint32_t count;                             ///< number of measured cells, at most 200
    uint32_t reserved;                          ///< always 0 \unused
    RadioVeyraCell cells[kRadioMaxReportCells]; ///< measured cells \countedby{count}
};
static_assert(sizeof(RadioVeyraCellInfo) == 35208);

/// Record of RADIO_EVENT_SIDO_ISSUE_IND.
struct RadioSidoIssueEvent {
    int32_t values[21]; ///< what the issue is, as the modem defines it
};
static_assert(sizeof(RadioSidoIssueEvent) == 84);

/// Record of RADIO_EVENT_SERVING_CELL_INFO_IND: what RadioServingCell tells, and why it is reported. The library passes
/// the modem's words through as they are. Signal values are two's complement: cast to int32_t.
struct RadioServingCellEvent {
    uint32_t rat;           ///< radio access technology \values{RADIO_RAT_LTE, RADIO_RAT_NR}
    uint32_t mcc;           ///< mobile country code of the PLMN (3GPP TS 23.003)
    uint32_t mnc;           ///< mobile network code of the PLMN
    uint32_t tac;           ///< tracking area code
    uint32_t pci;           ///< physical cell identity
    uint32_t arfcn;         ///< downlink EARFCN or NR-ARFCN
    uint32_t reserved;      ///< without meaning \unused
    uint32_t cellIdLow;     ///< cell identity, low 32 bits
    uint32_t cellIdHigh;    ///< cell identity, bits above the low 32 (NR has 36)
    uint32_t band;          ///< operating band
    uint32_t rsrp;          ///< reference signal received power \unit{dBm} \signed
    uint32_t rsrq;          ///< reference signal received quality \unit{dB} \signed
    uint32_t sinr;          ///< signal to interference and noise ratio \unit{dB} \signed
    uint32_t rssi;          ///< received signal strength \unit{dBm} \signed
    uint32_t dlBandwidth;   ///< downlink bandwidth \unit{kHz}
    uint32_t ulArfcn;       ///< uplink EARFCN or NR-ARFCN
    uint32_t ulBandwidth;   ///< uplink bandwidth \unit{kHz}
    uint32_t timingAdvance; ///< timing advance, as the modem counts it
    uint32_t cqi;           ///< channel quality indicator \range{0 to 15}
    uint32_t rrcState;      ///< state of the radio resource control \values{RadioRrcState}
    uint8_t mncDigits;      ///< number of digits of the MNC \range{2 to 3}
    uint8_t rxAntennas;     ///< number of receive antennas in use
    uint8_t txAntennas;     ///< number of transmit antennas in use
    uint32_t cause;         ///< why the cell is reported, as the modem defines it
};
static_assert(sizeof(RadioServingCellEvent) == 88);

/// Record of RADIO_EVENT_HYPER_UPLINK_STATE_IND.
struct RadioHyperUplinkStateEvent {
    int32_t scene; ///< scene that the enhancement is for, as the modem numbers it
    int32_t state; ///< state of the enhancement, as the modem defines it
    int32_t type;  ///< kind of the enhancement, as the modem defines it
};
static_assert(sizeof(RadioHyperUplinkStateEvent) == 12);

/// Record of RADIO_EVENT_IMS_RTP_CONTROL_IND.
struct RadioImsRtpControlEvent {
    uint16_t control; ///< what the modem asks for, as it defines it
};
static_assert(sizeof(RadioImsRtpControlEvent) == 2);

/// Record of RADIO_EVENT_OLOG_IND.
struct RadioOlogEvent {
    int32_t dataLength; ///< how much was logged \unit{bytes}
    int32_t dataLost;   ///< how much was lost \unit{bytes}
};
static_assert(sizeof(RadioOlogEvent) == 8);

/// Record of RADIO_EVENT_SINGLE_SIM_CHANGE_IND.
struct RadioSingleSimChangeEvent {
    uint8_t state; ///< whether one or two SIM cards are in use, as the modem defines it
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
    int32_t entries[5]; ///< details of what happened, as the modem defines them; what it did not send is 0
};
static_assert(sizeof(RadioAlertEvent) == 28);

/// Record of RADIO_EVENT_VODATA_IND and RADIO_EVENT_CALL_STATE_CHANGE_IND.
struct RadioStateEvent {
    int32_t id;    ///< identifier of the call
    int32_t state; ///< state of the call, as the modem defines it
};
static_assert(sizeof(RadioStateEvent) == 8);

/// Record of RADIO_EVENT_ALL_CELL_INFO_IND: the cells of up to two subscriptions, the modem's block as it is. The
/// library does not check it: before they are used, `count` must be cut to 2, and the `neighbourCount` of each entry
/// to kRadioMaxNeighbourCells.
struct RadioAllCellInfoEvent {
    uint32_t count;    ///< number of subscriptions; may be more than `cells` has
    uint32_t reserved; ///< without meaning \unused
    /// cells of each subscription \called{subscriptions} \countedby{count}; an entry's `neighbourCount` may be above
    /// kRadioMaxNeighbourCells
    RadioAllCellInfo cells[2];
};
static_assert(sizeof(RadioAllCellInfoEvent) == 4280);

/// The outcome of one network action.
struct RadioNetworkActionOutcome {
    int32_t id;     ///< number of the action
    int32_t type;   ///< kind of action, as the modem defines it
    int32_t result; ///< what became of the action \values{0: carried out}; otherwise as the modem defines it
    int32_t values[4]; ///< details of the outcome, as the modem defines them
};

/// Record of RADIO_EVENT_NETWORK_ACTION_RESULT_IND.
struct RadioNetworkActionResultEvent {
    uint32_t count;                         ///< number of outcomes, at most 16
    RadioNetworkActionOutcome outcomes[16]; ///< outcomes of network actions \countedby{count}
};
static_assert(sizeof(RadioNetworkActionResultEvent) == 452);

/// Record of RADIO_EVENT_SCENE_MODE_IND.
struct RadioSceneModeEvent {
    uint32_t count;      ///< number of values, at most 128: two for each scene
    int32_t values[128]; ///< scenes and their modes, in turns \countedby{count}
};
static_assert(sizeof(RadioSceneModeEvent) == 516);

/// Record of RADIO_EVENT_SMART_NETWORK_SELECT_IND.
struct RadioSmartNetworkSelectEvent {
    int32_t rat;   ///< radio access technology, as the modem numbers it
    int32_t arfcn; ///< downlink EARFCN or NR-ARFCN
    int32_t pci;   ///< physical cell identity
};
static_assert(sizeof(RadioSmartNetworkSelectEvent) == 12);

/// Record of RADIO_EVENT_RF_ICC_CLAT_INFO_IND.
struct RadioRfIccClatEvent {
    uint16_t band;      ///< operating band concerned
    uint16_t bandwidth; ///< bandwidth in use \unit{MHz}
    uint16_t state;     ///< state of the coexistence, as the modem defines it
};
static_assert(sizeof(RadioRfIccClatEvent) == 6);

/// Record of RADIO_EVENT_RF_ICC_TX_SHARING_IND.
struct RadioRfIccTxSharingEvent {
    int32_t band;  ///< operating band concerned
    int32_t state; ///< state of the sharing, as the modem defines it
    int32_t power; ///< transmit power, as the modem counts it
};
static_assert(sizeof(RadioRfIccTxSharingEvent) == 12);

/// Record of RADIO_EVENT_RF_ICC_EVENT_IND.
struct RadioRfIccEvent {
    int32_t event;       ///< what happened, as the modem numbers it
    uint32_t dataLength; ///< number of bytes in `data`, at most 128
    uint8_t data[128];   ///< details of the event, as the modem defines them \countedby{dataLength}
};
static_assert(sizeof(RadioRfIccEvent) == 136);

extern "C" {

/// Listens for one event of the calling thread's instance. The registration ends with
/// radioApisReleaseService.
///
/// @param event     which event: 401 to 499 or 10000 to 10999
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

/// Switches standard indications of the calling thread's instance on and off.
///
/// @param switches  what to switch, as with radioRegisterVsEvent
/// @param userData  not used
/// @param callback  never called: the return value is the only answer
/// @return as radioRegisterVsEvent returns
RADIO_API int radioRegisterRadioEvent(RegRadioEvtType switches, void* userData,
                                      RadioRequestCallback callback);

} // extern "C"
