/// radioctl as its users run it.
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <sys/wait.h>

using nlohmann::json;
using testing::HasSubstr;

namespace {

struct Ran {
    int status;
    std::string output;
};

/// Runs radioctl in a shell, with standard error in front of what is looked at.
Ran radioctl(const std::string& arguments, const std::string& input = "")
{
    const std::string command = "printf '%b' '" + input +
                                "' | RADIO_LOG=off RADIO_DEVICE_ROOT='" DEVICE_ROOT "' '" RADIOCTL "' " +
                                arguments + " 2>&1";
    std::FILE* pipe = popen(command.c_str(), "r");
    Ran run;
    char buffer[4096];
    for (size_t n = 0; (n = fread(buffer, 1, sizeof buffer, pipe)) != 0;) {
        run.output.append(buffer, n);
    }
    run.status = WEXITSTATUS(pclose(pipe));
    return run;
}

} // namespace

TEST(Radioctl, TellsWhatItCan)
{
    EXPECT_THAT(radioctl("--help").output, HasSubstr("Exit status"));
    EXPECT_THAT(radioctl("list").output, HasSubstr("get-rrc-status"));
    EXPECT_THAT(radioctl("write-nv --help").output, HasSubstr("at most 20480 bytes"));
    for (const json& request : json::parse(radioctl("list --json").output)) {
        EXPECT_EQ(radioctl(request.at("name").get<std::string>() + " --help").status, 0) << request;
    }
}

TEST(Radioctl, ShowsCells)
{
    const Ran table = radioctl("get-all-cellular-cell-info");
    EXPECT_EQ(table.status, 0);
    EXPECT_THAT(table.output, HasSubstr("neighbours ("));
    const Ran run = radioctl("get-all-cellular-cell-info --json");
    EXPECT_EQ(run.status, 0);
    const json record = json::parse(run.output).at("record");
    EXPECT_GE(record.at("neighbours").size(), 4u);
    EXPECT_LT(record.at("rsrp").get<int>(), -40);
    EXPECT_THAT(table.output,
                HasSubstr("neighbours (" + std::to_string(record.at("neighbours").size()) + ")"));
    EXPECT_EQ(json::parse(radioctl("get-serving-cellular-cell-info --json").output).at("record").at("pci"),
              record.at("pci"));
}

TEST(Radioctl, KeepsStateInABatch)
{
    const Ran run =
        radioctl("--json batch -", "# an item, twice\\nwrite-nv 100 0 \"0102ab\"\\n\\nread-nv 0x64 0\\n"
                                   "get-service-mode\\nset-sar-state -1 2\\n");
    EXPECT_EQ(run.status, 0) << run.output;
    std::istringstream lines(run.output);
    std::vector<json> answers;
    for (std::string line; std::getline(lines, line);) {
        answers.push_back(json::parse(line));
    }
    ASSERT_EQ(answers.size(), 4u);
    EXPECT_EQ(answers[1].at("record").at("data"), "0102ab");
    EXPECT_TRUE(answers[2].at("record").at("serviceMode").is_number());
}

TEST(Radioctl, TellsWhatWentWrong)
{
    const struct {
        std::string arguments;
        std::string input;
        int status;
        std::string text;
    } cases[] = {
        {"", "", 2, "no command"},
        {"no-such-request", "", 2, "no request is called 'no-such-request'"},
        {"--instance 3 list", "", 2, "3"},
        {"set-sar-state 1", "", 2, "state is missing (-2147483648 to 2147483647)"},
        {"set-sar-state 1 2 3", "", 2, "'3' is one argument too many"},
        {"set-sar-state 1 x", "", 2, "state: 'x' is not a number"},
        {"set-sar-state 1 2147483648", "", 2, "is not a number from -2147483648"},
        {"read-nv 1 128", "", 2, "index: '128' is not a number from -128 to 127"},
        {"write-nv 1 0 abc", "", 2, "is not pairs of hexadecimal digits"},
        {"write-nv 1 0 @/no/such/file", "", 2, "can't read /no/such/file"},
        {"write-nv 1 0 @" RADIOCTL, "", 2, "at most 20480 are allowed"},
        {"read-nv 424242 0", "", 1, "the modem reported a failure"},
        {"--device embedded:/no/such.json get-lte-cell-info", "", 1, "the modem can't be reached"},
        {"--device /dev/null get-lte-cell-info", "", 1, "the modem can't be reached"},
        {"batch -", "get-rrc-status\\nread-nv 1\\n", 2, "stopped at -:2"},
        {"batch -", "read-nv 424242 0\\nget-rrc-status\\n", 1, "stopped at -:1"},
        {"batch -", "read-nv \"1\\n", 2, "\" is not closed"},
        {"batch /no/such/file", "", 2, "can't read /no/such/file"},
    };
    for (const auto& row : cases) {
        const Ran run = radioctl(row.arguments, row.input);
        EXPECT_EQ(run.status, row.status) << row.arguments << "\n" << run.output;
        EXPECT_THAT(run.output, HasSubstr(row.text)) << row.arguments;
    }
}
