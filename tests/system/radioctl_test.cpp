/// radioctl as its users run it.
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

struct Example {
    std::string line;
    std::string record; ///< members of the answer's record; empty: it is enough that there is an answer
};

/// At least one for each request; getters after what they read.
const Example kExamples[] = {
    {"get-lte-cell-info", ""},
    {"get-rrc-status", ""},
    {"get-serving-cellular-cell-info", R"({"rat": 5})"},
    {"get-all-cellular-cell-info", ""},
    {"send-screen-state 1", ""},
    {"set-micro-motion-state 1 2", R"({"failure": 0})"},
    {"set-sync-with-ap 1", ""},
    {"set-feature-state 5 0x11", ""},
    {"get-feature-state 5", R"({"state": 17})"},
    {"get-feature-state 6", R"({"state": 0})"},
    {"dispatch-case 4294967295 -1 2 3", ""},
    {"set-diagnose-config 3 -", ""},
    {"set-sido-issue-config -1,2,3", ""},
    {"set-sido-issue-config ''", ""},
    {"get-service-mode", ""},
    {"set-sar-state -1 2", ""},
    {"set-sar-dsi-state -7", ""},
    {"get-sar-dsi-state", R"({"state": -7})"},
    {"set-rt-sar-mode 1", ""},
    {"set-sar-region-code 86", ""},
    {"set-aol-state 1", ""},
    {"set-mtpl-limit-state 0", ""},
    {"set-ant-fix-state 1", ""},
    {"set-ant-block-state 1", ""},
    {"set-ant-force-state-by-rat 3 1", ""},
    {"set-ant-force-state-by-rat 4 1", ""},
    {"set-tx-path-filter -1 78 1", ""},
    {"set-power-saving-state type=3 op=1 dl=-100 value10=10", ""},
    {R"(set-smart-idle-cfg '{"type": 1, "nr_t": 2, "lte_c": "0x10"}')", ""},
    {"set-power-boost-state 1", ""},
    {"get-power-statistics", R"({"failure": 0})"},
    {"get-modem-heap-list", R"({"poolCount": 1, "poolName": "modem_pool", "size": 16777216})"},
    {"set-hyper-uplink-mode 1", ""},
    {R"(set-hyper-uplink-paras values=[1,2] 'list1={"values": [3]}' 'list2={"values": [4,5], "count": 1}')",
     ""},
    {"set-scene-mode 3 9", ""},
    {"get-scene-mode 3,4", R"({"scenes": [{"scene": 3, "mode": 9}, {"scene": 4, "mode": 0}]})"},
    {"get-scene-mode -", R"({"scenes": []})"},
    {"set-qoe-score 1 99", ""},
    {R"(send-score-info 'scores=[{"id": 1, "score": 2, "values": [3,4]}, {"id": 5}]')", ""},
    {R"(set-site-cell-info 1 rat=5 siteId=7 'cells=[{"arfcn": 630000, "pci": 1}]')", ""},
    {"get-sim-tray-status", ""},
    {"set-carrier-lock-blob 00112233", R"({"length": 4, "data": "00112233"})"},
    {"set-carrier-lock-status aabb", R"({"data": "aabb"})"},
    {"get-carrier-lock-status 01", R"({"length": 2, "data": "aabb"})"},
    {"set-region-lock-blob 0102", R"({"data": "0102"})"},
    {"set-region-lock-status cc", R"({"data": "cc"})"},
    {"get-region-lock-status 01", R"({"data": "cc"})"},
    {"set-ims-audio-quality-threshold values=[1,-2,3]", ""},
    {"set-ims-rtp-info id=1 state=2", ""},
    {"set-ims-rtp-threshold values=[1,2,3,4,5,6,7,8,9]", ""},
    {"set-adaptive-handover-threshold", ""},
    {"set-qos-report-period 1000", ""},
    {"set-qos-config 7 deadbeef", ""},
    {"get-qos-data 7", R"({"length": 4, "data": "deadbeef"})"},
    {"hplmn-bg-search repeatInterval=6", ""},
    {"send-network-action id=9 type=4 values=[1,2,3,4] 'parameters=[{\"values\": [1]}]' cellsPresent=1 "
     "header=1 "
     "'first={\"present\": 1, \"cells\": [{\"value9\": 18446744073709551615, \"c\": [1,2], \"iPresent\": 1, "
     "\"j\": [{\"value1\": 65535}], \"gPresent\": 1, \"g\": [1,2]}]}'",
     ""},
    {"get-network-action-state 9", R"({"id": 9, "state": 1, "detail": 4})"},
    {"rollback-network-action 9 0", ""},
    {"get-network-action-state 9", R"({"id": 9, "state": 2})"},
    {R"(send-rf-icc-clat-kpi freq=2412000 subPolicy=1 'entries=[{"freq": 1, "bandwidth": 65535, "level": 3}]')",
     ""},
    {"send-rf-icc-mode-state 255 2 3 4", ""},
    {"get-rf-icc-info", R"({"mode": 255})"},
    {"send-rf-icc-device-err type=1 data=0102", ""},
    {"set-modem-indication-policy 'policies=[{\"indication\": 403, \"enabled\": 1, \"interval\": 4000000000, "
     "\"threshold\": -5, \"text1\": \"a,b\", \"text2\": \"123456789\"}, {\"text1\": \"\\u001b\"}]'",
     ""},
    {"get-modem-indication-policy",
     R"({"policies": [{"indication": 403, "enabled": 1, "interval": 4000000000, "threshold": -5, "text1": "a,b",
         "text2": "123456789"}, {"indication": 0, "enabled": 0, "interval": 0, "threshold": 0, "text1": "\\x1b",
         "text2": ""}]})"},
    {R"(set-modem-indication-policy count=1 'policies=[{"indication": 1, "text1": "abc", "length1": 2}, {}]')",
     ""},
    {"get-modem-indication-policy",
     R"({"policies": [{"indication": 1, "enabled": 0, "interval": 0, "threshold": 0, "text1": "ab", "text2": ""}]})"},
    {"get-indication-report-records", ""},
    {R"(set-indication-config 2 'configs=[{"indication": 403, "enabled": 1}]')", ""},
    {"start-metrics-collect 2 11,12", ""},
    {"get-metrics-data 2 0 5 -", R"({"type": 2, "count": 2, "state": 5, "length": 16})"},
    {"stop-metrics-collect 2", ""},
    {"get-nec-data 1 @/dev/null", R"({"data": "0100000000000000"})"},
    {"get-modem-protocol-info", ""},
    {"set-veyra-config-policy values=[1,2,3]", ""},
    {R"(load-atom-application id=4 version=1 'strings=["one", "two"]' values=[1] block=ff)", ""},
    {"unload-atom-application 4", ""},
    {R"(set-atom-status 6 1 2 'masks=[{"id": 1, "mask": "0xffffffff"}]' maskCount=1)", ""},
    {"get-atom-data 1 0 6", R"({"data": "060000000100000002000000"})"},
    {"send-device-state-ext -3", R"({"result": 0, "deviceStateExt": -3})"},
    {"set-imb-state 1", ""},
    {"get-msim-sub-mode-state", R"({"subMode": 0, "state": 1})"},
    {"set-uim-power-down", ""},
    {"get-msim-sub-mode-state", R"({"state": 0})"},
    {"set-uim-power-up", ""},
    // Test set 1 of 3GPP TS 35.208: RAND and AUTN; RES, CK and IK.
    {"request-icc-sim-authentication "
     "data=1023553cbe9637a89d218ae64dae47bf351055f328b43577b9b94a9ffac354dfafb3",
     R"({"failure": 0, "length": 44, "content": "db08a54211d5e3ba50bf10b40ba9a3c58b2a05bbf0d987b21bf8cb10f769bcd751044604127672711c6d3441"})"},
    {"set-dsda-prefer-cust-thresh 4 -10 20", ""},
    {R"(set-idc-offset 7 -3 '[{"f0": 1, "f1": 2, "f2": 3, "f3": 4}, {}]')", ""},
    {"set-idc-offset 4 0 []", ""},
    {"get-tx-carkit 6 78 0 0", R"({"length": 3, "data": "4e0002"})"},
    {"set-fast-dormancy-timer -1 5", ""},
    {"perform-plmn-unblock type=1 mcc=460 mnc=1", ""},
    {"clear-forbidden-tai 0 460 1 1 501 0", ""},
    {"config-cell-barring-param 3 1000 300000", R"({"failure": 0})"},
    {"set-oos-cfg option=100 p7=1 p11=255", ""},
    {"get-ims-rtp-redun-capability", R"({"capability": 1})"},
    {"get-ims-rtp-redun-public-key id=6 keyType=2", R"({"result": 0, "status": 0, "id": 6, "keyType": 2})"},
    {"set-ims-rtp-redun-control-info id=6 action=1", R"({"status": 1, "id": 6})"},
    {"set-ims-rtp-redun-remote-public-key id=6 key=0401ff", R"({"status": 0, "id": 6, "keyType": 2})"},
    {"set-ims-rtp-redun-control-info id=6 action=1", R"({"status": 0})"},
    {"sync-ims-rtp-redun-data-path-config type=3",
     R"({"type": 3, "value1": 1, "value2": 1, "ends": [{"address": "c0000201", "port": 50000},
                                                       {"address": "c6336401", "port": 50002}]})"},
    {"get-data-act-packet-route", R"({"route": 1})"},
    {"get-data-ifup-packet-route", R"({"route": 1})"},
    {"write-nv 100 0 \"0102ab\"", R"({"failure": 0})"},
    {"read-nv 0x64 0", R"({"dataLen": 3, "data": "0102ab"})"},
    {"set-band-prefer lte --bands 1,3,38",
     R"({"rat": "lte", "bands": "1,3,38", "bytes": "0000000500000020"})"},
    {"get-band-prefer lte --current", R"({"bands": "1,3,38", "current": 1})"},
    {"set-band-prefer nr --bands n78,1", R"({"bytes": "00000000000020000000000000000001"})"},
    {"get-band-prefer nr --current", R"({"bands": "n1,n78", "bytes": "00000000000020000000000000000001"})"},
    {"set-band-prefer nr-second 00000004", R"({"bands": "n3"})"},
    {"get-band-prefer nr-second --current", R"({"bands": "n3"})"},
    {"set-band-prefer gsm --bands 900,850", R"({"bytes": "00000082"})"},
    {"get-band-prefer gsm --current", R"({"bands": "900,850"})"},
    {"set-band-prefer umts 00000010", R"({"bands": "5"})"},
    {"get-available-band-modes", R"({"gsm": 130, "umts": 16, "lte": [5,32,0,0,0,0,0,0]})"},
    {"get-band-prefer umts", R"({"bands": "1,2,4,5,8,9,19", "current": 0})"},
    {"set-band-prefer cdma --bands 0", ""},
    {"get-band-prefer cdma", R"({"bands": "0"})"},
    {"get-band 0", R"({"low": 2621824, "high": 0})"},
    {"get-band 3", R"({"low": 2})"},
    {"get-bands-tx-num 5 78 0", R"({"bandTxNum": 2})"},
    {"set-asdiv-fix-position 1 2", ""},
    {"set-service-mode ps1", ""},
    {"get-service-mode", R"({"serviceMode": 3})"},
    {"set-centric-mode voice", ""},
    {"get-centric-mode", R"({"centricMode": 0})"},
    {"get-operation-mode", R"({"mode": 1})"},
    {"set-operation-mode off", ""},
    {"get-operation-mode", R"({"mode": 4})"},
    {"get-serving-cellular-cell-info", R"({"rat": 0})"},
    {"set-operation-mode online", ""},
    {"get-serving-cellular-cell-info", R"({"rat": 5})"},
    {"update-fold-screen-status 1", ""},
    {"set-imei-svn 42", ""},
    {"set-msim-sub-mode-pref 1", ""},
    {"update-dcdc-sleep-state 15", ""},
    {"send-fast-dormancy", ""},
    {"set-ps-conformance-mode 1 2", ""},
    {"query-fast-dormancy-mode", R"({"values": [1,2]})"},
    {"query-legacy-fast-dormancy-mode", R"({"values": [0]})"},
    {"set-power-saving-state type=600 cgType=1 op=1", ""},
    {"connect-sar-sensor", ""},
    {"set-sar-sensor-channel 2", ""},
    {"disconnect-sar-sensor", ""},
    {"set-aol-scenario 3", ""},
    {"get-sar-sns-data", R"({"values": [0,3]})"},
    {"set-background-search lte off on", ""},
    {"set-oos-cfg option=1 p7=1 p11=5", ""},
    {"clear-stored-frequency 0", ""},
    {"set-qrxlvmin-cfg option=11 q1=-120 q2=5 q3=-7", ""},
    {"get-qrxlvmin-cfg lte", R"({"rat": 13, "values": [-120,5,-7,0,0,0]})"},
    {"set-qrxlvmin-cfg option=12 q4=1 q9=6", ""},
    {"get-qrxlvmin-cfg nr", R"({"rat": 20, "values": [1,0,0,0,0,6]})"},
    {"set-arrearage-cfg option=13 a=[1,2,3]", ""},
    {"set-rat-scan nr,lte,umts,gsm", ""},
    {"lock-cell-and-band lockType=3 arfcn=1300 pci=44 mode=2", ""},
    {"unlock-cell-and-band 0", ""},
    {"enable-cell-barring on", ""},
    {"set-pingpong-bar-setting both 30 60 3 0", ""},
    {"perform-ret-high-rat nr 0", ""},
    {"set-redirect-opt-setting 1 0 0 0 0 0", ""},
    {"set-attach-priority 1 0 0 0 0", ""},
    {"set-ca-status lte off", ""},
    {"get-ca-status lte", R"({"caStatus": 0})"},
    {"set-ca-status nr off", ""},
    {"get-ca-status nr", R"({"caStatus": 0})"},
    {"get-nrca-config", R"({"nrcaState": 0})"},
    {"set-nrca-config on 0", ""},
    {"read-nrca-config", R"({"nrcaState": 1})"},
    {"set-bwp-config off 0", ""},
    {"get-bwp-config", R"({"bwpState": 0})"},
    {"set-white-sanrca-config 'n78A,n1A'", ""},
    {"set-black-sanrca-config n41A", ""},
    {"set-white-nsanrca-config 3A_n78A", ""},
    {"reset-sansa-white-list black-sa", ""},
    {"set-dss-config 6", ""},
    {"read-dss-config", R"({"value": 6})"},
    {"set-dss-additional-config 1", ""},
    {"set-ust5g-uc-band-config 1,3 78", ""},
    {"get-ims-ussd-enabled", R"({"enabled": 1})"},
    {"set-ciwlan-ui-switch on", ""},
    {"set-carrier-omacp-fqdn epdg.example", ""},
    {"get-sim-card-type 0", R"({"type": 1, "imsi": "001010123456789"})"},
    {"get-simlock-category-data", R"({"category": "0,0,0,0,0"})"},
    {"set-atc-table-init", ""},
    {"set-atc-table-de-init", ""},
    {"require-modem-reboot", ""}, // the last one: the link goes down for a while
};

