#include "at/rf_config_parser.h"
#include "support/at_fixture.h"

#include <cstdlib>

using namespace test;
using testing::ElementsAre;

namespace {

constexpr char kFile[] = "my_product/etc/rf_feature_config.xml";

using RfConfig = AtTest;

} // namespace

TEST_F(RfConfig, KeepsWhatStoodBeforeAFault)
{
    const std::string first = R"(<feature id="7"><atcmd index="1"><cmd>AT+A</cmd>)";
    const struct {
        std::string file;
        size_t commands; ///< of feature 7, index 1
        const char* log;
    } cases[] = {
        {first + "</atcmd></feature>", 1, "old format AT command\n"},
        {first + R"(<cmd command="sar">1,2</cmd></atcmd></feature>)", 2, "construced: AT+ERFIDX=1,2\n"},
        {first + R"(<cmd command="sar"/><cmd command="x">1</cmd></atcmd></feature>)", 1,
         "unknown format AT command\n"},
        {first + R"(<cmd command="x">1</cmd></atcmd></feature>)", 1, "construced: (null)\n"},
        {first + "<cmd/><cmd>AT+B</cmd></atcmd></feature>", 1,
         "invalid cmd tag found with no command and no value!stop!\n"},
        {first + R"(</atcmd><atcmd index="1"><cmd>AT+B</cmd></atcmd></feature>)", 1,
         "repeated index 1 attribute found! stop!\n"},
        {first + "</atcmd><atcmd><cmd>AT+B</cmd></atcmd></feature>", 1,
         "invalid atcmd tag with no index attribute!stop!\n"},
        {first + R"(</atcmd></feature><feature id="7"><atcmd index="2"/></feature>)", 1, "  index[1], addr:"},
        {"<feature><atcmd/></feature>", 0, "invalid feature tag with no id attribute!stop!\n"},
        {R"(<feature id="x"/>)", 0, "invalid feature tag with no id attribute!stop!\n"},
        {"<other/>", 0, "invalid feature tag with no id attribute!stop!\n"},
        {"not XML", 0, "parse load file filed!stop!\n"},
        {std::string(1 << 20, '<'), 0, "parse load file filed!stop!\n"},
        {first + "<cmd>" + std::string(1 << 20, 'A') + "</cmd></atcmd></feature>", 2,
         "FEATURE INDEX:1, CAPACITY: 5, SIZE:2\n"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.file.substr(0, 200));
        instance.root.write(kFile, row.file);
        log.clear();
        const RfConfigParser parser;
        const auto* commands = parser.getAtCmdByFeatureId(7, 1);
        EXPECT_EQ(commands == nullptr ? 0 : commands->size(), row.commands);
        EXPECT_EQ(parser.getAtCmdByFeatureId(7, 2), nullptr);
        EXPECT_EQ(parser.getAtCmdByFeatureId(8, 1), nullptr);
        EXPECT_THAT(log.lines(), testing::Contains(testing::HasSubstr(row.log)));
        EXPECT_TRUE(log.has("D : parse begin: /my_product/etc/rf_feature_config.xml\n"));
        EXPECT_EQ(log.has("D : parse end\n"), std::string(row.log).find("stop!") == std::string::npos);
    }
}

TEST_F(RfConfig, KnowsItsCommandNames)
{
    for (const auto& [name, prefix] : RfConfigParser::AT_COMMAND_COMBO) {
        char* text = RfConfigParser::getAtCmd(name, "1,2");
        EXPECT_EQ(text, std::string(prefix) + "1,2");
        std::free(text);
    }
    EXPECT_EQ(RfConfigParser::getAtCmd("rat", "1"), nullptr);
}
