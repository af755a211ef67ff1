/// What became of a batch's lines, in the form that CI systems read.
#pragma once

#include <tinyxml2.h>

#include <string>

namespace radioctl {

class JunitReport {
public:
    explicit JunitReport(std::string suite);

    /// Without a failure the case passed.
    void add(const std::string& name, double seconds, const std::string& failure);

    /// Throws std::runtime_error when the file can't be written.
    void write(const std::string& file);

private:
    std::string mName;
    tinyxml2::XMLDocument mDocument;
    tinyxml2::XMLElement* mSuite;
    unsigned mTests = 0;
    unsigned mFailures = 0;
};

} // namespace radioctl
