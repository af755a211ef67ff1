#include "radio/vorn_radio_client.h"
#include "support/request_rows.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Row = RequestRow;
using enum Failure;

const Bytes kLargest = counting(20480);

Row readNv(const char* name, const Fields& answer, uint16_t length)
{
    return query(Flag, name, radioReadNv, 53, {int32(256, 100), int32(257, -2)}, answer,
                 joined({packed(0u, length), counting(length)}), 100, static_cast<signed char>(-2));
}

Row writeNv(uint16_t length)
{
    return query(Flag, "writeNv", radioWriteNv, 51,
                 {uint32(256, 100), uint32(257, 0xFFFFFFFE), raw(0x8102, counting(length))}, {}, {}, 100,
                 static_cast<signed char>(-2), kLargest.data(), unsigned{length});
}

Row operationMode(int mode, uint8_t sent)
{
    return setter("setOperationMode", &VornRadioClient::setOperationMode, 1027, {uint8(256, sent)},
                  static_cast<RADIO_OPERATION_MODE_TYPE>(mode));
}

Row unblock(int mcc, int mnc, uint8_t threeDigits, const std::string& plmn, int rat = 5, uint8_t ratSent = 5)
{
    return setter("performPlmnUnblock", radioPerformPlmnUnblock, 4427,
                  {raw(256, {plmn.begin(), plmn.end()}), raw(257, {ratSent}), raw(258, {0x34})},
                  RadioPlmnBlockInfo{0x1234, rat, 7, mcc, mnc, threeDigits});
}

Row forbiddenTai(int mcc, int mnc, bool threeDigits, const std::string& plmn)
{
    Bytes tai(plmn.begin(), plmn.end());
    tai.resize(8);
    return setter("clearForbiddenTai", radioClearForbiddenTai, 4415,
                  {raw(256, {2}), raw(257, joined({tai, {0x78, 0x56}}))}, 9, mcc, mnc, threeDigits, 0x345678,
                  0x102);
}

Row thresholds(int rat, int first, int16_t sentFirst, int second, int16_t sentSecond)
{
    return setter("setDsdaPreferCustThresh", radioSetDsdaPreferCustThresh, 4437,
                  {uint8(258, static_cast<uint8_t>(rat)), int16(256, sentFirst), int16(257, sentSecond)}, rat,
                  first, second);
}

Row idcOffset(int rat, size_t given, size_t sent)
{
    std::vector<RadioIdcOffsetConfig> configs;
    Bytes table;
    for (int i = 1; i <= static_cast<int>(given); ++i) {
        configs.push_back({0x1200 + i, -i, i << 20, 0x340000 + i});
        if (configs.size() <= sent) {
            append(table, packed(static_cast<uint8_t>(i), uint8_t{0}, static_cast<uint16_t>(i), -i, i << 20));
        }
    }
    table.resize(240);
    return setter("setIdcOffset", radioSetIdcOffset, 4437,
                  {uint8(256, static_cast<uint8_t>(rat)), int16(257, -3), raw(0x8102, table)}, rat, -3,
                  configs);
}

Row carkit(int radioTech, uint8_t rat, size_t answered, uint32_t kept)
{
    return query(Flag, "getTxCarkit", radioGetTxCarkit, 29,
                 {uint32(256, 0), text(257, "VornGetAtc"), raw(0x8102, {0x4E, 1, rat, 0})},
                 {raw(0x8100, counting(answered))}, joined({packed(0u, kept), counting(kept)}), radioTech,
                 0x2014E, 5, 9);
}

Row authentication(const Fields& answer, const Bytes& content)
{
    RadioUimAuthenticateReqInfo info{{'a', 0x0A, 'c'}, 4};
    return query(
        Flag, "requestIccSimAuthentication", radioRequestIccSimAuthentication, 1333,
        {uint8(257, 1), uint8(256, 0), uint8(260, 4), uint16(258, 4), raw(0x8103, {'a', 0x0A, 'c', 0})},
        answer, joined({packed(0u, static_cast<uint32_t>(content.size())), content}), info);
}

Row publicKey(int keyType, const Fields& sent, size_t answered, uint32_t kept)
{
    Fields request = {uint8(256, 1), int32(257, -5)};
    request.insert(request.end(), sent.begin(), sent.end());
    return query(Code, "getImsRtpRedunPublicKey", radioGetImsRtpRedunPublicKey, 2429, request,
                 {uint32(256, 7), int32(258, -5), int32(259, 2), raw(262, counting(answered))},
                 joined({packed(0u, 7u, -5, 2, kept), counting(kept)}),
                 RadioImsRtpRedunKeyInfoType{-5, keyType});
}

Row remoteKey(uint16_t length, uint16_t sent)
{
    RadioImsRtpRedunPublicKeyInfoType info{-5, length, {}};
    std::ranges::copy(counting(130), info.key);
    Bytes block = joined({packed(sent), counting(sent)});
    block.resize(132);
    return query(Code, "setImsRtpRedunRemotePublicKey", radioSetImsRtpRedunRemotePublicKey, 2431,
                 {uint8(256, 0), int32(257, -5), uint8(259, 2), raw(260, block)},
                 {uint32(256, 7), int32(257, -5), uint8(258, 2)}, packed(0u, 7u, -5, 2u), info);
}

