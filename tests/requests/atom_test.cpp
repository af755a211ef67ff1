#include "support/request_rows.h"

using namespace test;

TEST(Atom, Requests)
{
    // It claims one entry more in each of its lists than they hold.
    RadioLoadAtomApplicationType application{.id = 5, .version = 6, .stringCount = 17, .valueCount = 33};
    std::memcpy(application.strings[0], "one", 3);
    std::memset(application.strings[15], 'x', 64);
    application.values[31] = -7;
    std::ranges::copy(counting(284), application.block);
    std::vector<Bytes> strings(16);
    strings[0] = {'o', 'n', 'e'};
    strings[15] = Bytes(64, 'x');
    std::vector<int32_t> values(32);
    values[31] = -7;

    const auto status = [](const Texts& log, const RadioAtomInfoType& info) {
        const Bytes bytes = packed(info);
        return setter(log, radioSetAtomStatus, 0x3859,
                      {int32(256, 1), int32(257, 2), int32(258, 3), raw(259, {&bytes[0], &bytes[324]}),
                       raw(260, {bytes.begin() + 324, bytes.end()})},
                      1, 2, 3, info);
    };
    int ids[] = {1, 2};
    const auto data = [&](const Texts& log, size_t sent, uint32_t kept) {
        return query(Untold, log, radioGetAtomData, 0x3819,
                     {int32(256, 5), int32(257, 6), numbers<int32_t>(258, {1, 2})},
                     {raw(256, counting(sent))}, blob(kept), 5, 6, ids, 2u);
    };
    checkVendorRows({
        setter("loadAtomApplication - enter", radioLoadAtomApplication, 0x3815,
               {int32(256, 5), int32(258, 6), array(257, strings), numbers(259, values),
                raw(260, counting(284))},
               application),
        setter("unloadAtomApplication - enter", radioUnloadAtomApplication, 0x3817),
        status({"setAtomStatus - enter", "id:1, status:2, subPolicy:3",
                "atom_mask_config i:0, id:11, mask:12", "atom_mask_config i:1, id:13, mask:14",
                "atom_param_config i:0, id:17, mask:18"},
               {2, {{11, 12}, {13, 14}, {15, 16}}, 1, {{17, 18}, {19, 20}}}),
        status({}, {.maskCount = 0xFFFFFFFF, .parameterCount = 5}),
        data("getAtomData - enter", 5000, 4096),
        data({}, 0, 0),
        data({}, 4096, 4096),
    });
    checkListLimits<int>(radioGetAtomData, 1, 2);
}
