#include "at/rf_config_parser.h"

#include "android/log.h"
#include "channel/device_path.h"

#include <tinyxml2.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

using tinyxml2::XMLElement;

namespace {

constexpr char kFile[] = "/my_product/etc/rf_feature_config.xml";
constexpr size_t kGrowth = 5;

// How this file's lines stand in the log.
constexpr auto kDebug = ANDROID_LOG_DEBUG;
constexpr const char* kNoTag = nullptr;

/// Lists are short: they grow in small steps.
void append(std::vector<std::string>& commands, const char* command)
{
    if (commands.size() == commands.capacity()) {
        commands.reserve(commands.capacity() + kGrowth);
    }
    commands.emplace_back(command);
}

/// Adds the command of one tag, if it makes one; false when the tag is malformed.
bool addCommand(const XMLElement& tag, std::vector<std::string>& commands)
{
    const char* command = tag.Attribute("command");
    const char* text = tag.GetText();
    if (command == nullptr && text == nullptr) {
        __android_log_print(kDebug, kNoTag, "invalid cmd tag found with no command and no value!stop!\n");
        return false;
    }
    if (command == nullptr) {
        __android_log_print(kDebug, kNoTag, "old format AT command\n");
        append(commands, text);
        return true;
    }
    if (text == nullptr) {
        __android_log_print(kDebug, kNoTag, "unknown format AT command\n");
        return true;
    }
    __android_log_print(kDebug, kNoTag, "parse cmd tag: %s, params:%s\n", command, text);
    const std::unique_ptr<char, decltype(&std::free)> built(RfConfigParser::getAtCmd(command, text),
                                                            std::free);
    __android_log_print(kDebug, kNoTag, "construced: %s\n", built ? built.get() : "(null)");
    if (built) {
        append(commands, built.get());
    }
    return true;
}

bool addCommands(const XMLElement& index, std::vector<std::string>& commands)
{
    for (const XMLElement* tag = index.FirstChildElement("cmd"); tag != nullptr;
         tag = tag->NextSiblingElement("cmd")) {
        if (!addCommand(*tag, commands)) {
            return false;
        }
    }
    return true;
}

} // namespace

const std::pair<const char*, const char*> RfConfigParser::AT_COMMAND_COMBO[12] = {
    {"rat-4", "AT+ETXANT=4,"},
    {"rat-4-cls-fix", "AT+ETXANT="},
    {"rat-5", R"(AT+EGMC=1,"NrForceTxRx",4,)"},
    {"rat-5-cls-fix", R"(AT+EGMC=1,"NrForceTxRx",)"},
    {"rat-tdd", R"(AT+EGMC=1,"lte_tdd_tx_rx",)"},
    {"rat-4-lte", "AT+ETXANT=6,"},
    {"rat-5-nr", R"(AT+EGMC=1,"NrForceTxRx",10,)"},
    {"rat-6-lte", R"(AT+EGMC=1,"lte_force_ttps",)"},
    {"rat-6-nr", R"(AT+EGMC=1,"NR_force_TTPS",)"},
    {"sar", "AT+ERFIDX="},
    {"forbid-lte", R"(AT+EGMC=1,"lte_utas_forbid_state",)"},
    {"forbid-nr", R"(AT+EGMC=1,"NrTas_forbid_state",)"},
};

RfConfigParser::RfConfigParser()
{
    parse();
}

const RfConfigParser& RfConfigParser::instance()
{
    // Never destroyed: a program may end while another thread still asks.
    static const RfConfigParser& parser = *new RfConfigParser;
    return parser;
}

void RfConfigParser::parse()
{
    __android_log_print(kDebug, kNoTag, "%s begin: %s\n", "parse", kFile);
    tinyxml2::XMLDocument document;
    if (document.LoadFile(devicePath(kFile).c_str()) != tinyxml2::XML_SUCCESS) {
        __android_log_print(kDebug, kNoTag, "%s load file filed!stop!\n", "parse");
        return;
    }
    const XMLElement* feature = document.FirstChildElement("feature");
    int id = 0;
    if (feature == nullptr || feature->QueryIntAttribute("id", &id) != tinyxml2::XML_SUCCESS) {
        __android_log_print(kDebug, kNoTag, "invalid feature tag with no id attribute!stop!\n");
        return;
    }
    __android_log_print(kDebug, kNoTag, "FEATURE ID:%d\n", id);
    Indices& indices = mFeatures[id];
    for (const XMLElement* tag = feature->FirstChildElement("atcmd"); tag != nullptr;
         tag = tag->NextSiblingElement("atcmd")) {
        int index = 0;
        if (tag->QueryIntAttribute("index", &index) != tinyxml2::XML_SUCCESS) {
            __android_log_print(kDebug, kNoTag, "invalid atcmd tag with no index attribute!stop!\n");
            return;
        }
        const auto [place, isNew] = indices.try_emplace(index);
        if (!isNew) {
            __android_log_print(kDebug, kNoTag, "repeated index %d attribute found! stop!\n", index);
            return;
        }
        auto& commands = place->second;
        if (!addCommands(*tag, commands)) {
            return;
        }
        __android_log_print(kDebug, kNoTag, "FEATURE INDEX:%d, CAPACITY: %ld, SIZE:%ld\n", index,
                            static_cast<long>(commands.capacity()), static_cast<long>(commands.size()));
    }
    __android_log_print(kDebug, kNoTag, "%s end\n", "parse");
    dump();
}

char* RfConfigParser::getAtCmd(const char* command, const char* params)
{
    const auto* entry = std::ranges::find_if(
        AT_COMMAND_COMBO, [=](const auto& pair) { return std::strcmp(pair.first, command) == 0; });
    if (entry == std::end(AT_COMMAND_COMBO)) {
        return nullptr;
    }
    const size_t prefix = std::strlen(entry->second);
    const size_t rest = std::strlen(params);
    auto* text = static_cast<char*>(std::calloc(prefix + rest + 1, 1));
    if (text == nullptr) {
        throw std::bad_alloc(); // null would mean that the command is unknown, and the chain would lack one
    }
    std::memcpy(text, entry->second, prefix);
    std::memcpy(text + prefix, params, rest + 1);
    return text;
}

const std::vector<std::string>* RfConfigParser::getAtCmdByFeatureId(int featureId, int index) const
{
    __android_log_print(kDebug, kNoTag, "getAtCmdByFeatureId: params:%d, %d\n", featureId, index);
    const auto feature = mFeatures.find(featureId);
    if (feature == mFeatures.end()) {
        return nullptr;
    }
    const auto commands = feature->second.find(index);
    return commands == feature->second.end() ? nullptr : &commands->second;
}

void RfConfigParser::dump() const
{
    for (const auto& [id, indices] : mFeatures) {
        __android_log_print(kDebug, kNoTag, "feature[%d]\n", id);
        for (const auto& [index, commands] : indices) {
            __android_log_print(kDebug, kNoTag, "  index[%d], addr:%p\n", index,
                                static_cast<const void*>(&commands));
            for (const std::string& command : commands) {
                __android_log_print(kDebug, kNoTag, "    %s\n", command.c_str());
            }
        }
    }
}
