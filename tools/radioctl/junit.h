/// What became of a batch's lines, in the form that CI systems read.
#pragma once

#include <string>
#include <vector>

namespace radioctl {

class JunitReport {
public:
    explicit JunitReport(std::string suite) : mSuite(std::move(suite)) {}

    /// Without a failure the case passed.
    void add(const std::string& name, double seconds, const std::string& failure);

    /// Throws std::runtime_error when the file can't be written.
    void write(const std::string& file) const;

private:
    struct Case {
        std::string name;
        double seconds;
        std::string failure;
    };

    std::string mSuite;
    std::vector<Case> mCases;
};

} // namespace radioctl
