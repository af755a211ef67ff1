// Non-volatile items that outlive the modem's process.
#include "modem_fixture.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace sim::test {
namespace {

using testing::HasSubstr;

class Nv : public ModemTest {
protected:
    Nv() { std::filesystem::create_directory(mFolder); }
    ~Nv() override { std::filesystem::remove_all(mFolder); }

    void startWithFile()
    {
        std::ofstream(mFolder / "scenario.json") << R"({"nvFile": "nv.json"})";
        mModem = std::make_unique<Modem>(Scenario::fromFile(mFolder / "scenario.json"), *this);
    }

    Value write(int32_t id, const Bytes& data, uint8_t slotBit = 1)
    {
        return ask(51, {{256, i32(id)}, {257, i32(-1)}, {0x8102, data}}, slotBit)[0];
    }

    Value read(int32_t id, uint8_t slotBit = 1, int32_t index = -1)
    {
        return ask(53, {{256, i32(id)}, {257, i32(index)}}, slotBit)[0x8100];
    }

    const std::filesystem::path mFolder = testing::TempDir() + "nv-test-" + std::to_string(getpid());
};

TEST_F(Nv, IsKeptInItsFile)
{
    startWithFile();
    EXPECT_EQ(read(1, 1, 0), Value(Bytes{1, 2, 3, 4})) << "of the scenario";
    EXPECT_EQ(write(7, Bytes(20480, 0xA5)), i32(0));
    EXPECT_EQ(write(-8, {}, 4), i32(0));
    startWithFile();
    EXPECT_EQ(read(7), Value(Bytes(20480, 0xA5)));
    EXPECT_EQ(read(-8, 4), Value(Bytes()));
    const std::filesystem::directory_iterator files(mFolder);
    EXPECT_EQ(std::distance(begin(files), end(files)), 2) << "nothing else is left";
}

TEST_F(Nv, FileIsChecked)
{
    const std::pair<std::string, std::string> rows[] = {
        {"", "parse error"},
        {R"({"slots": [[]]})", "nv.json: /slots: must have 3 entries"},
        {R"({"slots": [[], [], []], "more": 1})", "nv.json: /more: unknown name"},
        {R"({"slots": [[], [{"id": 1, "index": 0, "data": "0"}], []]})",
         "nv.json: /slots/1/0/data: has an odd"},
        {R"({"slots": [[{"id": 1, "index": 0, "data": ")" + std::string(2 * 20481, '0') + R"("}], [], []]})",
         "nv.json: /slots/0/0/data: "},
    };
    for (const auto& [contents, error] : rows) {
        std::ofstream(mFolder / "nv.json") << contents;
        EXPECT_THAT([&] { startWithFile(); }, testing::ThrowsMessage<ScenarioError>(HasSubstr(error)));
    }
}

TEST_F(Nv, WriteFailsWhenTheFileCanNotBeReplaced)
{
    start(R"({"nvFile": "/no/such/folder/nv.json"})");
    EXPECT_EQ(write(7, {1}), i32(1));
    EXPECT_THAT(mLog, HasSubstr("/no/such/folder/nv.json: can't be written"));
}

} // namespace
} // namespace sim::test
