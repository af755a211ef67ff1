/// mutants: changes one place of the library at a time and looks whether a test notices. Ends with 1 when too few were
/// noticed, with 2 when the unchanged tree does not build or pass.
#include "mutants/mutant.h"
#include "mutants/work_tree.h"

#include <CLI/CLI.hpp>
#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <random>

namespace {

namespace fs = std::filesystem;
using mutants::kKindNames;
using mutants::Mutant;
using mutants::TestProgram;
using mutants::WorkTree;

constexpr size_t kKinds = kKindNames.size();
constexpr size_t kLeastPercent = 95;

struct Options {
    std::string sources;
    size_t count = 100;
    uint64_t seed = 1;
    bool listOnly = false;
};

struct Place {
    fs::path file;
    Mutant mutant;

    std::string changed(std::string contents) const
    {
        return contents.replace(mutant.at, mutant.length, mutant.replacement);
    }
};

using PlacesByKind = std::array<std::vector<Place>, kKinds>;

/// Every change that there is, in the order in which the seed draws them.
PlacesByKind shuffledPlaces(const WorkTree& tree, uint64_t seed)
{
    PlacesByKind places;
    for (const fs::path& file : tree.librarySources()) {
        for (Mutant& mutant : mutants::mutantsOf(tree.read(file))) {
            auto& kind = places[static_cast<size_t>(mutant.kind)];
            kind.push_back({file, std::move(mutant)});
        }
    }
    std::mt19937_64 generator(seed);
    for (auto& kind : places) {
        std::ranges::shuffle(kind, generator);
    }
    return places;
}

/// The tests of the changed file's folder and of requests, which all folders serve; then those of the other folders,
/// then those of the whole.
std::vector<std::vector<TestProgram>> stagesFor(const WorkTree& tree, const fs::path& file)
{
    const std::string folder = file.parent_path().filename();
    std::vector<std::vector<TestProgram>> stages(3);
    for (const TestProgram& program : tree.programs()) {
        const bool mirrors = program.folder() == folder || program.folder() == "requests";
        const bool isWhole = program.folder() == "system";
        stages[mirrors ? 0 : isWhole ? 2 : 1].push_back(program);
    }
    std::erase_if(stages, [](const auto& programs) { return programs.empty(); });
    return stages;
}

enum class Fate { DoesNotCompile, Caught, Survived };

struct Verdict {
    Fate fate;
    std::string by; ///< the test that caught it
};

Verdict judge(const WorkTree& tree, const fs::path& file)
{
    for (const auto& programs : stagesFor(tree, file)) {
        if (!tree.build(programs)) {
            return {Fate::DoesNotCompile, ""};
        }
        for (const TestProgram& program : programs) {
            if (const auto failure = tree.firstFailure(program)) {
                return {Fate::Caught, fmt::format("{}: {}", program.name(), *failure)};
            }
        }
    }
    return {Fate::Survived, ""};
}

Verdict tried(const WorkTree& tree, const Place& place)
{
    const std::string contents = tree.read(place.file);
    tree.write(place.file, place.changed(contents));
    Verdict verdict = judge(tree, place.file);
    tree.write(place.file, contents);
    return verdict;
}

size_t lineOf(const std::string& contents, size_t at)
{
    return 1 +
           static_cast<size_t>(std::count(contents.begin(), contents.begin() + static_cast<long>(at), '\n'));
}

/// The changed text on one line.
std::string shortened(const std::string& text)
{
    std::string line;
    std::ranges::unique_copy(text, std::back_inserter(line), [](char a, char b) {
        return std::isspace(static_cast<unsigned char>(a)) != 0 &&
               std::isspace(static_cast<unsigned char>(b)) != 0;
    });
    std::ranges::replace(line, '\n', ' ');
    return line.size() <= 60 ? line : line.substr(0, 57) + "...";
}

/// The lines that a change touches, before and after it.
std::string diff(const WorkTree& tree, const Place& place)
{
    const std::string before = tree.read(place.file);
    const Mutant& mutant = place.mutant;
    const size_t begin = before.rfind('\n', mutant.at) + 1;
    const size_t end = std::min(before.find('\n', mutant.at + mutant.length), before.size());
    const size_t endAfter = end - mutant.length + mutant.replacement.size();
    const auto marked = [](char mark, const std::string& lines) {
        std::string text = mark + lines + '\n';
        for (size_t i = text.find('\n'); i + 1 < text.size(); i = text.find('\n', i + 1)) {
            text.insert(i + 1, 1, mark);
        }
        return text;
    };
    return fmt::format("--- {0}:{1}\n{2}{3}", place.file.string(), lineOf(before, mutant.at),
                       marked('-', before.substr(begin, end - begin)),
                       marked('+', place.changed(before).substr(begin, endAfter - begin)));
}

struct Count {
    size_t tried = 0;
    size_t caught = 0;
};

int run(const Options& options)
{
    WorkTree tree(fs::canonical(options.sources));
    const auto places = shuffledPlaces(tree, options.seed);
    if (options.listOnly) {
        for (size_t kind = 0; kind < kKinds; ++kind) {
            fmt::print("{} places of kind {}\n", places[kind].size(), kKindNames[kind]);
            for (size_t i = 0; i < std::min(places[kind].size(), options.count); ++i) {
                fmt::print("{}", diff(tree, places[kind][i]));
            }
        }
        return 0;
    }
    fmt::print("building and testing the unchanged tree\n");
    std::fflush(stdout);
    tree.prepare();

    std::array<Count, kKinds> counts;
    std::string survivors;
    size_t total = 0;
    for (size_t kind = 0; kind < kKinds; ++kind) {
        const size_t quota = options.count / kKinds + (kind < options.count % kKinds ? 1 : 0);
        for (const Place& place : places[kind]) {
            if (counts[kind].tried == quota) {
                break;
            }
            const auto begin = std::chrono::steady_clock::now();
            const Verdict verdict = tried(tree, place);
            if (verdict.fate == Fate::DoesNotCompile) {
                continue;
            }
            const bool isCaught = verdict.fate == Fate::Caught;
            ++counts[kind].tried;
            counts[kind].caught += isCaught ? 1 : 0;
            const std::string contents = tree.read(place.file);
            const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
            fmt::print("{:3}/{} {}:{} {} '{}' -> '{}' {} ({:.1f} s)\n", ++total, options.count,
                       place.file.string(), lineOf(contents, place.mutant.at), kKindNames[kind],
                       shortened(contents.substr(place.mutant.at, place.mutant.length)),
                       shortened(place.mutant.replacement), isCaught ? "caught by " + verdict.by : "SURVIVED",
                       took.count());
            std::fflush(stdout);
            if (!isCaught) {
                survivors += diff(tree, place);
            }
        }
    }

    size_t caught = 0;
    fmt::print("\n");
    for (size_t kind = 0; kind < kKinds; ++kind) {
        caught += counts[kind].caught;
        fmt::print("{:10} {:3} of {:3} caught\n", kKindNames[kind], counts[kind].caught, counts[kind].tried);
    }
    fmt::print("{:10} {:3} of {:3} caught\n", "all", caught, total);
    if (!survivors.empty()) {
        fmt::print("\nSurvivors:\n{}", survivors);
    }
    return caught * 100 >= total * kLeastPercent ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Changes one place of the library at a time and looks whether a test notices.", "mutants");
    Options options;
    app.add_option("SOURCES", options.sources, "the folder of the sources, which stay as they are")
        ->required()
        ->check(CLI::ExistingDirectory);
    app.add_option("COUNT", options.count, "how many changes (default 100)")->check(CLI::Range(1, 100000));
    app.add_option("SEED", options.seed, "which ones: the same of the same sources (default 1)");
    app.add_flag("--list", options.listOnly, "show the first COUNT of each kind and try none");
    CLI11_PARSE(app, argc, argv);
    try {
        return run(options);
    } catch (const std::exception& error) {
        fmt::print(stderr, "mutants: {}\n", error.what());
        return 2;
    }
}
