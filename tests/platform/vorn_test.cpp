// The message library as its callers see it, with the simulated modem inside.
#include "host/log_sink.h"
#include "vorn/vorn_msg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using testing::HasSubstr;

TEST(Vorn, opensWhatTheDeviceNameStandsFor)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        // name, environment, what the error names
        {"embedded", "", ""},
        {"embedded:/no/such/file.json", "", "/no/such/file.json"},
        {"/dev/ttyS0", "embedded", ""},
        {"embedded", "/dev/ttyS0", "/dev/ttyS0"},
        {"unix:/tmp/modem", "", "unix:/tmp/modem"},
        {"embeddedness", "", "embeddedness"},
        {nullptr, "", "\"\""},
    };
    std::string log;
    host::setLogSink([&](const host::LogLine& line) { log += line.priority >= 6 ? line.text : ""; });
    for (const auto& [device, environment, error] : rows) {
        log.clear();
        SETCOM(device);
        setenv("RADIO_VORN_DEVICE", environment, 1);
        EXPECT_EQ(vorn_init_debug("test") < 0, *error != '\0') << error;
        EXPECT_THAT(log, HasSubstr(error));
        EXPECT_EQ(log.empty(), *error == '\0') << log;
        vorn_deinit();
    }
    host::setLogSink(nullptr);
}

} // namespace
