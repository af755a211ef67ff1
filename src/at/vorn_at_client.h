/// The client for AT commands, which travel to the modem as text inside messages.
#pragma once

#include "at/at_callbacks.h"
#include "channel/vorn_client.h"
#include "mindroid/handler.h"
#include "radio_apis/power.h"
#include "radio_apis/rf.h"

/// One per instance, held by strong pointers: a command on its way keeps its client.
class VornAtClient : public VornClient, public mindroid::Handler {
public:
    VornAtClient(bool flag, int slotId);

    /// Sends a command text as it stands; its answer is parsed into fields for `rsp`. `cb` gets the
    /// interpreter's code and the record; RADIO_APIS_FAILURE and a zeroed record when the answer had no text;
    /// the modem's failure and no record when it refused the message.
    int sendAtCommand(const char* cmd, void* userData, RadioRequestCallback cb,
                      const mindroid::sp<AtResponseCallback>& rsp);

    /// The same for a callback that is shared, and may hold no function. A refused message counts as no text.
    int sendAtCommand(const char* cmd, void* userData, const mindroid::sp<RadioApiCallback>& cb,
                      const mindroid::sp<AtResponseCallback>& rsp);

    /// Nobody waits for a result: only `rsp` is called, without a record, and without a parcel when there was
    /// no text.
    int sendAtCommand(const char* cmd, void* userData, const mindroid::sp<AtResponseCallback>& rsp);

    /// As the first, with the answer's data as one string.
    int sendAtCommandRspRawStr(const char* cmd, void* userData, RadioRequestCallback cb,
                               const mindroid::sp<AtResponseCallback>& rsp);

    /// Interpreters for commands whose answer carries no data: whether it was accepted, or success whatever
    /// it says.
    static RADIO_APIS_RESULT completeWithResultVoid(const mindroid::sp<mindroid::Parcel>& answer,
                                                    RadioApisResultType* record);
    static RADIO_APIS_RESULT completeWithoutResultCheck(const mindroid::sp<mindroid::Parcel>& answer,
                                                        RadioApisResultType* record);

    // Bands. Lists of bands are bytes, most significant first.
    int setBandPrefer(int rat, const unsigned char* bands, unsigned int length, void* userData,
                      RadioRequestCallback cb);
    int getBandPrefer(int rat, void* userData, RadioRequestCallback cb);
    int getAvailableBandModes(void* userData, RadioRequestCallback cb);
    int getBand(int nwType, void* userData, RadioRequestCallback cb);
    int getBandsTxNum(int radioTech, int uiBand, int subband, void* userData, RadioRequestCallback cb);

    /// Runs the commands that the RF feature file lists for a feature and index.
    int setAsdivFixPosition(int featureId, int index, void* userData, RadioRequestCallback cb);

    // Transmitter control is not supported: each logs so and returns 1.
    int setTasForceIdxByRat(int rat, int index, int state, int mode, void* userData, RadioRequestCallback cb);
    int setMaxTxPower(int rat, int band, int power, void* userData, RadioRequestCallback cb);
    int setRfTxInfo(const RFTXINFO& info, void* userData, RadioRequestCallback cb);
    int getTxAdc(const TXADCINFO& info, void* userData, RadioRequestCallback cb);
    int setRfTxPower(const RFTXINFO& info, void* userData, RadioRequestCallback cb);
    int setComboRfTxInfo(const std::vector<RFTXINFO>& infos, void* userData, RadioRequestCallback cb);

    int getServiceMode(void* userData, RadioRequestCallback cb);

    /// The switches of groups 3 to 5, one command each. Other groups are refused with 1 and a line in the
    /// log.
    int setPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback cb);

    /// For NR only: other radio access technologies have a vendor message. `rat` is not sent.
    int setAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback cb);

private:
    /// Sends a command whose answer carries no data.
    int sendSetter(const char* cmd, void* userData, RadioRequestCallback cb);

    struct Command;
    int sendCommand(const char* cmd, std::unique_ptr<Command> command);
};
