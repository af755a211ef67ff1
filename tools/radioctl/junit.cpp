#include "radioctl/junit.h"

#include <fmt/format.h>

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

JunitReport::JunitReport(std::string suite)
    : mName(std::move(suite)), mSuite(mDocument.NewElement("testsuite"))
{
    mDocument.InsertEndChild(mDocument.NewDeclaration());
    mDocument.InsertEndChild(mSuite);
}

void JunitReport::add(const std::string& name, double seconds, const std::string& failure)
{
    ++mTests;
    tinyxml2::XMLElement* element = mSuite->InsertNewChildElement("testcase");
    element->SetAttribute("classname", mName.c_str());
    element->SetAttribute("name", visible(name).c_str());
    element->SetAttribute("time", fmt::format("{:.3f}", seconds).c_str());
    if (!failure.empty()) {
        ++mFailures;
        element->InsertNewChildElement("failure")->SetAttribute("message", visible(failure).c_str());
    }
}

void JunitReport::write(const std::string& file)
{
    mSuite->SetAttribute("name", mName.c_str());
    mSuite->SetAttribute("tests", mTests);
    mSuite->SetAttribute("failures", mFailures);
    if (mDocument.SaveFile(file.c_str()) != tinyxml2::XML_SUCCESS) {
        throw std::runtime_error(fmt::format("can't write {}", file));
    }
}

} // namespace radioctl