/// Requests that the library does not support.
const std::set<std::string> kRefused = {"set-tas-force-idx-by-rat 1 2 3 4",
                                        "set-max-tx-power 1 2 3",
                                        "set-rf-tx-info rat=1",
                                        "get-tx-adc",
                                        "set-rf-tx-power band=1",
                                        "set-combo-rf-tx-info",
                                        "get-simlock-lock-status",
                                        "set-ust5g-uc-config 1 2 3"};

/// The functions of the public headers that take a request callback, but for the registrations.
std::set<std::string> publicRequests()
{
    std::set<std::string> names;
    const std::regex declaration(R"(RADIO_API int (radio\w+)\([^;]*RadioRequestCallback)");
    for (const auto& entry : std::filesystem::directory_iterator(DEVICE_ROOT "/../../include/radio_apis")) {
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        for (std::sregex_iterator at(text.begin(), text.end(), declaration); at != std::sregex_iterator();
             ++at) {
            names.insert((*at)[1]);
        }
    }
    names.erase("radioRegisterVsEvent");
    names.erase("radioRegisterRadioEvent");
    return names;
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
    EXPECT_EQ(listed, publicRequests());
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
        {"set-carrier-omacp-fqdn " + std::string(256, 'f'), "", 2, "256 characters, at most 255 are allowed"},
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
