/// Arguments that are refused, and those that are just not.
#include "support/request_rows.h"
#include "vs/vorn_vs_client.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

struct VsRefusals : testing::Test {
    Instance instance{0};
    std::vector<int> values = std::vector<int>(65546);
    Bytes bytes = Bytes(65546);

    static void check(int code, const Call& request)
    {
        if (code != 0) {
            checkRefusal(request, code, "E VornVsClient: invalid paramter found");
            return;
        }
        const auto caller = std::make_unique<Caller>();
        ASSERT_EQ(request(caller.get(), Caller::onResult), 0);
        FakeModem::instance().answer({result(0)});
        EXPECT_EQ(caller->calls, 1);
    }
};

} // namespace

TEST_F(VsRefusals, LeaveLocksThatDoNotFit)
{
    const std::pair<decltype(&radioSetCarrierLockBlob), unsigned> locks[] = {
        {radioSetCarrierLockBlob, 2048}, {radioSetCarrierLockStatus, 512}, {radioGetCarrierLockStatus, 512},
        {radioSetRegionLockBlob, 1024},  {radioSetRegionLockStatus, 512},  {radioGetRegionLockStatus, 512},
    };
    for (const auto& [function, limit] : locks) {
        SCOPED_TRACE(&function - &locks[0].first);
        check(11, call(function, nullptr, 1u));
        for (const unsigned length : {1u, limit, 0u, limit + 1, 65546u}) { // the last one is 10 in 16 bits
            check(length == 0 || length > limit ? 11 : 0, call(function, bytes.data(), length));
        }
    }
}

TEST_F(VsRefusals, LeaveListsThatDoNotFit)
{
    const std::tuple<bool, unsigned, int> lists[] = {
        {true, 0, 0}, {true, 1, 11}, {false, 65535, 0}, {false, 65536, 11}, {false, 65546, 11}};
    for (const auto& [missing, count, code] : lists) {
        int* numbers = missing ? nullptr : values.data();
        uint8_t* data = missing ? nullptr : bytes.data();
        check(code, call(radioSetDiagnoseConfig, 1u, numbers, count));
        check(code, call(radioStartMetricsCollect, 1, numbers, count));
        check(code, call(radioGetMetricsData, 1, 2, 3, numbers, count));
        check(code, call(radioGetAtomData, 1, 2, numbers, count));
        check(code, call(radioGetNecData, 1, data, count));
        check(code, call(radioSetQosConfig, int8_t{1}, data, count));
        check(missing ? code : 0, call(radioGetSceneMode, numbers, count)); // 64 are sent
        check(missing || count > 20 ? 11 : 0, call(radioSetSidoIssueConfig, numbers, count));
    }
    check(0, call(radioSetSidoIssueConfig, values.data(), 20u));
    check(11, call(radioSetSidoIssueConfig, values.data(), 21u));
}

TEST_F(VsRefusals, LeaveOtherSwitches)
{
    for (const auto& [a1, a2] : {std::pair(4, 6), std::pair(5, 7)}) {
        checkRefusal(call(&VornVsClient::setRedirectOptSetting, a1, a2, 1, 0, 0, 0), 2,
                     "D VornVsClient: setRedirectOptSetting - enter");
    }
    for (const auto& [a1, a2, a4] : {std::tuple(1, 2, 0), std::tuple(0, 1, 0), std::tuple(0, 2, 1)}) {
        checkRefusal(call(&VornVsClient::setAttachPriority, a1, a2, 1, a4, 0), 2,
                     "D VornVsClient: setAttachPriority - enter");
    }
}
