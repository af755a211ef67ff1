/// radioctl as its users run it.
#include "support/public_requests.h"
#include "system/examples.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

using nlohmann::json;
using testing::HasSubstr;

namespace {

struct Ran {
    int status;
    std::string output;
};

Ran shell(const std::string& command)
{
    std::FILE* pipe = popen(command.c_str(), "r");
    Ran run;
    char buffer[4096];
    for (size_t n = 0; (n = fread(buffer, 1, sizeof buffer, pipe)) != 0;) {
        run.output.append(buffer, n);
    }
    run.status = WEXITSTATUS(pclose(pipe));
    return run;
}

/// Runs radioctl in a shell; what it prints to standard error comes along, unless a redirection says otherwise.
Ran radioctl(const std::string& arguments, const std::string& input = "", const std::string& errors = "2>&1")
{
    const std::string inputFile = testing::TempDir() + "radioctl-input-" + std::to_string(getpid());
    std::ofstream(inputFile) << input;
    const std::string command =
        "RADIO_DEVICE_ROOT='" DEVICE_ROOT "' '" RADIOCTL "' " + arguments + " <'" + inputFile + "' " + errors;
    Ran run = shell(command);
    std::remove(inputFile.c_str());
    return run;
}

/// What --json prints, which is one object whatever happens.
json answerOf(const std::string& arguments, const std::string& input = "")
{
    return json::parse(radioctl("--json " + arguments, input, "2>/dev/null").output);
}

json requestList()
{
    return json::parse(radioctl("list --json").output);
}

/// Command lines, what they print among other things, and their exit status.
struct Row {
    std::string arguments;
    std::string input;
    int status;
    std::string text;
};

void check(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        const Ran run = radioctl(row.arguments, row.input);
        EXPECT_EQ(run.status, row.status) << row.arguments << "\n" << row.input << "\n" << run.output;
        EXPECT_THAT(run.output, HasSubstr(row.text)) << row.arguments << "\n" << row.input;
    }
}

