// Many commands in one process.
#include "interface/path.h"
#include "radioctl/junit.h"
#include "radioctl/output.h"
#include "radioctl/program.h"
#include "radioctl/signals.h"
#include "radioctl/variables.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace radioctl {

namespace {

constexpr char kFooter[] = R"(
Each line is a command as it stands behind radioctl, options included; # begins a comment.
  cell = get-serving-cellular-cell-info   keeps the answer's record
  write-nv 7 0 0$cell.rat                 puts a value of it in
  expect rsrp > -100                      checks the last answer: = != < <= > >= or ~ (contains)
  ! read-nv 9 9                           must not succeed
  sleep MS    wait link                   pause, and wait until the link is up (again)
  repeat N ... end                        the lines between them, N times
Values: $NAME.MEMBER, $NAME.LIST[0].MEMBER, ${NAME.MEMBER}; $$ is a dollar sign. Within single
quotes a dollar sign is only that. Names of values may be expected like numbers: expect rat = nr.)";

struct BatchOptions {
    std::string file;
    std::string junit;
    bool keepGoing = false;
};

void addBatchOptions(CLI::App& app, BatchOptions& options)
{
    app.add_option("FILE", options.file, "the file; - is standard input")->required();
    app.add_flag("--keep-going", options.keepGoing,
                 "run all lines, whatever fails; the first failure's status counts");
    app.add_option("--junit", options.junit, "write what became of each line as JUnit XML")
        ->type_name("FILE");
}

/// A line, or the lines of a repetition.
struct Step {
    size_t number;
    std::string text;
    std::vector<Step> repeated;
};

/// Steps as they are wanted, so that what comes through a pipe runs at once.
class Steps {
public:
    explicit Steps(std::istream& input) : mInput(input) {}

    /// Nothing at the input's end. Throws UsageError for a repetition without end.
    std::optional<Step> next()
    {
        Step step{0, "", {}};
        do {
            if (!std::getline(mInput, step.text)) {
                return std::nullopt;
            }
            step.number = ++mLine;
        } while (firstWord(step.text).empty());
        if (firstWord(step.text) == "repeat") {
            const size_t begin = mLine;
            for (;;) {
                auto inner = next();
                if (!inner) {
                    throw UsageError(fmt::format("repeat in line {} has no end", begin));
                }
                if (firstWord(inner->text) == "end") {
                    break;
                }
                step.repeated.push_back(std::move(*inner));
            }
        }
        return step;
    }

    size_t line() const { return mLine; }

private:
    static std::string firstWord(const std::string& text)
    {
        const size_t begin = text.find_first_not_of(" \t\r");
        const std::string rest = begin == std::string::npos || text[begin] == '#' ? "" : text.substr(begin);
        return rest.substr(0, rest.find_first_of(" \t\r"));
    }

    std::istream& mInput;
    size_t mLine = 0;
};

