#include "channel/vorn_channel_client.h"

#include "channel/device_path.h"
#include "cutils/properties.h"
#include "vorn/vorn_msg.h"
#include "zor/log.h"
#include "zor/property.h"

#include <tinyxml2.h>

#include <cstring>
#include <dlfcn.h>

namespace {

constexpr char kChannelTag[] = "VornChannelClient";
constexpr char kStatusLibrary[] = "libkst.so";
constexpr char kDeviceFile[] = "/odm/etc/vorn_device_config.xml";
constexpr char kDefaultDevice[] = "/dev/ttyCVORN8";
constexpr char kSupportProperty[] = "ro.vendor.zor_vorn_support";
constexpr size_t kPropertySize = 92;

constexpr uint32_t kModemUp = 1;
constexpr uint32_t kModemLost = 10;

/// The status library's entry points, shared by the whole process and never given back.
struct StatusLibrary {
    void* handle = nullptr;
    decltype(&libkst_init) init = nullptr;
    decltype(&libkst_deinit) deinit = nullptr;
    decltype(&libkst_md_event_register) registerEvent = nullptr;
};

StatusLibrary statusLibrary;

template <typename Function>
void lookUp(Function& function, const char* name)
{
    function = reinterpret_cast<Function>(dlsym(statusLibrary.handle, name));
}

void openStatusLibrary()
{
    if (statusLibrary.handle == nullptr) {
        statusLibrary.handle = dlopen(kStatusLibrary, RTLD_LAZY);
    }
    if (statusLibrary.handle == nullptr) {
        zorLogW(kChannelTag, "VornVsClient::VornVsClient : open %s fail", kStatusLibrary);
        return;
    }
    lookUp(statusLibrary.init, "libkst_init");
    lookUp(statusLibrary.deinit, "libkst_deinit");
    lookUp(statusLibrary.registerEvent, "libkst_md_event_register");
    zorLogD(kChannelTag, "VornVsClient::VornVsClient : open %s success", kStatusLibrary);
}

void copyDeviceName(char* to, const char* from)
{
    const size_t length = strnlen(from, VornChannelClient::kDeviceNameSize - 1);
    std::memcpy(to, from, length);
    to[length] = '\0';
}

} // namespace

VornChannelClient::VornChannelClient(bool flag) : RpcClient(flag, 0)
{
    openStatusLibrary();
    char hardware[kPropertySize];
    property_get("ro.boot.hardware", hardware, "");
    char parsed[kDeviceNameSize];
    const bool found = parseVornDeviceName(hardware, parsed);
    copyDeviceName(mVornDeviceName.data(), found ? parsed : kDefaultDevice);
    zorLogD(kChannelTag, "mVornDeviceName is %s", mVornDeviceName.data());
}

VornChannelClient::~VornChannelClient()
{
    if (isVornSupport()) {
        vorn_deinit();
    }
}

bool VornChannelClient::parseVornDeviceName(const char* hardware, char* deviceName)
{
    if (hardware == nullptr || deviceName == nullptr) {
        return false;
    }
    tinyxml2::XMLDocument document;
    if (document.LoadFile(devicePath(kDeviceFile).c_str()) != tinyxml2::XML_SUCCESS) {
        return false;
    }
    const tinyxml2::XMLElement* root = document.FirstChildElement("vorn_device_config");
    if (root == nullptr) {
        return false;
    }
    for (const auto* platform = root->FirstChildElement("platform"); platform != nullptr;
         platform = platform->NextSiblingElement("platform")) {
        const tinyxml2::XMLAttribute* name = platform->FindAttribute("name");
        const tinyxml2::XMLAttribute* device = platform->FindAttribute("vorn_device");
        if (name != nullptr && device != nullptr && std::strcmp(name->Value(), hardware) == 0) {
            copyDeviceName(deviceName, device->Value());
            return true;
        }
    }
    return false;
}

bool VornChannelClient::isVornSupport()
{
    char support[kPropertySize];
    zor_property_get(kSupportProperty, support, "0");
    if (std::strcmp(support, "1") != 0) {
        zorLogE(kChannelTag, "VORN is not supportted, zor_vorn_support=%s", support);
        return false;
    }
    return true;
}

int VornChannelClient::init()
{
    zorLogD(kChannelTag, "VornChannelClient::init enter");
    if (mInitialised) {
        return RADIO_APIS_SUCCESS;
    }
    if (!isVornSupport()) {
        return RADIO_APIS_NOT_SUPPORTED;
    }
    SETCOM(mVornDeviceName.data());
    if (vorn_init_debug("subsys-daemon") < 0) {
        zorLogE(kChannelTag, "VornVsClient::init call vorn_init_debug error");
        return RADIO_APIS_FAILURE;
    }
    mInitialised = true;
    return RADIO_APIS_SUCCESS;
}

int VornChannelClient::registerRadioApisEvent(void* userData, RadioServiceCallback callback)
{
    zorLogD(kChannelTag, "registerRadioApisEvent enter");
    RpcClient::registerRadioApisEvent(userData, callback);
    if (mStatusSubscribed.exchange(true)) {
        return 0;
    }
    zorLogD(kChannelTag, "registerRadioApisEvent kst register");
    if (statusLibrary.registerEvent == nullptr) {
        openStatusLibrary();
    }
    if (statusLibrary.registerEvent == nullptr) {
        zorLogW(kChannelTag, "registerRadioApisEvent : no modem status without %s", kStatusLibrary);
        mStatusSubscribed = false;
        return 0;
    }
    if (statusLibrary.init != nullptr) {
        statusLibrary.init();
    }
    if (statusLibrary.registerEvent(mdStatusEventCb, this) < 0) {
        zorLogW(kChannelTag, "registerRadioApisEvent : %s refuses to tell of the modem", kStatusLibrary);
        mStatusSubscribed = false;
    }
    return 0;
}

int VornChannelClient::deInit()
{
    vorn_hashmap_reset();
    return 0;
}

void mdStatusEventCb(void* client, md_status_event* event)
{
    if (client == nullptr) {
        return;
    }
    zorLogD(kChannelTag, "VornChannelClient::mdStatusEventCb : mdStatusEvent %d",
            static_cast<int>(event->event));
    auto* channel = static_cast<VornChannelClient*>(client);
    if (event->event == kModemUp) {
        channel->radioApiEventCall(RADIO_APIS_SERVICE_MODEM, RAPIS_CONNECTED);
    } else if (event->event == kModemLost) {
        channel->radioApiEventCall(RADIO_APIS_SERVICE_MODEM, RAPIS_DISCONNECTED);
    }
}
