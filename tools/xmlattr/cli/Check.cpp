#include "cli/Commands.h"
#include "cli/Files.h"
#include "output/Report.h"
#include "selecting/Baseline.h"
#include "running/FileRun.h"
#include "selecting/Groups.h"
#include "running/Progress.h"
#include "running/Stop.h"
#include "text/Text.h"

#include "xmlattr/core/Log.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <thread>

namespace Command {

namespace {

int usageError(std::string const& problem) {
    printError("xmlattr: " + problem + "\n");
    return 2;
}

struct Baselines {
    std::optional<Baseline> known, recorded;
};

// Counts what the files say, and has it reported.
class Telling final : public RunListener {
public:
    Telling(CheckOptions const& options, std::vector<std::string> const& files, Baselines& baselines,
            Reporter& reporter, Progress& progress)
        : options(options), files(files), baselines(baselines), reporter(reporter), progress(progress) {}

    void finding(std::size_t file, Finding const& finding) override {
        std::string const& name = nameOf(file);
        if (baselines.recorded) baselines.recorded->add(name, finding);
        // What is recorded is known from now on.
        if (baselines.recorded || (baselines.known && baselines.known->take(name, finding))) {
            ++counts.known;
            if (kindOf(finding.fault).isError) ++knownErrors;
            return;
        }
        if (options.isGrouped) return groups.add(name, finding);
        if (shown == options.maxFindings) return;
        ++shown;
        progress.clear();
        reporter.finding(name, finding);
    }

    void ended(std::size_t file, FileEnd const& end) override {
        counts += end.counts;
        done = file + 1;
        if (!end.failure) {
            if (baselines.known) baselines.known->finish(nameOf(file));
            return;
        }
        progress.clear();
        reporter.failure(nameOf(file), *end.failure);
    }

    std::uint64_t wanted() const override {
        bool const looksAtEach = options.isGrouped || baselines.known || baselines.recorded;
        return looksAtEach ? UINT64_MAX : options.maxFindings - shown;
    }

    void passed(std::uint64_t bytes) override { progress.draw(done, bytes); }

    // Ends the report; gives what was counted.
    Counts finish() {
        progress.clear();
        counts.errors -= knownErrors;
        counts.warnings -= counts.known - knownErrors;
        std::vector<FindingGroup const*> const sorted = groups.byCount();
        for (FindingGroup const* const group : sorted) {
            if (shown == options.maxFindings) break;
            ++shown;
            reporter.group(*group);
        }
        reporter.finish(counts, shown);
        if (!options.isQuiet && !sorted.empty()) {
            FindingGroup const& first = *sorted.front();
            printError(counted(sorted.size(), "distinct finding") + "; the most frequent " +
                       counted(first.count, "time") + ": " + first.finding.message() + " [" +
                       std::string(kindOf(first.finding.fault).id) + "]\n");
        }
        return counts;
    }

private:
    std::string const& nameOf(std::size_t file) const { return files[file] == "-" ? options.stdinName : files[file]; }

    CheckOptions const& options;
    std::vector<std::string> const& files;
    Baselines& baselines;
    Reporter& reporter;
    Progress& progress;
    Groups groups;
    Counts counts;
    std::uint64_t shown = 0, knownErrors = 0;
    std::size_t done = 0;
};

// What a baseline has that the documents no longer have.
void printGone(std::string const& file, Baseline const& baseline) {
    constexpr std::size_t most = 20;
    std::vector<std::string> const lines = baseline.gone();
    if (lines.empty()) return;
    printError(file + ": " + counted(lines.size(), "entry", "entries") + " that no longer " +
               (lines.size() == 1 ? "occurs" : "occur") + "; --write-baseline records what is there\n");
    for (std::size_t i = 0; i < std::min(most, lines.size()); ++i) printError("  " + lines[i] + "\n");
    if (lines.size() > most) printError("  and " + std::to_string(lines.size() - most) + " more\n");
}

std::uint64_t sizeOf(std::vector<std::string> const& files) {
    std::uint64_t sum = 0;
    for (std::string const& file : files) {
        std::error_code error;
        std::uint64_t const size = std::filesystem::file_size(file, error);
        if (!error) sum += size;
    }
    return sum;
}

} // namespace

int check(CheckOptions const& options) {
    // What the colour parser warns about is legal.
    Core::Log::setHandler([](Core::String const&) {});

    FileSettings settings;
    if (options.isStrict) settings.isStrict = true;
    for (std::string const& name : options.ignored)
        if (auto const problem = settings.filter.ignore(name)) return usageError("--ignore: " + *problem);
    for (std::string const& name : options.only)
        if (auto const problem = settings.filter.only(name)) return usageError("--only: " + *problem);

    std::vector<std::string> paths = options.paths;
    std::string problem;
    if (!options.filesFrom.empty() && !readPaths(options.filesFrom, paths, problem)) return usageError(problem);
    FileList const list = gatherFiles(paths);
    for (std::string const& line : list.problems) printError("xmlattr: " + line + "\n");

    Baselines baselines;
    if (!options.baseline.empty()) {
        baselines.known.emplace(options.baseline);
        if (auto const wrong = baselines.known->read()) return usageError(*wrong);
    }
    if (!options.newBaseline.empty()) baselines.recorded.emplace(options.newBaseline);

    std::vector<FileJob> jobs;
    for (std::string const& file : list.files) jobs.push_back({file, {&settings}});
    ReportFile report(options.output);
    std::unique_ptr<Reporter> const reporter = options.format->make(
        report, {options.output.empty() && usesColor(options.color), options.isQuiet, !options.baseline.empty()});
    bool const showsProgress = !options.isQuiet && isErrorTerminal();
    Progress progress(jobs.size(), showsProgress ? sizeOf(list.files) : 0, showsProgress);
    Telling telling(options, list.files, baselines, *reporter, progress);
    // A stop would wait for what somebody types.
    std::optional<Stop> stop;
    if (std::ranges::find(list.files, "-") == list.files.end()) stop.emplace();
    unsigned const threads = options.jobs > 0 ? options.jobs : std::max(1U, std::thread::hardware_concurrency());
    std::size_t const told = runFiles(jobs, threads, telling);
    Counts const counts = telling.finish();
    if (told < jobs.size()) {
        printError("xmlattr: stopped after " + std::to_string(told) + " of " + counted(jobs.size(), "file") + "\n");
        flushOutput();
        Stop::end();
    }
    report.complete();
    if (baselines.known && !options.isQuiet) printGone(options.baseline, *baselines.known);
    if (baselines.recorded) baselines.recorded->write();
    if (counts.failedFiles > 0 || !list.problems.empty()) return 2;
    return counts.errors > 0 || (options.isStrict && counts.warnings > 0) ? 1 : 0;
}

} // namespace Command
