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

/// Runs radioctl in a shell, with standard error in front of what is looked at.
Ran radioctl(const std::string& arguments, const std::string& input = "")
{
    const std::string inputFile = testing::TempDir() + "radioctl-input-" + std::to_string(getpid());
    std::ofstream(inputFile) << input;
    const std::string command = "RADIO_LOG=off RADIO_DEVICE_ROOT='" DEVICE_ROOT "' '" RADIOCTL "' " +
                                arguments + " <'" + inputFile + "' 2>&1";
    Ran run = shell(command);
    std::remove(inputFile.c_str());
    return run;
}

std::string nameOf(const Example& example)
{
    return example.line.substr(0, example.line.find(' '));
}

} // namespace

TEST(Radioctl, TellsWhatItCan)
{
    EXPECT_THAT(radioctl("--help").output, HasSubstr("Exit status"));
    EXPECT_THAT(radioctl("list").output, HasSubstr("get-rrc-status"));
    const struct {
        std::string request;
        std::string text;
    } helps[] = {
        {"write-nv", "at most 20480 bytes"},
        {"set-carrier-lock-blob", "1 to 2048 bytes"},
        {"set-sido-issue-config", "at most 20 numbers"},
        {"set-atom-status", "set-atom-status id status subPolicy [info...]"},
        {"set-atom-status", "      mask             0 to 4294967295"},
        {"set-atom-status", "    maskCount        0 to 4294967295"},
        {"set-modem-indication-policy", "0 to 4294967295; shortest time between two, ms"},
        {"load-atom-application", "list of at most 16, each: text of at most 63 characters"},
        {"send-network-action", "value9           0 to 18446744073709551615"},
        {"send-rf-icc-device-err", "hexadecimal digits or @FILE, at most 32 bytes"},
    };
    for (const auto& row : helps) {
        EXPECT_THAT(radioctl(row.request + " --help").output, HasSubstr(row.text));
    }
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

TEST(Radioctl, HasACommandForEveryPublicRequest)
{
    std::set<std::string> listed;
    for (const json& request : json::parse(radioctl("list --json").output)) {
        listed.insert(request.at("entryPoint"));
    }
    EXPECT_EQ(listed, test::publicRequests(DEVICE_ROOT "/../../include/radio_apis"));
}

TEST(Radioctl, PutsEarlierAnswersIntoLaterLines)
{
    const Ran run =
        radioctl("--json batch -", "cell = get-all-cellular-cell-info\n"
                                   "write-nv 7 0 ${cell.neighbours[0].pci}$cell.rat'55' # six digits\n"
                                   "nv = read-nv 7 0\n"
                                   "load-atom-application strings='[\"$nv\",'$cell.neighbours[5].rat']'\n");
    EXPECT_EQ(run.status, 2); // the last line's list holds a number
    EXPECT_THAT(run.output, HasSubstr(R"("data":"102555")"));
    EXPECT_THAT(run.output, HasSubstr("strings[1]: 4 is not a text"));
}

TEST(Radioctl, WatchesCells)
{
    const Ran run = radioctl("watch get-all-cellular-cell-info --every 10 --count 2");
    EXPECT_EQ(run.status, 0);
    const std::regex serving(R"(serving +NR +78 +627264 +101 +-85 +-10 +18  ▂▄▆█\n)");
    using Lines = std::sregex_iterator;
    EXPECT_EQ(std::distance(Lines(run.output.begin(), run.output.end(), serving), Lines()), 2);
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
        {"events test ''", "\n"},
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

TEST(Radioctl, TakesAsManyElementsAsARecordHolds)
{
    const struct {
        std::string request; // # stands for the list
        std::string element;
        size_t most;
    } lists[] = {
        {"set-atom-status 1 2 3 masks=#", R"({"id":1,"mask":2})", 40},
        {"set-atom-status 1 2 3 parameters=#", R"({"id":1})", 4},
        {"load-atom-application strings=#", "\"" + std::string(63, 's') + "\"", 16},
        {"load-atom-application values=#", "1", 32},
        {"set-site-cell-info 0 cells=#", R"({"arfcn":1})", 64},
        {"send-score-info scores=#", R"({"values":[1,2,3,4,5,6]})", 16},
        {"set-hyper-uplink-paras values=#", "-1", 16},
        {"set-hyper-uplink-paras list2={\"values\":#}", "-1", 10},
        {"set-modem-indication-policy policies=#", R"({"text1":"123456789","text2":"abc"})", 48},
        {"set-indication-config 1 configs=#", R"({"indication":4294967295})", 64},
        {"send-rf-icc-clat-kpi entries=#", R"({"level":255})", 23},
        {"set-ims-audio-quality-threshold values=#", "1", 22},
        {"set-adaptive-handover-threshold values=#", "1", 6},
        {"set-idc-offset 4 0 #", R"({"f0":255})", 20},
        {"send-network-action parameters=#", R"({"values":[1,2,3,4]})", 8},
        {"send-network-action cellsPresent=1 second={\"present\":1,\"cells\":#}", R"({"h":[1,2,3]})", 64},
        {"send-network-action cellsPresent=1 first={\"present\":1,\"cells\":[{\"c\":#}]}", "7", 16},
        {"send-network-action cellsPresent=1 first={\"present\":1,\"cells\":[{\"iPresent\":1,\"j\":#}]}",
         R"({"value3":9})", 16},
    };
    for (const auto& row : lists) {
        const auto send = [&](size_t count) {
            std::string list = "[" + row.element;
            for (size_t i = 1; i < count; ++i) {
                list += "," + row.element;
            }
            const size_t place = row.request.find('#');
            const size_t word = row.request.rfind(' ', place) + 1;
            std::string line = row.request;
            line.replace(place, 1, list + "]").insert(word, "'");
            return radioctl("batch -", line + "'\n");
        };
        const Ran full = send(row.most);
        EXPECT_EQ(full.status, 0) << row.request << "\n" << full.output;
        const Ran over = send(row.most + 1);
        EXPECT_EQ(over.status, 2) << row.request;
        EXPECT_THAT(over.output, HasSubstr("at most " + std::to_string(row.most) + " are allowed"));
    }
}

TEST(Radioctl, SendsEveryRequest)
{
    std::set<std::string> shown;
    std::string batch = "# examples\n\n";
    for (const Example& example : kExamples) {
        shown.insert(nameOf(example));
        batch += example.line + "\n";
    }
    for (const std::string& line : kRefused) {
        shown.insert(line.substr(0, line.find(' ')));
        const Ran ran = radioctl(line);
        EXPECT_EQ(ran.status, 1) << line;
        EXPECT_THAT(ran.output, HasSubstr("refused, result 1"));
    }
    for (const json& request : json::parse(radioctl("list --json").output)) {
        EXPECT_TRUE(shown.contains(request.at("name"))) << request << " has no example";
    }

    const Ran run = radioctl("--json batch -", batch);
    EXPECT_EQ(run.status, 0) << run.output;
    std::istringstream lines(run.output);
    for (const Example& example : kExamples) {
        std::string line;
        std::getline(lines, line);
        const json answer = json::parse(line, nullptr, false);
        ASSERT_TRUE(answer.is_object()) << example.line << "\n" << line;
        EXPECT_EQ(answer.at("request"), nameOf(example));
        const json wanted = example.record.empty() ? json::object() : json::parse(example.record);
        for (const auto& [name, value] : wanted.items()) {
            EXPECT_EQ(answer.at("record").value(name, json()), value) << example.line << "\n" << line;
        }
    }
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
        {"write-nv 1 0 0g", "", 2, "is not pairs of hexadecimal digits"},
        {"set-carrier-lock-blob ''", "", 2, "data: 0 bytes, 1 to 2048 are allowed"},
        {"set-sido-issue-config 1,,2", "", 2, "values: '' is not a number"},
        {"set-sido-issue-config 1,2,3,4,5,6,7,8,9,10,1,2,3,4,5,6,7,8,9,20,21", "", 2,
         "at most 20 are allowed"},
        {"send-rf-icc-mode-state 1 2 3 256", "", 2, "mode4: '256' is not a number from 0 to 255"},
        {"set-ant-force-state-by-rat 5 1", "", 2, "rat: '5' is not a number from 0 to 4"},
        {"set-band-prefer 5g --bands 1", "", 2, "rat: '5g' is none of gsm, umts"},
        {"set-band-prefer lte 1,3", "", 2, "is not pairs of hexadecimal digits"},
        {"set-band-prefer lte --bands 0", "", 2, "--bands: '0' is not a number from 1"},
        {"set-band-prefer gsm --bands 1", "", 2, "'1' is none of 850, 900, 1800 and 1900"},
        {"set-band-prefer lte " + std::string(136, '0'), "", 2, "68 bytes, 4 to 64 are allowed"},
        {"set-band-prefer nr-second " + std::string(224, '0'), "", 2, "112 bytes, 4 to 108 are allowed"},
        {"set-band-prefer lte --bands 6", "", 1, "failed, result 1"},
        {"get-band-prefer nr --now", "", 2, "rat: '--now' is not --current"},
        {"set-asdiv-fix-position 1 9", "", 1, "refused, result 1"},
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
        {"clear-forbidden-tai 0 1 1 2 1 1", "", 2, "mncThreeDigits: '2' is not a number from 0 to 1"},
        {"set-idc-offset 4 0 7", "", 2, "configs: '7' is not"},
        {"set-idc-offset 4 0 '[{\"f4\":1}]'", "", 2, "configs[0] has no member 'f4'; it has f0, f1, f2, f3"},
        {"request-icc-sim-authentication data=" + std::string(514, '0'), "", 2, "257 bytes, at most 256"},
        {"set-dsda-prefer-cust-thresh 5 1 2", "", 1, "refused, result 2"},
        {"set-oos-cfg option=6", "", 1, "refused, result 1"},
        {"set-ca-status 6 on", "", 1, "refused, result 1"},
        {"set-ca-status lte 1", "", 2, "enable: '1' is none of on, off"},
        {"get-ca-status 5g", "", 2, "rat: '5g' is none of lte, nr or a number"},
        {"set-carrier-omacp-fqdn 'a\"b'", "", 1, "refused, result 1"},
        {"set-carrier-omacp-fqdn " + std::string(225, 'f'), "", 2, "225 characters, at most 224 are allowed"},
        {"set-black-sanrca-config " + std::string(237, 'n'), "", 2,
         "237 characters, at most 236 are allowed"},
        {"set-ust5g-uc-band-config " + std::string(200, '1') + " " + std::string(37, '1'), "", 2,
         "237 characters, at most 236 are allowed together"},
        {"set-oos-cfg option=1 p7=10000000 p8=-2147483648 p9=-2147483648 p10=1000000000 p11=1000000", "", 2,
         "make 224 characters, at most 223"},
        {"set-centric-mode 2", "", 1, "failed, result 1"},
        {"request-icc-sim-authentication data=00", "", 1, "the modem reported a failure"},
        {"get-tx-carkit 1 78 0 0", "", 1, "the modem reported a failure"},
        {"rollback-network-action 77 0", "", 1, "failed, result 1"},
        {"read-nv 424242 0", "", 1, "the modem reported a failure"},
        {"--device embedded:/no/such.json get-lte-cell-info", "", 1, "the modem can't be reached"},
        {"--device /dev/null get-lte-cell-info", "", 1, "the modem can't be reached"},
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
    };
    for (const auto& row : cases) {
        const Ran run = radioctl(row.arguments, row.input);
        EXPECT_EQ(run.status, row.status) << row.arguments << "\n" << run.output;
        EXPECT_THAT(run.output, HasSubstr(row.text)) << row.arguments;
    }
}