/// Rewrites one line of standard error.
class Progress {
public:
    explicit Progress(bool isShown, size_t lines) : mIsShown(isShown), mLines(lines) {}
    ~Progress() { show(""); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show(const std::string& text) const
    {
        if (mIsShown) {
            // The cursor goes back, so that a message takes the line's place.
            fmt::print(stderr, "\r\033[K{}\r", text);
        }
    }
    void show(size_t line, const std::string& command) const
    {
        show(fmt::format("{}/{} {}", line, mLines, command));
    }

private:
    bool mIsShown;
    size_t mLines;
};

std::optional<int64_t> toNumber(const std::string& word)
{
    int64_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(number) : std::nullopt;
}

int64_t countFrom(const Words& words, const char* usage)
{
    const auto number = words.size() == 2 ? toNumber(words[1]) : std::nullopt;
    if (!number || *number < 0) {
        throw UsageError(usage);
    }
    return *number;
}

bool holds(const Json& actual, const std::string& comparison, const Json& wanted)
{
    const auto contains = [&] {
        const std::string text = wanted.is_string() ? wanted.get<std::string>() : wanted.dump();
        return (actual.is_string() ? actual.get<std::string>() : actual.dump()).find(text) !=
               std::string::npos;
    };
    const bool isSameKind = actual.is_number() == wanted.is_number();
    return comparison == "=" || comparison == "==" ? actual == wanted
           : comparison == "!="                    ? actual != wanted
           : comparison == "~"                     ? contains()
           : comparison == "<"                     ? isSameKind && actual < wanted
           : comparison == "<="                    ? isSameKind && actual <= wanted
           : comparison == ">"                     ? isSameKind && actual > wanted
           : comparison == ">="
               ? isSameKind && actual >= wanted
               : throw UsageError(fmt::format("expect: '{}' is none of = != < <= > >= ~", comparison));
}

/// The name of the number at a path of an answer; empty for none.
std::string nameAt(const Program& program, const std::string& path)
{
    const interface::Record* answer = program.lastRequest()->answer;
    try {
        const Json told = interface::explanations(*answer, program.lastOutcome()->record);
        return interface::wordOf(
            {interface::valueAt(told, path).at("name").get_ref<const std::string&>(), 0});
    } catch (const std::exception&) {
        return "";
    }
}

/// Throws what is not as expected.
void expect(const Program& program, const Words& words)
{
    if (words.size() != 4) {
        throw UsageError("expect MEMBER OP VALUE is wanted, such as expect rsrp > -100");
    }
    if (!program.lastOutcome()) {
        throw UsageError("expect: no request was sent before");
    }
    const Outcome& last = *program.lastOutcome();
    Json actual;
    if (words[1] == "result" && !(last.record.is_object() && last.record.contains("result"))) {
        actual = last.result;
    } else if (words[1] == "reason") {
        actual = last.succeeded() ? "" : last.reason();
    } else {
        actual = interface::valueAt(last.record, words[1]);
    }
    const auto number = toNumber(words[3]);
    Json wanted = number ? Json(*number) : Json(words[3]);
    if (actual.is_number() && wanted.is_string()) {
        actual = nameAt(program, words[1]);
    }
    if (!holds(actual, words[2], wanted)) {
        throw std::runtime_error(fmt::format("expected {} {} {}, but it is {}", words[1], words[2], words[3],
                                             actual.is_string() ? actual.get<std::string>() : actual.dump()));
    }
}

/// One batch under way.
class Batch {
public:
    Batch(Program& program, const Line& line, const BatchOptions& options)
        : mProgram(program), mLine(line), mOptions(options), mReport(options.file)
    {}

    int run(std::istream& input, const Progress& progress)
    {
        Steps steps(input);
        int first = kExitSuccess;
        try {
            while (const auto step = steps.next()) {
                progress.show(step->number, step->text);
                const int status = runStep(*step);
                first = first == kExitSuccess ? status : first;
                if (mIsStopped) {
                    break;
                }
            }
        } catch (const UsageError& error) {
            printError("batch", "usage", error.what(), mLine.options);
            first = kExitUsage;
        }
        if (!mOptions.junit.empty()) {
            mReport.write(mOptions.junit);
        }
        return first;
    }

private:
    int runStep(const Step& step)
    {
        if (isInterrupted()) {
            printError("batch", "failed", "interrupted", mLine.options);
            mIsStopped = true;
            return kExitFailure;
        }
        if (!step.repeated.empty()) {
            return repeat(step);
        }
        mProgram.failure.clear();
        const auto begin = std::chrono::steady_clock::now();
        const int status = runText(step.text);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        mReport.add(fmt::format("{}: {}", step.number, step.text), time.count(),
                    status == kExitSuccess ? "" : mProgram.failure);
        if (status != kExitSuccess) {
            const char* what = mOptions.keepGoing ? "failed" : "stopped";
            fmt::print(stderr, "radioctl: {} at {}:{}\n", what, mOptions.file, step.number);
            mIsStopped = mIsStopped || !mOptions.keepGoing;
        }
        return status;
    }

    int repeat(const Step& step)
    {
        const int64_t times =
            countFrom(mVariables.split(step.text), "repeat N is wanted, and end behind the lines");
        int first = kExitSuccess;
        for (int64_t i = 0; i < times && !mIsStopped; ++i) {
            for (const Step& inner : step.repeated) {
                const int status = runStep(inner);
                first = first == kExitSuccess ? status : first;
                if (mIsStopped) {
                    break;
                }
            }
        }
        return first;
    }