Row control(int action, const Fields& sent)
{
    Fields request = {int32(257, 6)};
    request.insert(request.end(), sent.begin(), sent.end());
    return query(Code, "setImsRtpRedunControlInfo", radioSetImsRtpRedunControlInfo, 2431, request,
                 {uint32(256, 1), int32(257, 6)}, packed(0u, 1u, 6),
                 RadioImsRtpRedunControlInfoType{6, action});
}

Row dataPath()
{
    Bytes longAddress = counting(64);
    return query(Code, "syncImsRtpRedunDataPathConfig", radioSyncImsRtpRedunDataPathConfig, 621,
                 {uint8(256, 0x34)},
                 {uint8(256, 3), raw(257, {192, 0, 2, 1}), uint16(258, 65535), raw(259, counting(80)),
                  uint16(260, 2), uint8(261, 4), uint8(262, 5)},
                 joined({packed(0u, 3u, 65535u, 4u),
                         {192, 0, 2, 1},
                         Bytes(60),
                         packed(2u, 64u),
                         longAddress,
                         packed(4u, 5u)}),
                 RadioImsRtpRedunDataPathConfigType{0x1234});
}

std::vector<Row> rows()
{
    return {
        setter("setFastDormancyTimer", radioSetFastDormancyTimer, 1055, {uint8(256, 2)}, -1, -1),
        setter("setFastDormancyTimer", radioSetFastDormancyTimer, 1055,
               {uint8(256, 2), uint32(257, 0), uint32(258, 0xFFFFFFFE)}, 0, -2),
        query(Flag, "getOperationMode", &VornRadioClient::getOperationMode, 1025, {}, {uint8(256, 200)},
              packed(0u, 200u)),
        operationMode(4, 1),
        operationMode(12, 1),
        operationMode(-4, 1),
        operationMode(5, 0),
        operationMode(0, 0),
        query(Flag, "getMsimSubModeState", radioGetMsimSubModeState, 555, {},
              {uint8(257, 3), uint8(258, 255)}, packed(0u, 3u, 255u)),
        query(Code, "sendDeviceStateExt", radioSendDeviceStateExt, 225, {int32(256, -3)}, {int32(256, -4)},
              packed(0u, -4), -3),
        setter("setImbState", radioSetImbState, 4429, {uint8(256, 0x34)}, 0x1234),
        unblock(460, 1, 0, "46001", 0, 4),
        unblock(460, 1, 1, "460001", 1, 128),
        unblock(460, 12, 1, "460012", -1, 255),
        unblock(1, 0, 0, "100"),
        unblock(460, 123, 0, "460123"),
        unblock(4600, 123, 0, "460012"),
        unblock(46000, 123, 1, "460001"),
        forbiddenTai(1, 1, false, "101"),
        forbiddenTai(310, 26, true, "310026"),
        forbiddenTai(-2147483647, -1, true, "-21474"),
        query(Flag, "configCellBarringParam", radioConfigCellBarringParam, 4373,
              {uint8(256, 0x34), uint16(257, 0x5678), uint32(258, 0xFFFFFFFF)}, {}, {}, 0x1234u, 0x345678u,
              0xFFFFFFFFu),
        setter("setOosSnifferCfg", radioSetOosCfg, 4469,
               {uint8(256, 7), uint8(257, 8), uint8(258, 9), uint8(259, 10), uint8(260, 255)},
               RadioOosCfgInfo{1, 100, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0x10A, -1}),
        thresholds(4, -10, -40, 20, 80),
        thresholds(7, -10, -10, 20, 20),
        thresholds(4, INT32_MIN, 0, INT32_MAX, -4),
        idcOffset(7, 0, 0),
        idcOffset(4, 3, 3),
        idcOffset(4, 25, 20),
        readNv("readNv", {raw(0x8100, counting(5))}, 5),
        readNv("readNv without data", {}, 0),
        readNv("readNv with too much data", {raw(0x8100, counting(60000))}, 20480),
        writeNv(0),
        writeNv(20480),
        carkit(6, 1, 3, 3),
        carkit(7, 1, 513, 512),
        carkit(2, 0, 0, 0),
        carkit(5, 0, 1, 1),
        carkit(1, 255, 1, 1),
        authentication({uint16(257, 2), raw(0x8102, {0xDB, 8, 9})}, {0xDB, 8}),
        authentication({uint16(257, 9), raw(0x8102, {0xDB, 8, 9})}, {0xDB, 8, 9}),
        authentication({uint16(257, 60000), raw(0x8102, counting(60000))}, counting(256)),
        setter("setUimPowerUp", radioSetUimPowerUp, 1353, {uint8(256, 1), uint8(257, 1)}),
        setter("setUimPowerDown", radioSetUimPowerDown, 1353, {uint8(256, 1), uint8(257, 0)}),
        query(Flag, "getImsRtpRedunCapability", radioGetImsRtpRedunCapability, 2429,
              {uint8(256, 0), uint8(258, 2)}, {uint8(257, 3)}, packed(0u, 3u)),
        publicKey(2, {uint8(258, 2)}, 65, 65),
        publicKey(1, {}, 257, 256),
        remoteKey(3, 3),
        remoteKey(129, 129),
        remoteKey(130, 129),
        remoteKey(65535, 129),
        control(1, {uint8(256, 1)}),
        control(0x302, {uint8(256, 2)}),
        control(3, {}),
        dataPath(),
        query(Flag, "getDataActPacketRoute", radioGetDataActPacketRoute, 607, {uint8(256, 2)},
              {uint8(256, 9)}, packed(0u, 9u)),
        query(Flag, "getDataIfupPacketRoute", radioGetDataIfupPacketRoute, 609, {uint8(256, 2)},
              {uint8(256, 8)}, packed(0u, 8u)),
    };
}

} // namespace

