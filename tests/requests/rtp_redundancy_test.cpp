#include "support/request_rows.h"

using namespace test;

TEST(RtpRedundancy, Requests)
{
    const auto publicKey = [](const Texts& log, int keyType, const Fields& sent, size_t answered,
                              uint32_t kept) {
        return query(
            Code, log, radioGetImsRtpRedunPublicKey, 2429, joined({{uint8(256, 1), int32(257, -5)}, sent}),
            {uint32(256, 7), int32(258, -5), int32(259, 2), raw(262, counting(answered))},
            joined({packed(0u, 7u, -5, 2, kept), counting(kept)}), RadioImsRtpRedunKeyInfoType{-5, keyType});
    };
    const auto remoteKey = [](const Texts& log, uint16_t length, uint16_t sent) {
        RadioImsRtpRedunPublicKeyInfoType info{-5, length, {}};
        std::ranges::copy(counting(130), info.key);
        Bytes block = joined({packed(sent), counting(sent)});
        block.resize(132);
        return query(Code, log, radioSetImsRtpRedunRemotePublicKey, 2431,
                     {uint8(256, 0), int32(257, -5), uint8(259, 2), raw(260, block)},
                     {uint32(256, 7), int32(257, -5), uint8(258, 2)}, packed(0u, 7u, -5, 2u), info);
    };
    const auto control = [](const Texts& log, int action, const Fields& sent) {
        return query(Code, log, radioSetImsRtpRedunControlInfo, 2431, joined({{int32(257, 6)}, sent}),
                     {uint32(256, 1), int32(257, 6)}, packed(0u, 1u, 6),
                     RadioImsRtpRedunControlInfoType{6, action});
    };
    checkStandardRows({
        query(Flag, {"getImsRtpRedunCapability - enter", "operator() - cb enter"},
              radioGetImsRtpRedunCapability, 2429, {uint8(256, 0), uint8(258, 2)}, {uint8(257, 3)},
              packed(0u, 3u)),
        publicKey("getImsRtpRedunPublicKey - enter", 2, {uint8(258, 2)}, 65, 65),
        publicKey({}, 1, {}, 257, 256),
        remoteKey("setImsRtpRedunRemotePublicKey - enter", 3, 3),
        remoteKey({}, 129, 129),
        remoteKey({}, 130, 129),
        remoteKey({}, 65535, 129),
        control("setImsRtpRedunControlInfo - enter id:6, action:1", 1, {uint8(256, 1)}),
        control({}, 0x302, {uint8(256, 2)}),
        control({}, 3, {}),
        query(Code, "syncImsRtpRedunDataPathConfig - enter, type:4660", radioSyncImsRtpRedunDataPathConfig,
              621, {uint8(256, 0x34)},
              {uint8(256, 3), raw(257, {192, 0, 2, 1}), uint16(258, 65535), raw(259, counting(80)),
               uint16(260, 2), uint8(261, 4), uint8(262, 5)},
              joined({packed(0u, 3u, 65535u, 4u), packed(0x010200C0u), Bytes(60), packed(2u, 64u),
                      counting(64), packed(4u, 5u)}),
              RadioImsRtpRedunDataPathConfigType{0x1234}),
    });
}
