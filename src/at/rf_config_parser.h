/// The device's RF feature file: AT commands by RF feature and index.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

class RfConfigParser {
public:
    /// Reads the file.
    RfConfigParser();

    /// The parser of the process; reads the file at the first call.
    static const RfConfigParser& instance();

    /// Adds what the file holds. Where it is malformed reading stops; what was read before stays.
    void parse();

    /// The prefix that a command name stands for, with the parameters behind it, for free(); null when the
    /// name stands for nothing.
    static char* getAtCmd(const char* command, const char* params);

    /// The commands of one feature and index, valid as long as the parser; null when the file has none.
    const std::vector<std::string>* getAtCmdByFeatureId(int featureId, int index) const;

    /// Writes all commands to the log.
    void dump() const;

    /// Names of commands and the texts that they begin with.
    static const std::pair<const char*, const char*> AT_COMMAND_COMBO[12];

private:
    using Indices = std::map<int, std::vector<std::string>>;

    std::map<int, Indices> mFeatures;
};
