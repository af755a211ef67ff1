/// A copy of the sources that may be changed, with a build of its own.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace mutants {

/// One program of tests, which runs all of them in one process.
struct TestProgram {
    std::filesystem::path path;
    std::filesystem::path workingFolder;
    std::vector<std::string> environment;
    std::chrono::duration<double> takes{}; ///< on the unchanged tree

    std::string name() const { return path.filename().string(); }

    /// Of the sources that it tests: tests mirror what they test.
    std::string folder() const { return path.parent_path().filename().string(); }
};

class WorkTree {
public:
    /// Copies what git knows of `sources`, or would, to a folder below build/; what is there from an earlier time and
    /// did not change stays built.
    explicit WorkTree(const std::filesystem::path& sources);

    /// Configures and builds all, and runs each program once. Throws std::runtime_error with what the tools said when
    /// something of that fails.
    void prepare();

    /// The programs that hold something of the library, the fastest first.
    const std::vector<TestProgram>& programs() const { return mPrograms; }

    /// The library's files, from the tree's root on.
    std::vector<std::filesystem::path> librarySources() const;

    std::string read(const std::filesystem::path& file) const;
    void write(const std::filesystem::path& file, const std::string& contents) const;

    /// Whether the programs could be built.
    bool build(const std::vector<TestProgram>& programs) const;

    /// Runs a program until its first test fails: which it is, or why the program ended; nothing when all pass.
    std::optional<std::string> firstFailure(const TestProgram& program) const;

private:
    void findPrograms();
    bool dependsOnLibrary(const TestProgram& program) const;

    const std::filesystem::path mFolder;
    const std::filesystem::path mCopy;
    const std::filesystem::path mBuild;
    std::vector<std::filesystem::path> mFiles;
    std::vector<TestProgram> mPrograms;
};

} // namespace mutants
