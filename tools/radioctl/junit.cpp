#include "radioctl/junit.h"

#include <fmt/format.h>
#include <tinyxml2.h>

#include <algorithm>
#include <stdexcept>

namespace radioctl {

namespace {

/// XML has no form for most control characters.
std::string visible(std::string text)
{
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return text;
}

} // namespace

void JunitReport::add(const std::string& name, double seconds, const std::string& failure)
{
    mCases.push_back({visible(name), seconds, visible(failure)});
}

void JunitReport::write(const std::string& file) const
{
    tinyxml2::XMLDocument document;
    document.InsertEndChild(document.NewDeclaration());
    tinyxml2::XMLElement* suite = document.NewElement("testsuite");
    document.InsertEndChild(suite);
    suite->SetAttribute("name", mSuite.c_str());
    suite->SetAttribute("tests", static_cast<unsigned>(mCases.size()));
    const auto failures = std::ranges::count_if(mCases, [](const Case& one) { return !one.failure.empty(); });
    suite->SetAttribute("failures", static_cast<unsigned>(failures));
    for (const Case& one : mCases) {
        tinyxml2::XMLElement* element = suite->InsertNewChildElement("testcase");
        element->SetAttribute("classname", mSuite.c_str());
        element->SetAttribute("name", one.name.c_str());
        element->SetAttribute("time", fmt::format("{:.3f}", one.seconds).c_str());
        if (!one.failure.empty()) {
            element->InsertNewChildElement("failure")->SetAttribute("message", one.failure.c_str());
        }
    }
    if (document.SaveFile(file.c_str()) != tinyxml2::XML_SUCCESS) {
        throw std::runtime_error(fmt::format("can't write {}", file));
    }
}

} // namespace radioctl
