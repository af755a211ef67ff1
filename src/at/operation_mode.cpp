/// Functionality of the modem: on, off, restarted.
#include "at/at_answer.h"
#include "at/at_chain_promise.h"
#include "at/at_log.h"
#include "at/at_text.h"

using at::kTag;
using mindroid::make;
using mindroid::Parcel;
using mindroid::sp;
using namespace std::chrono_literals;

namespace {

constexpr char kMethod[] = "setOperationMode";
constexpr auto kPause = 500ms; ///< the modem needs about so long to change its mode

/// A change of the mode under way: the command and, each after a pause, up to two looks whether the modem has
/// followed. What is under way keeps it alive. The caller is called back once, whatever fails.
class ModeChange : public mindroid::Object {
public:
    ModeChange(VornAtClient* client, unsigned char wanted, void* userData, RadioRequestCallback cb)
        : mClient(client), mWanted(wanted), mUserData(userData), mCallback(make<RadioApiCallback>(cb))
    {}

    /// Sends the command. The callback never runs inside this call. Throws only where nothing was sent, and then
    /// never calls back.
    void start()
    {
        try {
            send(AtText<64>("AT+EFUN=%hhu", mWanted), &ModeChange::onSet);
        } catch (const RadioException& refused) {
            mindroid::runAfter(0ms,
                               [self = sp(this), refused] { self->run([&]() -> bool { throw refused; }); });
        }
    }

private:
    using Step = bool (ModeChange::*)(const sp<Parcel>& answer);

    /// Runs a part of the change, which returns whether the modem has the mode. What it throws ends the change.
    template <typename Part>
    void run(Part part)
    {
        try {
            if (!part()) {
                return;
            }
        } catch (const RadioException& failure) {
            zorLogE(kTag, "%s: processRadioException: %s", kMethod, failure.what());
            endWithException(mCallback, mUserData, [&] {
                return make<mindroid::CompletionException>(make<RadioException>(failure.getResult()));
            });
            return;
        } catch (const std::exception& exception) {
            zorLogE(kTag, "%s: process exception: %s", kMethod, exception.what());
            endWithException(mCallback, mUserData,
                             [&] { return make<mindroid::Exception>(exception.what()); });
            return;
        }
        ZeroedResult record;
        mCallback->call(mUserData, RADIO_APIS_SUCCESS, &record);
    }

    void send(const char* cmd, Step onAnswer)
    {
        const auto interpreter = [self = sp(this), onAnswer](const sp<Parcel>& answer, RadioApisResultType*) {
            self->run([&] { return ((*self).*onAnswer)(answer); });
            return RADIO_APIS_SUCCESS;
        };
        if (mClient->sendAtCommand(cmd, mUserData, make<AtResponseCallback>(interpreter)) != 0) {
            throw RadioException(RADIO_APIS_FAILURE);
        }
    }

    static void checkAccepted(const sp<Parcel>& answer)
    {
        if (!answer->getBoolean()) {
            zorLogD(kTag, "getBoolean: false");
            throw RadioException(RADIO_APIS_FAILURE);
        }
    }

    bool onSet(const sp<Parcel>& answer)
    {
        checkAccepted(answer);
        lookLater();
        return false;
    }

    void lookLater()
    {
        mindroid::runAfter(kPause, [self = sp(this)] {
            self->run([&] {
                self->send("AT+EFUN?", &ModeChange::onLook);
                return false;
            });
        });
    }

    bool onLook(const sp<Parcel>& answer)
    {
        constexpr int kMostLooks = 2;
        checkAccepted(answer);
        if (hasWantedMode(*answer)) {
            return true;
        }
        if (++mLooks == kMostLooks) {
            throw RadioException(RADIO_APIS_FAILURE);
        }
        lookLater();
        return false;
    }

    /// Whether one of the numbers in the answer is the wanted mode.
    bool hasWantedMode(Parcel& answer) const
    {
        const int count = answer.getInt();
        zorLogD(kTag, "query efun callback: efun=%d,  p->len=%d", mWanted, count);
        for (int i = 0; i < count; ++i) {
            const auto mode = at::nextInteger(answer);
            if (!mode) {
                zorLogD(kTag, "unexpected type");
                continue;
            }
            zorLogD(kTag, "curMode=%d", *mode);
            if (*mode == mWanted) {
                return true;
            }
        }
        return false;
    }

    const sp<VornAtClient> mClient;
    const unsigned char mWanted;
    void* const mUserData;
    const sp<RadioApiCallback> mCallback;
    int mLooks = 0;
};

RADIO_APIS_RESULT onFunctionality(const sp<Parcel>& answer, RadioApisResultType* result)
{
    if (!answer->getBoolean()) {
        zorLogD(kTag, "getBoolean: false");
        return RADIO_APIS_FAILURE;
    }
    const int count = answer->getInt();
    zorLogD(kTag, "query cfun callback: p->len=%d", count);
    const auto mode = count >= 1 ? at::nextInteger(*answer) : std::nullopt;
    if (!mode) {
        return RADIO_APIS_FAILURE;
    }
    zorLogD(kTag, "cfun mode=%d", *mode);
    result->rsp.operationMode.mode = static_cast<uint32_t>(*mode);
    return RADIO_APIS_SUCCESS;
}

} // namespace

int VornAtClient::setOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: mode=%d", __func__, mode);
    constexpr unsigned kModeBits = 7;
    const unsigned char wanted =
        (static_cast<unsigned>(mode) & kModeBits) == RADIO_OPERATION_MODE_ONLINE ? 3 : 0;
    make<ModeChange>(this, wanted, userData, cb)->start();
    return RADIO_APIS_SUCCESS;
}

int VornAtClient::getOperationMode(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. ", __func__);
    return sendQuery("AT+CFUN?", userData, cb, onFunctionality);
}

int VornAtClient::requireModemReboot(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+CFUN=1,1", userData, cb);
}