std::string contentsOf(const std::string& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(Radioctl, TellsWhatItCan)
{
    check({
        {"--help", "", 0, "Exit status"},
        {"help", "", 0, "batch FILE"},
        {"--version", "", 0, "radioctl 0."},
        {"list", "", 0, "get-rrc-status"},
        {"sim", "", 0, "sim indicate NAME"},
        {"watch --help", "", 0, "--log"},
        {"help get-rrc-status", "", 0, "Function: radioGetRRCStatus (radio_apis/cell_info.h)"},
        {"get-serving-cellular-cell-info --help", "", 0, "radio access technology (4 LTE, 5 NR)"},
        {"set-ca-status --help", "", 0, "Example:  radioctl set-ca-status lte on"},
        {"write-nv --help", "", 0, "(at most 20480"},
        {"set-carrier-lock-blob --help", "", 0, "1 to 2048 bytes"},
        {"set-sido-issue-config --help", "", 0, "(at most 20\n"},
        {"set-atom-status --help", "", 0, "set-atom-status id status subPolicy [MEMBER=VALUE...]\n"},
        {"set-band-prefer --help", "", 0, "set-band-prefer RAT --bands LIST | RAT HEX\n"},
        {"set-modem-indication-policy --help", "", 0, "(0 to 4294967295 ms)"},
        {"load-atom-application --help", "", 0, "list of at most 16, each: text of at most 63 characters"},
    });
    for (const json& request : requestList()) {
        EXPECT_EQ(radioctl(request.at("name").get<std::string>() + " --help").status, 0) << request;
    }
}

TEST(Radioctl, HasACommandForEveryPublicRequest)
{
    std::set<std::string> listed;
    for (const json& request : requestList()) {
        listed.insert(request.at("entryPoint"));
    }
    EXPECT_EQ(listed, test::publicRequests(DEVICE_ROOT "/../../include/radio_apis"));
}

TEST(Radioctl, ExplainsAnswers)
{
    check({
        {"get-serving-cellular-cell-info", "", 0, "rat            NR (5)\nPLMN           001/01\n"},
        {"get-serving-cellular-cell-info", "", 0, "rsrp           -85 dBm\n"},
        {"get-serving-cellular-cell-info --raw", "", 0, "\nrsrp           -85\n"},
        {"get-all-cellular-cell-info", "", 0, "\nneighbours (6)\n"},
        {"get-rrc-status --json --explain", "", 0,
         R"("record":{"status":2},"explained":{"status":{"name":"connected"}}})"},
        {"batch -", "set-qrxlvmin-cfg option=lte-levels q1=-120\nget-qrxlvmin-cfg lte\n", 0,
         "rat     LTE (13)\n"},
        {"get-sim-tray-status --trace --log-level debug", "", 0, "VornVsClient"},
    });
    const json cells = answerOf("get-all-cellular-cell-info").at("record");
    EXPECT_LT(cells.at("serving").at("rsrp").get<int>(), -40);
    EXPECT_EQ(answerOf("get-serving-cellular-cell-info").at("record"), cells.at("serving"));
}

/// Programs read one object in every case.
TEST(Radioctl, AnswersJsonWhateverHappens)
{
    const struct {
        const char* arguments;
        const char* error;
        const char* reason;
    } rows[] = {
        {"get-rrc-status --what", "usage", "there is no option '--what'"},
        {"get-rrc-stats", "usage", "did you mean 'get-rrc-status'?"},
        {"--instance 3 list", "usage", "3"},
        {"set-centric-mode 2", "failed", "failed: reason unknown (1); the modem said: +CME ERROR: 50"},
        {"set-dsda-prefer-cust-thresh 5 1 2", "refused", "refused by the library: not supported (2)"},
        {"read-nv 424242 0", "failed", "the modem reported a failure; the modem said: result "},
        {"--device unix:/no/such get-rrc-status", "unreachable", "/no/such"},
        {"--device embedded:/no/such.json get-rrc-status", "unreachable", "/no/such.json"},
        {"sim indicate tset --value 7", "failed", "did you mean 'test'?"},
        {"--timeout 50 batch -", "timeout", "no answer within 50 ms"},
    };
    for (const auto& row : rows) {
        const std::string fault =
            "sim fault-add match='{\"message\":\"GetRRCStatus\"}' action=drop\nget-rrc-status\n";
        const Ran run = radioctl(std::string("--json ") + row.arguments, fault, "2>/dev/null");
        const std::string line = run.output.substr(run.output.rfind('\n', run.output.size() - 2) + 1);
        const json answer = json::parse(line, nullptr, false);
        ASSERT_TRUE(answer.is_object()) << row.arguments << "\n" << run.output;
        EXPECT_EQ(answer.value("error", ""), row.error) << row.arguments;
        EXPECT_THAT(answer.value("reason", ""), HasSubstr(row.reason)) << row.arguments;
    }
}

TEST(Radioctl, PutsEarlierAnswersIntoLaterLines)
{
    const Ran run = radioctl("--json batch -",
                             "cell = get-all-cellular-cell-info\n"
                             "write-nv 7 0 ${cell.neighbours[0].pci}$cell.serving.rat'55' # six digits\n"
                             "nv = read-nv 7 0\n"
                             "load-atom-application strings='[\"$nv\",'$cell.neighbours[6].rat']'\n");
    EXPECT_EQ(run.status, 2); // the last line's list holds a number
    EXPECT_THAT(run.output, HasSubstr(R"("data":"102555")"));
    EXPECT_THAT(run.output, HasSubstr("there is no element 6 in"));
}

TEST(Radioctl, RunsBatchesThatTest)
{
    const std::string report = testing::TempDir() + "radioctl-junit-" + std::to_string(getpid());
    const std::string cell = "get-serving-cellular-cell-info\n";
    check({
        {"batch -", cell + "expect rat = 5\nexpect rat = nr\nexpect rsrp > -100\nexpect result = 0\n", 0,
         "PLMN"},
        {"batch -", cell + "expect rsrp < -100\n", 1,
         "expected rsrp < -100, but it is -85\nradioctl: stopped at -:2"},
        {"batch -", cell + "expect rsrp ? 1\n", 2, "expect: '?' is none of = != < <= > >= ~"},
        {"batch -", cell + "expect rspr > 1\n", 2, "did you mean 'rsrp'?"},
        {"batch -", "expect rsrp > 1\n", 2, "no request was sent before"},
        {"batch -", "! read-nv 9 9\nexpect reason ~ modem\n", 0, "the modem reported a failure"},
        {"batch -", "! get-rrc-status\n", 1, "it succeeded, which it should not"},
        {"batch -", "repeat 2\n sleep 1\n repeat 2\n  get-rrc-status\n end\nend\n", 0,
         "connected (2)\nstatus  connected (2)\nstatus  connected (2)\nstatus  connected (2)\n"},
        {"batch -", "repeat 2\nget-rrc-status\n", 2, "repeat in line 1 has no end"},
        {"batch -", "get-rrc-status --raw\n--json get-rrc-status\nlist\nsim state\n", 0,
         "status  2\n{\"request\""},
        {"batch -", "get-rrc-status --device embedded\n", 2,
         "--device, --trace and --log-level hold for the whole batch"},
        {"batch -",
         "set-sar-dsi-state 3\n--instance 1 get-sar-dsi-state\nexpect state = 0\n"
         "get-sar-dsi-state\nexpect state = 3\n",
         0, "ok"},
        {"batch -", "watch get-rrc-status --count 2 --every 10\nget-rrc-status\n", 0,
         "status  connected (2)"},
        {"batch -", "events test --count 1 --do 'sim indicate test --value 7'\nget-rrc-status\n", 0,
         "value  7"},
        {"batch -",
         "require-modem-reboot\nwait link\nget-rrc-status\nsim restart\nwait link\nget-rrc-status\n", 0,
         "connected (2)"},
        {"batch --keep-going --junit " + report + " -", "read-nv 9 9\nget-rrc-status\nsleep x\n", 1,
         "failed at -:3"},
        {"batch --junit /no/such/file -", "get-rrc-status\n", 1, "can't write /no/such/file"},
    });
    const std::string xml = contentsOf(report);
    EXPECT_THAT(xml, HasSubstr(R"(tests="3" failures="2")"));
    EXPECT_THAT(xml, HasSubstr(R"(name="1: read-nv 9 9")"));
    EXPECT_THAT(xml, HasSubstr(R"(<failure message="the modem reported a failure)"));
    std::remove(report.c_str());
}

TEST(Radioctl, WatchesCells)
{
    const std::string log = testing::TempDir() + "radioctl-log-" + std::to_string(getpid());
    const Ran run = radioctl("watch get-all-cellular-cell-info --every 10 --count 2 --log " + log);
    EXPECT_EQ(run.status, 0);
    const std::regex serving(R"(serving +NR +78 +627264 +101 +-85 +-10 +18  ▂▄▆█  (▆)+\n)");
    using Lines = std::sregex_iterator;
    EXPECT_EQ(std::distance(Lines(run.output.begin(), run.output.end(), serving), Lines()), 2);
    const std::string table = contentsOf(log);
    EXPECT_THAT(table, testing::StartsWith("time,part,failure,rat,mcc,"));
    EXPECT_EQ(std::ranges::count(table, '\n'),
              1 + 2 * 8); // two answers: a count, the serving cell and six others
    std::remove(log.c_str());
    EXPECT_TRUE(json::parse(radioctl("watch get-rrc-status --json --count 1").output).contains("time"));
}

TEST(Radioctl, TellsOfTheLinkAmongEvents)
{
    const std::string batch = testing::TempDir() + "radioctl-batch-" + std::to_string(getpid());
    std::ofstream(batch) << "sim restart\nwait link\nsim indicate test --value 7\n";
    const Ran run = radioctl("events test --count 1 --do 'batch " + batch + "'");
    std::remove(batch.c_str());
    for (const char* part : {"listening for test", "link-lost", "link-back", "test\nvalue  7\n"}) {
        EXPECT_THAT(run.output, HasSubstr(part));
    }
}

/// The modem's block is what the event holds, its counts included.
TEST(Radioctl, ShowsNoMoreCellsThanTheEventHolds)
{
    const std::string block(2 * 4280, 'f');
    const Ran run = radioctl(
        "--json events all-cell-info --count 1 --do 'sim indicate all-cell-info cells=" + block + "'");
    const std::string event = run.output.substr(run.output.find("{\"time"));
    const json cells = json::parse(event.substr(0, event.find('\n'))).at("record").at("subscriptions");
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[1].at("neighbours").size(), 64U);
}

TEST(Radioctl, CompletesAndDescribesItself)
{
    const std::string script = "bash -c '. <(\"" RADIOCTL "\" completion bash); COMP_CWORD=$(($# - 1)); "
                               "COMP_WORDS=(\"$@\"); _radioctl; echo ${COMPREPLY[@]}' - radioctl ";
    const std::pair<const char*, const char*> rows[] = {
        {"--device x set-ca-st", "set-ca-status\n"},
        {"--json set-ca-status lte ''", "on off\n"},
        {"events te", "test\n"},
        {"--device e", "embedded embedded:\n"},
        {"watch --ev", "--every\n"},
        {"sim fault-c", "fault-clear\n"},
        {"watch get-lte-c", "get-lte-cell-info\n"},
        {"--js", "--json\n"},
    };
    for (const auto& [words, completed] : rows) {
        EXPECT_EQ(shell(script + words).output, completed) << words;
    }
    const std::string page = radioctl("man").output;
    for (const json& request : json::parse(radioctl("list --json").output)) {
        std::string name = request.at("name");
        name = std::regex_replace(name, std::regex("-"), "\\-");
        EXPECT_THAT(page, HasSubstr("\n.B " + name));
    }
    const std::regex strayMacro(R"(\n[.'](?!(TH|SH|SS|TP|B|BR|RS|RE|nf|fi)\b))");
    EXPECT_FALSE(std::regex_search(page, strayMacro));
}

/// The examples hold what their answers are to hold; what help shows of any request can be typed.
TEST(Radioctl, SendsEveryRequest)
{
    std::string batch;
    for (const Example& example : kExamples) {
        batch += example.line + "\n";
    }
    const Ran run = radioctl("--json batch -", batch);
    EXPECT_EQ(run.status, 0) << run.output;
    std::istringstream lines(run.output);
    for (const Example& example : kExamples) {
        std::string line;
        std::getline(lines, line);
        const json answer = json::parse(line, nullptr, false);
        ASSERT_TRUE(answer.is_object()) << example.line << "\n" << line;
        EXPECT_EQ(answer.at("request"), example.line.substr(0, example.line.find(' ')));
        const json wanted = example.record.empty() ? json::object() : json::parse(example.record);
        for (const auto& [name, value] : wanted.items()) {
            EXPECT_EQ(answer.at("record").value(name, json()), value) << example.line << "\n" << line;
        }
    }
    batch.clear();
    for (const json& request : requestList()) {
        batch += request.at("example").get<std::string>() + "\n";
    }
    const Ran examples = radioctl("--json batch --keep-going -", batch, "2>/dev/null");
    EXPECT_THAT(examples.output, testing::Not(HasSubstr("\"usage\"")));
    EXPECT_EQ(std::ranges::count(examples.output, '\n'), std::ranges::count(batch, '\n'));
}

TEST(Radioctl, TellsWhatWentWrong)
{
    check({
        {"", "", 2, "no command"},
        {"no-such-request", "", 2, "no request is called 'no-such-request'; 'radioctl list'"},
        {"--instance 3 list", "", 2, "3"},
        {"set-sar-state 1", "", 2, "state is missing (-2147483648 to 2147483647)"},
        {"set-sar-state 1 2 3", "", 2, "'3' is one argument too many"},
        {"set-sar-state 1 x", "", 2, "state: 'x' is not a number"},
        {"set-sar-state 1 2147483648", "", 2, "is not a number from -2147483648"},
        {"read-nv 1 128", "", 2, "index: '128' is not a number from -128 to 127"},
        {"write-nv 1 0 abc", "", 2, "is not pairs of hexadecimal digits"},
        {"write-nv 1 0 @/no/such/file", "", 2, "can't read /no/such/file"},
        {"write-nv 1 0 @" RADIOCTL, "", 2, "at most 20480 are allowed"},
        {"write-nv 1 0 0g", "", 2, "is not pairs of hexadecimal digits"},
        {"set-carrier-lock-blob ''", "", 2, "data: 0 bytes, 1 to 2048 are allowed"},
        {"set-sido-issue-config 1,,2", "", 2, "values: '' is not a number"},
        {"set-sido-issue-config 1,2,3,4,5,6,7,8,9,10,1,2,3,4,5,6,7,8,9,20,21", "", 2,
         "at most 20 are allowed"},
        {"send-rf-icc-mode-state 1 2 3 256", "", 2, "mode4: '256' is not a number from 0 to 255"},
        {"set-ant-force-state-by-rat 5 1", "", 2, "rat: '5' is none of nr (4) or a number from 0 to 4"},
        {"set-band-prefer 5g --bands 1", "", 2, "rat: '5g' is none of gsm, umts"},
        {"get-band-prefer lte --current extra", "", 2, "'extra' is one argument too many"},
        {"write-nv 1 0 @/tmp", "", 2, "data: /tmp is a directory, not a file"},
        {"write-nv 1 0 00 --jsn", "", 2, "there is no option '--jsn' - did you mean '--json'?"},
        {"events tset", "", 2, "did you mean 'test'?"},
        {"sim stat", "", 2, "did you mean 'state'?"},
        {"batch --keep-gong -", "", 2, "did you mean '--keep-going'?"},
        {"set-band-prefer lte 1,3", "", 2, "is not pairs of hexadecimal digits"},
        {"set-band-prefer lte --bands 0", "", 2, "--bands: '0' is not a number from 1"},
        {"set-band-prefer gsm --bands 1", "", 2, "'1' is none of 850, 900, 1800 and 1900"},
        {"set-band-prefer lte " + std::string(136, '0'), "", 2, "68 bytes, 4 to 64 are allowed"},
        {"set-band-prefer nr-second " + std::string(224, '0'), "", 2, "112 bytes, 4 to 108 are allowed"},
        {"set-band-prefer lte --bands 6", "", 1, "failed: reason unknown (1)"},
        {"get-band-prefer nr --now", "", 2, "rat: '--now' is not --current"},
        {"set-asdiv-fix-position 1 9", "", 1, "refused by the library: reason unknown (1)"},
        {"set-ims-rtp-info id", "", 2, "info: 'id' is not MEMBER=VALUE"},
        {"set-ims-rtp-info id=1 id=2", "", 2, "info.id is given twice"},
        {"set-ims-rtp-info ip=1", "", 2, "info has no member 'ip'; it has id, state"},
        {"set-ims-rtp-info id=x", "", 2, "info.id: 'x' is not a number from -2147483648"},
        {"set-ims-rtp-info id=2147483648", "", 2, "info.id: '2147483648' is not a number"},
        {"set-ims-rtp-info id=[1]", "", 2, "info.id: '[1]' is not a number"},
        {"set-ims-rtp-info id=[1", "", 2, "info.id: '[1' is not JSON"},
        {"set-ims-rtp-info '{'", "", 2, "info: '{' is not JSON"},
        {"set-ims-rtp-info '{\"id\": 1.5}'", "", 2, "info.id: '1.5' is not a number"},
        {"set-ims-rtp-info '{\"id\": true}'", "", 2, "info.id: 'true' is not a number"},
        {"set-ims-rtp-info '{}' id=1", "", 2, "info: '{}' is not MEMBER=VALUE"},
        {"set-ims-rtp-threshold values=1", "", 2, "info.values: '1' is not a list like [1,2]"},
        {"set-veyra-config-policy values=[1,2,3,4,5,6,7,8,9]", "", 2, "values: 9 elements, at most 8"},
        {"set-atom-status 1 2 3 masks=[1]", "", 2, "info.masks[0]: '1' is not a record like {\"id\":1}"},
        {"set-atom-status 1 2 3 'masks=[{\"id\":1},{\"msk\":1}]'", "", 2,
         "info.masks[1] has no member 'msk'"},
        {"set-atom-status 1 2 3 'masks=[{\"mask\":-1}]'", "", 2,
         "info.masks[0].mask: '-1' is not a number from 0"},
        {"set-atom-status 1 2 3 maskCount=4294967296", "", 2, "info.maskCount: '4294967296' is not a number"},
        {"load-atom-application strings=[1]", "", 2, "application.strings[0]: 1 is not a text"},
        {"load-atom-application block=xy", "", 2, "application.block: 'xy' is not pairs"},
        {"set-modem-indication-policy 'policies=[{\"text1\":\"1234567890\"}]'", "", 2,
         "policies.policies[0].text1: 10 characters, at most 9 are allowed"},
        {"send-rf-icc-device-err data=" + std::string(66, '0'), "", 2, "error.data: 33 bytes, at most 32"},
        {"clear-forbidden-tai 0 1 1 2 1 1", "", 2, "mncThreeDigits: '2' is none of on, off"},
        {"set-idc-offset 4 0 7", "", 2, "configs: '7' is not"},
        {"set-idc-offset 4 0 '[{\"f4\":1}]'", "", 2, "configs[0] has no member 'f4'; it has f0, f1, f2, f3"},
        {"request-icc-sim-authentication data=" + std::string(514, '0'), "", 2, "257 bytes, at most 256"},
        {"set-dsda-prefer-cust-thresh 5 1 2", "", 1, "refused by the library: not supported (2)"},
        {"set-oos-cfg option=6", "", 1, "refused by the library: reason unknown (1)"},
        {"set-ca-status 6 on", "", 1, "refused by the library: reason unknown (1)"},
        {"set-ca-status lte 2", "", 2, "enable: '2' is none of on, off"},
        {"get-ca-status 5g", "", 2, "rat: '5g' is none of lte (4), nr (5) or a number"},
        {"set-carrier-omacp-fqdn 'a\"b'", "", 1, "refused by the library: reason unknown (1)"},
        {"set-carrier-omacp-fqdn " + std::string(225, 'f'), "", 2, "225 characters, at most 224 are allowed"},
        {"set-black-sanrca-config " + std::string(237, 'n'), "", 2,
         "237 characters, at most 236 are allowed"},
        {"set-ust5g-uc-band-config " + std::string(200, '1') + " " + std::string(37, '1'), "", 2,
         "237 characters, at most 236 are allowed together"},
        {"set-oos-cfg option=1 p7=10000000 p8=-2147483648 p9=-2147483648 p10=1000000000 p11=1000000", "", 2,
         "make 224 characters, at most 223"},
        {"set-centric-mode 2", "", 1, "failed: reason unknown (1)"},
        {"request-icc-sim-authentication data=00", "", 1, "the modem reported a failure"},
        {"get-tx-carkit 1 78 0 0", "", 1, "the modem reported a failure"},
        {"rollback-network-action 77 0", "", 1, "failed: reason unknown (1)"},
        {"read-nv 424242 0", "", 1, "the modem reported a failure"},
        {"--device embedded:/no/such.json get-lte-cell-info", "", 4, "the modem can't be reached"},
        {"--device /dev/null get-lte-cell-info", "", 4, "the modem can't be reached"},
        {"batch -", "get-rrc-status\nread-nv 1\n", 2, "stopped at -:2"},
        {"batch -", "read-nv 424242 0\nget-rrc-status\n", 1, "stopped at -:1"},
        {"batch -", "read-nv \"1\n", 2, "\" is not closed"},
        {"batch /no/such/file", "", 2, "can't read /no/such/file"},
        {"batch -", "\nread-nv $x 0\n", 2, "no earlier line sets '$x'\nradioctl: stopped at -:2"},
        {"batch -", "c = get-rrc-status\nread-nv $c.foo 0\n", 2,
         "there is no member 'foo' in {\"status\":2}"},
        {"batch -", "c = get-rrc-status\nread-nv $c.status[0] 0\n", 2, "there is no element 0 in 2"},
        {"batch -", "c = get-rrc-status\nread-nv ${c.status 0\n", 2, "'${c' is not closed"},
        {"batch -", "7c = get-rrc-status\n", 2, "an assignment is NAME = REQUEST"},
        {"batch -", "c = sim state\n", 2, "no request is called 'sim'"},
        {"watch", "", 2, "watch wants a REQUEST"},
        {"watch get-rrc-status --every 0", "", 2, "--every"},
        {"watch read-nv 424242 0", "", 1, "the modem reported a failure"},
        {"completion fish", "", 2, "bash or zsh"},
    });
}