    int runText(const std::string& text)
    {
        return mProgram.guarded("batch", mLine.options, [&] {
            Words words = mVariables.split(text);
            const bool mustFail = !words.empty() && words.front() == "!";
            if (mustFail) {
                words.erase(words.begin());
            }
            const int status =
                words.empty() ? throw UsageError("no command behind !") : runWords(std::move(words));
            if (!mustFail) {
                return status;
            }
            if (status == kExitSuccess) {
                throw std::runtime_error("it succeeded, which it should not");
            }
            return status == kExitFailure ? kExitSuccess : status;
        });
    }

    int runWords(Words words)
    {
        if (words.size() >= 2 && words[1] == "=") {
            return assign(words);
        }
        if (words.front() == "expect") {
            expect(mProgram, words);
        } else if (words.front() == "sleep") {
            awaitEnd(std::chrono::milliseconds(countFrom(words, "sleep wants milliseconds")));
        } else if (words.front() == "wait") {
            return waitForLink(words);
        } else {
            return runLine(std::move(words));
        }
        return kExitSuccess;
    }

    /// A line with its own options, of which those of the process can't change any more.
    int runLine(Words words)
    {
        const Options options = takeOptions(words, mLine.options);
        if (options.device != mLine.options.device || options.trace != mLine.options.trace ||
            options.log != mLine.options.log) {
            throw UsageError(
                "--device, --trace and --log-level hold for the whole batch: give them to batch itself");
        }
        return mProgram.runChecked({std::move(words), options});
    }

    int assign(Words words)
    {
        const std::string name = words.front();
        if (!Variables::isName(name) || words.size() == 2) {
            throw UsageError("an assignment is NAME = REQUEST ARGUMENT...");
        }
        words.erase(words.begin(), words.begin() + 2);
        Words bare = words;
        takeOptions(bare, mLine.options);
        parseRequest(bare); // only requests have answers to keep
        const int status = runLine(std::move(words));
        mVariables.set(name, mProgram.lastOutcome()->record);
        return status;
    }

    int waitForLink(const Words& words)
    {
        if (words.size() != 2 || words[1] != "link") {
            throw UsageError("wait link is all that can be waited for");
        }
        Session& session = mProgram.session(mLine.options);
        if (session.awaitLink(std::chrono::milliseconds(mLine.options.timeout))) {
            return kExitSuccess;
        }
        mProgram.failure = fmt::format("the link is not up after {} ms", mLine.options.timeout);
        printError("wait", "timeout", mProgram.failure, mLine.options);
        return kExitTimeout;
    }

    Program& mProgram;
    const Line& mLine;
    const BatchOptions& mOptions;
    Variables mVariables;
    JunitReport mReport;
    bool mIsStopped = false;
};

size_t countLines(std::istream& input)
{
    const auto lines = static_cast<size_t>(std::count(std::istreambuf_iterator<char>(input), {}, '\n'));
    input.clear();
    input.seekg(0);
    return lines;
}

} // namespace

std::vector<OptionText> batchOptions()
{
    CLI::App app;
    BatchOptions options;
    addBatchOptions(app, options);
    return optionTexts(app);
}

int runBatch(Program& program, const Line& line)
{
    CLI::App app("Run the commands in a file, one per line, until one fails.", "radioctl batch");
    BatchOptions options;
    addBatchOptions(app, options);
    app.footer(kFooter);
    if (!parseCommandOptions(app, line.words)) {
        return kExitSuccess;
    }
    constexpr int kMostNested = 16;
    const bool isFile = options.file != "-";
    std::ifstream file(isFile ? options.file : "/dev/null");
    if (!file) {
        throw UsageError(fmt::format("can't read {}", options.file));
    }
    if (program.depth == kMostNested) {
        throw UsageError("batches run within each other too deep");
    }
    holdSignals();
    ++program.depth;
    // Where the answers go to the terminal they tell enough.
    const bool showsProgress = isFile && isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    const Progress progress(showsProgress, showsProgress ? countLines(file) : 0);
    const int status = Batch(program, line, options).run(isFile ? file : std::cin, progress);
    --program.depth;
    return status;
}

} // namespace radioctl