TEST(RadioRequests, RefuseWhatDoesNotFit)
{
    const RadioUimAuthenticateReqInfo challenge{{}, 257};
    const std::vector<RadioIdcOffsetConfig> configs(1);
    const auto write = [](const uint8_t* data, unsigned length) {
        return call(radioWriteNv, 1, int8_t{0}, data, length);
    };
    const std::string line = "E VornRadioClient: invalid paramter found";
    const Instance instance(1);
    for (const Call& refused :
         {write(kLargest.data(), 20481), write(kLargest.data(), 65546), write(kLargest.data(), 0xFFFFFFFF),
          write(nullptr, 0), call(radioRequestIccSimAuthentication, challenge)}) {
        checkRefusal(refused, 11, line);
    }
    for (const int rat : {5, 260}) {
        checkRefusal(call(radioSetDsdaPreferCustThresh, rat, 1, 2), 2,
                     "D VornRadioClient: setDsdaPreferCustThresh - enter");
        checkRefusal(call(radioSetIdcOffset, rat, 1, configs), 2, "D VornRadioClient: setIdcOffset - enter");
    }
}

TEST(RadioRequests, FitTheirRows)
{
    checkRows(
        rows(), "VornRadioClient",
        {
            {"getOperationMode", {"getOperationMode - enter", "operator() : rsp.operationMode.mode=200"}},
            {"setOperationMode", {"setOperationMode - enter. mode=4, slotId=2"}},
            {"sendDeviceStateExt",
             {"sendDeviceStateExt - enter. sendDeviceStateExt deviceStateExt=-3 ",
              "operator() : rsp.DeviceStateExt.deviceStateExt=-4,getResult=0"}},
            {"performPlmnUnblock",
             {"performPlmnUnblock - enter", "performPlmnUnblock - plmn_str=46001, len=5"}},
            {"clearForbiddenTai", {"clearForbiddenTai - enter", "clearForbiddenTai - plmn_str=101, len=3"}},
            {"configCellBarringParam",
             {"configCellBarringParam - enter. slotId=2 threshold=4660 watchPeriod=3430008 barringTime=-1"}},
            {"readNv", {"readNv - enter. slotId=2 id=100 index=-2", "nvItemData.dataLen=5"}},
            {"readNv without data", {"readNv - enter. slotId=2 id=100 index=-2", "nvItemData.dataLen=0"}},
            {"readNv with too much data",
             {"readNv - enter. slotId=2 id=100 index=-2", "nvItemData.dataLen=20480"}},
            {"getTxCarkit",
             {"getTxCarkit -VornVsClient enter. radioTech=6, uiBand=131406, subband=5, slotId=2",
              "VornRadioClient enter. getBandsTxNum radioTech = 6, uiBand = 131406, msg_len=3"}},
            {"requestIccSimAuthentication",
             {"requestIccSimAuthentication - enter",
              "requestIccSimAuthentication authdata_len: 4, authdata: a.c",
              "requestIccSimAuthentication respCb vorn_result: 0, rsp_len: 2",
              "requestIccSimAuthentication respCb auth_content: .."}},
            {"setOosSnifferCfg",
             {"E VornApis: radioSetOosCfg : radioSetOosCfg tlssubid 2", "setOosSnifferCfg - enter"}},
            {"setUimPowerUp", {entered("radioSetUimPowerUp"), "setUimPowerUp - enter"}},
            {"setUimPowerDown", {entered("radioSetUimPowerDown"), "setUimPowerDown - enter"}},
            {"getImsRtpRedunCapability", {"getImsRtpRedunCapability - enter", "operator() - cb enter"}},
            {"setImsRtpRedunControlInfo", {"setImsRtpRedunControlInfo - enter id:6, action:1"}},
            {"syncImsRtpRedunDataPathConfig", {"syncImsRtpRedunDataPathConfig - enter, type:4660"}},
            {"getDataActPacketRoute", {"getDataActPacketRoute - enter", "operator() - cb enter"}},
            {"getDataIfupPacketRoute", {"getDataIfupPacketRoute - enter", "operator() -  cb enter"}},
        });
}
