#include "mutants/work_tree.h"

#include "mutants/command.h"

#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <stdexcept>

namespace mutants {
namespace {

namespace fs = std::filesystem;
using std::chrono::steady_clock;

std::string contentsOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator(stream), {}};
}

/// Runs a tool that must not fail; what it says.
std::string must(const std::vector<std::string>& words, const fs::path& folder)
{
    CommandResult result = run(words, folder);
    if (!result.isGood()) {
        throw std::runtime_error(fmt::format("{}\n{} fails", result.output, fmt::join(words, " ")));
    }
    return std::move(result.output);
}

std::vector<std::string> listed(const TestProgram& program)
{
    return {program.path.string(), "--gtest_brief=1", "--gtest_fail_fast"};
}

/// Takes files away that the sources no longer have.
void removeOthers(const fs::path& folder, const std::set<fs::path>& files)
{
    std::vector<fs::path> others;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_directory() && !files.contains(entry.path().lexically_relative(folder))) {
            others.push_back(entry.path());
        }
    }
    for (const fs::path& other : others) {
        fs::remove(other);
    }
}

} // namespace

WorkTree::WorkTree(const fs::path& sources)
    : mFolder(sources / "build/mutants"), mCopy(mFolder / "tree"), mBuild(mFolder / "build")
{
    fs::create_directories(mCopy);
    std::stringstream names(
        must({"git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"}, sources));
    std::string name;
    std::set<fs::path> files;
    while (std::getline(names, name, '\0')) {
        if (!fs::exists(sources / name)) {
            continue; // deleted, and not yet committed
        }
        files.insert(name);
        if (!fs::exists(mCopy / name) || contentsOf(sources / name) != contentsOf(mCopy / name)) {
            fs::create_directories((mCopy / name).parent_path());
            fs::copy_file(sources / name, mCopy / name, fs::copy_options::overwrite_existing);
            fs::last_write_time(mCopy / name, fs::file_time_type::clock::now());
        }
    }
    removeOthers(mCopy, files);
    mFiles.assign(files.begin(), files.end());
}

std::vector<fs::path> WorkTree::librarySources() const
{
    std::vector<fs::path> sources;
    std::ranges::copy_if(mFiles, std::back_inserter(sources), [](const fs::path& file) {
        return *file.begin() == "src" && (file.extension() == ".cpp" || file.extension() == ".h");
    });
    return sources;
}

std::string WorkTree::read(const fs::path& file) const
{
    return contentsOf(mCopy / file);
}

void WorkTree::write(const fs::path& file, const std::string& contents) const
{
    std::ofstream(mCopy / file, std::ios::binary) << contents;
}

void WorkTree::prepare()
{
    // A file that was changed and put back is not compiled again, even where headers are precompiled.
    setenv("CCACHE_BASEDIR", mFolder.c_str(), 1);
    setenv("CCACHE_SLOPPINESS", "pch_defines,time_macros,include_file_mtime,include_file_ctime", 1);
    // One file at a time, since one at a time changes; and no warnings: they would count as caught by the compiler.
    must({"cmake", "-G", "Ninja", "-S", mCopy.string(), "-B", mBuild.string(), "-DCMAKE_BUILD_TYPE=Debug",
          "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DRADIO_UNITY=OFF",
          "-DRADIO_BENCH=OFF"},
         mFolder);
    must({"ninja", "-C", mBuild.string()}, mFolder);
    findPrograms();
    for (TestProgram& program : mPrograms) {
        program.takes = std::chrono::minutes(2);
        const auto begin = steady_clock::now();
        const auto failure = firstFailure(program);
        if (failure) {
            throw std::runtime_error(
                fmt::format("{} fails on the unchanged tree: {}", program.name(), *failure));
        }
        program.takes = steady_clock::now() - begin;
    }
    std::ranges::sort(mPrograms, {}, &TestProgram::takes);
}

/// Out of the list of tests, whose commands tell program and environment.
void WorkTree::findPrograms()
{
    const auto json =
        nlohmann::json::parse(must({"ctest", "--test-dir", mBuild.string(), "--show-only=json-v1"}, mFolder));
    std::set<fs::path> known;
    for (const auto& test : json["tests"]) {
        const auto command = test.value("command", std::vector<std::string>());
        if (command.size() < 2 || !command[1].starts_with("--gtest_filter") ||
            !known.insert(command[0]).second) {
            continue;
        }
        TestProgram program{command[0], mBuild, {}};
        for (const auto& property : test["properties"]) {
            if (property["name"] == "ENVIRONMENT") {
                program.environment = property["value"].get<std::vector<std::string>>();
            } else if (property["name"] == "WORKING_DIRECTORY") {
                program.workingFolder = property["value"].get<std::string>();
            }
        }
        if (dependsOnLibrary(program)) {
            mPrograms.push_back(std::move(program));
        }
    }
}

bool WorkTree::dependsOnLibrary(const TestProgram& program) const
{
    const std::string target = program.path.lexically_relative(mBuild).string();
    return must({"ninja", "-C", mBuild.string(), "-t", "inputs", target}, mFolder)
               .find((mCopy / "src").string()) != std::string::npos;
}

bool WorkTree::build(const std::vector<TestProgram>& programs) const
{
    std::vector<std::string> words = {"ninja", "-C", mBuild.string()};
    for (const TestProgram& program : programs) {
        words.push_back(program.path.lexically_relative(mBuild).string());
    }
    return run(words, mFolder).isGood();
}

std::optional<std::string> WorkTree::firstFailure(const TestProgram& program) const
{
    const auto patience =
        std::chrono::ceil<std::chrono::milliseconds>(4 * program.takes + std::chrono::seconds(10));
    const CommandResult result = run(listed(program), program.workingFolder, program.environment, patience);
    if (result.isGood()) {
        return std::nullopt;
    }
    static constexpr std::string_view kFailed = "[  FAILED  ] ";
    if (const size_t line = result.output.find(kFailed); line != std::string::npos) {
        const std::string test = result.output.substr(line + kFailed.size());
        return test.substr(0, test.find_first_of(" ,\n"));
    }
    switch (result.end) {
    case CommandResult::End::TooLate:
        return "too late";
    case CommandResult::End::Killed:
        return fmt::format("signal {}", result.status);
    case CommandResult::End::Exited:
        break;
    }
    return fmt::format("exit status {}", result.status);
}

} // namespace mutants
