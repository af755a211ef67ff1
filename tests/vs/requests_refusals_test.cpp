/// Arguments that are refused, and those that are just not.
#include "support/request_rows.h"
#include "vs/vorn_vs_client.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Vs = VornVsClient;

/// A refused request sends and calls nothing; bad lists are logged, other switches are not.
template <typename... Parameters, typename... Arguments>
void check(int code, const std::string& name, int (Vs::*method)(Parameters...), Arguments... arguments)
{
    SCOPED_TRACE(name);
    auto& modem = FakeModem::instance();
    Vs client(false, 0);
    const auto caller = std::make_unique<Caller>();
    const LogCapture log;
    EXPECT_EQ(call(method, arguments...)(client, caller.get(), Caller::onResult), code);
    EXPECT_EQ(modem.sent.size(), code == 0 ? 1u : 0u);
    EXPECT_EQ(caller->calls, 0);
    std::vector<std::string> lines = {"D VornVsClient: " + name + " - enter"};
    if (code == 11) {
        lines.emplace_back("E VornVsClient: invalid paramter found");
    }
    EXPECT_EQ(log.lines(), lines);
    if (!modem.sent.empty()) {
        modem.answer({result(0)});
    }
}

std::vector<int> gValues(65536);
Bytes gBytes(65546);

} // namespace

TEST(VsRefusals, LeaveLocksThatDoNotFit)
{
    using Method = int (Vs::*)(const unsigned char*, unsigned int, void*, RadioRequestCallback);
    const std::tuple<const char*, Method, unsigned> locks[] = {
        {"setSmlBlob", &Vs::setSmlBlob, 2048},    {"setSmlStatus", &Vs::setSmlStatus, 512},
        {"getSmlStatus", &Vs::getSmlStatus, 512}, {"setRlkBlob", &Vs::setRlkBlob, 1024},
        {"setRlkStatus", &Vs::setRlkStatus, 512}, {"getRlkStatus", &Vs::getRlkStatus, 512},
    };
    const unsigned char* data = gBytes.data();
    for (const auto& [name, method, limit] : locks) {
        check(11, name, method, nullptr, 1u);
        check(11, name, method, data, 0u);
        check(0, name, method, data, 1u);
        check(0, name, method, data, limit);
        check(11, name, method, data, limit + 1);
        check(11, name, method, data, 65546u); // 10 in 16 bits
    }
}

TEST(VsRefusals, LeaveListsThatDoNotFit)
{
    const std::tuple<bool, unsigned, int> lists[] = {
        {true, 0, 0}, {true, 1, 11}, {false, 65535, 0}, {false, 65536, 11}, {false, 65546, 11}};
    for (const auto& [missing, count, code] : lists) {
        int* values = missing ? nullptr : gValues.data();
        uint8_t* bytes = missing ? nullptr : gBytes.data();
        check(code, "setDiagnoseConfig", &Vs::setDiagnoseConfig, 1u, values, count);
        check(code, "startMetricsCollect", &Vs::startMetricsCollect, 1, values, count);
        check(code, "getMetricsData", &Vs::getMetricsData, 1, 2, 3, values, count);
        check(code, "getAtomData", &Vs::getAtomData, 1, 2, values, count);
        check(code, "getNecData", &Vs::getNecData, 1, bytes, count);
        check(code, "setQosConfig", &Vs::setQosConfig, int8_t{1}, bytes, count);
        check(missing ? code : 0, "getSceneMode", &Vs::getSceneMode, values, count); // 64 are sent
    }
    check(11, "setSidoIssueConfig", &Vs::setSidoIssueConfig, nullptr, 0u);
    check(0, "setSidoIssueConfig", &Vs::setSidoIssueConfig, gValues.data(), 20u);
    check(11, "setSidoIssueConfig", &Vs::setSidoIssueConfig, gValues.data(), 21u);
    check(11, "setSidoIssueConfig", &Vs::setSidoIssueConfig, gValues.data(), 65536u);
}

TEST(VsRefusals, LeaveOtherSwitches)
{
    check(2, "setRedirectOptSetting", &Vs::setRedirectOptSetting, 4, 6, 1, 0, 0, 0);
    check(2, "setRedirectOptSetting", &Vs::setRedirectOptSetting, 5, 7, 1, 0, 0, 0);
    check(2, "setAttachPriority", &Vs::setAttachPriority, 1, 2, 1, 0, 0);
    check(2, "setAttachPriority", &Vs::setAttachPriority, 0, 1, 1, 0, 0);
    check(2, "setAttachPriority", &Vs::setAttachPriority, 0, 2, 1, 1, 0);
}
