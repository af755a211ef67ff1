/// A request has one domain, its header's, and everything of it stands in files of that name.
#include "interface/description.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

namespace {

namespace fs = std::filesystem;

std::string read(const fs::path& path)
{
    std::ifstream file(fs::path(SOURCE) / path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string domainOf(const interface::Request& request)
{
    return std::string(request.domain->name);
}

/// The definition that begins with `front`, up to its end.
std::string definition(const std::string& text, const std::string& front)
{
    const size_t begin = text.find(front);
    return begin == std::string::npos ? "" : text.substr(begin, text.find("\n}", begin) - begin);
}

/// The domain whose file of the simulated modem handles a message; empty when it is only stored and read.
std::string handlingDomain(const std::string& message)
{
    for (const auto& entry : fs::directory_iterator(fs::path(SOURCE) / "sim")) {
        const std::string name = entry.path().stem();
        if (name.starts_with("requests_") &&
            read(entry.path()).find(".message = \"" + message + '"') != std::string::npos) {
            return name.substr(std::string("requests_").size());
        }
    }
    return "";
}

void checkMethod(const std::string& folder, const std::string& method, const std::string& domain)
{
    const std::string body =
        definition(read(fs::path("src") / folder / (domain + ".cpp")), "::" + method + "(");
    EXPECT_NE(body, "") << method << " is not in src/" << folder << '/' << domain << ".cpp";
    static const std::regex message(R"((?:Vs|Radio)Message::(\w+))");
    std::smatch match;
    if (std::regex_search(body, match, message)) {
        const std::string handler = handlingDomain(match[1]);
        EXPECT_TRUE(handler.empty() || handler == domain)
            << match[1] << " of the domain " << domain << " is handled by sim/requests_" << handler << ".cpp";
    }
}

} // namespace

TEST(Domains, NameTheFilesOfEachRequest)
{
    static const std::regex method(R"(&Vorn(Vs|At|Radio)Client::(\w+))");
    for (const interface::Request& request : interface::requests()) {
        const std::string domain = domainOf(request);
        const std::string function(request.function);
        const std::string forwarder =
            definition(read("src/api/requests_" + domain + ".cpp"), "int " + function + '(');
        EXPECT_NE(forwarder, "") << function << " is not in src/api/requests_" << domain << ".cpp";
        for (std::sregex_iterator at(forwarder.begin(), forwarder.end(), method), end; at != end; ++at) {
            std::string folder = (*at)[1];
            folder[0] = static_cast<char>(std::tolower(folder[0]));
            checkMethod(folder, (*at)[2], domain);
        }
        EXPECT_NE(read("tests/requests/" + domain + "_test.cpp").find(function), std::string::npos)
            << function << " is not tested in tests/requests/" << domain << "_test.cpp";
    }
}
