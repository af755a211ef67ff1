#include "support/request_rows.h"

using namespace test;

TEST(Nv, Requests)
{
    const Bytes largest = counting(20480);
    const auto read = [](const Fields& answer, uint16_t length) {
        return query(
            Flag,
            {"readNv - enter. slotId=2 id=100 index=-2", "nvItemData.dataLen=" + std::to_string(length)},
            radioReadNv, 53, {int32(256, 100), int32(257, -2)}, answer,
            joined({packed(0u, length), counting(length)}), 100, int8_t{-2});
    };
    const auto write = [&](uint16_t length) {
        return query(Flag, "writeNv - enter", radioWriteNv, 51,
                     {uint32(256, 100), uint32(257, 0xFFFFFFFE), raw(0x8102, counting(length))}, {}, {}, 100,
                     int8_t{-2}, largest.data(), unsigned{length});
    };
    checkStandardRows({
        read({raw(0x8100, counting(5))}, 5),
        read({}, 0),
        read({raw(0x8100, counting(60000))}, 20480),
        write(0),
        write(20480),
    });
    const auto refused = [](const uint8_t* data, unsigned length) {
        return call(radioWriteNv, 1, int8_t{0}, data, length);
    };
    checkInvalid("VornRadioClient", {refused(largest.data(), 20481), refused(largest.data(), 65546),
                                     refused(largest.data(), 0xFFFFFFFF), refused(nullptr, 0)});
}
