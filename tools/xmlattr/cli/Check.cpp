#include "cli/Commands.h"
#include "cli/Files.h"
#include "output/Report.h"
#include "running/FileRun.h"
#include "running/Groups.h"
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

// Counts what the files say, and has it reported.
class Telling final : public RunListener {
public:
    Telling(CheckOptions const& options, std::vector<std::string> const& files, Reporter& reporter, Progress& progress)
        : options(options), files(files), reporter(reporter), progress(progress) {}

    void finding(std::size_t file, Finding const& finding) override {
        if (options.isGrouped) return groups.add(nameOf(file), finding);
        if (shown == options.maxFindings) return;
        ++shown;
        progress.clear();
        reporter.finding(nameOf(file), finding);
    }

    void ended(std::size_t file, FileEnd const& end) override {
        counts += end.counts;
        done = file + 1;
        if (!end.failure) return;
        progress.clear();
        reporter.failure(nameOf(file), *end.failure);
    }

    std::uint64_t wanted() const override { return options.isGrouped ? UINT64_MAX : options.maxFindings - shown; }
    void passed(std::uint64_t bytes) override { progress.draw(done, bytes); }

    void finish() {
        progress.clear();
        std::vector<FindingGroup const*> const sorted = groups.byCount();
        for (FindingGroup const* const group : sorted) {
            if (shown == options.maxFindings) break;
            ++shown;
            reporter.group(*group);
        }
        reporter.finish(counts, shown);
        if (sorted.empty() || options.isQuiet || sorted.front()->count == 1) return;
        FindingGroup const& first = *sorted.front();
        printError(std::to_string(sorted.size()) + " distinct findings; the most frequent, " +
                   std::to_string(first.count) + " times: " + first.finding.message() + " [" +
                   std::string(kindOf(first.finding.fault).id) + "]\n");
    }

    Counts counts;

private:
    std::string const& nameOf(std::size_t file) const { return files[file] == "-" ? options.stdinName : files[file]; }

    CheckOptions const& options;
    std::vector<std::string> const& files;
    Reporter& reporter;
    Progress& progress;
    Groups groups;
    std::uint64_t shown = 0;
    std::size_t done = 0;
};

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

    std::vector<FileJob> jobs;
    for (std::string const& file : list.files) jobs.push_back({file, {&settings}});
    ReportFile report(options.output);
    std::unique_ptr<Reporter> const reporter =
        options.format->make(report, {options.output.empty() && usesColor(options.color), options.isQuiet});
    bool const showsProgress = !options.isQuiet && isErrorTerminal();
    Progress progress(jobs.size(), showsProgress ? sizeOf(list.files) : 0, showsProgress);
    Telling telling(options, list.files, *reporter, progress);
    // A stop would wait for what somebody types.
    std::optional<Stop> stop;
    if (std::ranges::find(list.files, "-") == list.files.end()) stop.emplace();
    unsigned const threads = options.jobs > 0 ? options.jobs : std::max(1U, std::thread::hardware_concurrency());
    std::size_t const told = runFiles(jobs, threads, telling);
    telling.finish();
    if (told < jobs.size()) {
        printError("xmlattr: stopped after " + std::to_string(told) + " of " + std::to_string(jobs.size()) +
                   " files\n");
        flushOutput();
        Stop::end();
    }
    report.complete();
    Counts const& counts = telling.counts;
    if (counts.failedFiles > 0 || !list.problems.empty()) return 2;
    return counts.errors > 0 || (options.isStrict && counts.warnings > 0) ? 1 : 0;
}

} // namespace Command
