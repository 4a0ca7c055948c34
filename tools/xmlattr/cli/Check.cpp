#include "cli/Commands.h"
#include "cli/Files.h"
#include "output/Report.h"
#include "running/Stop.h"
#include "running/Teller.h"
#include "selecting/Configuration.h"
#include "text/Path.h"
#include "text/Text.h"

#include "xmlattr/core/Log.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <thread>

namespace Command {

namespace {

// Says why nothing was checked.
int usageError(CheckOptions const& options, ReportFormat const& format, std::string const& problem) {
    XmlFailure const failure{"usage", problem, std::nullopt};
    if (!format.isForPrograms) {
        printError(failureLine("", failure));
        return 2;
    }
    ReportFile report(options.output);
    std::unique_ptr<Reporter> const reporter = format.make(report, {.isQuiet = true});
    reporter->failure("", failure);
    reporter->finish({}, 0);
    report.complete();
    return 2;
}

ReportFormat const& formatOf(RunSettings const& run) {
    return run.format ? **run.format : reportFormats().front();
}

// What a baseline has that the documents no longer have.
void printGone(Baseline const& baseline) {
    constexpr std::size_t most = 20;
    std::vector<std::string> const lines = baseline.gone();
    if (lines.empty()) return;
    printError(baseline.path() + ": " + quantity(lines.size(), "entry", "entries") + " that no longer " +
               (lines.size() == 1 ? "occurs" : "occur") + "; --write-baseline records what is there\n");
    for (std::size_t i = 0; i < std::min(most, lines.size()); ++i) printError("  " + lines[i] + "\n");
    if (lines.size() > most) printError("  and " + std::to_string(lines.size() - most) + " more\n");
}

std::uint64_t sizeOf(std::vector<std::string> const& files) {
    std::uint64_t sum = 0;
    for (std::string const& file : files) {
        std::error_code error;
        std::uint64_t const size = std::filesystem::file_size(pathOf(file), error);
        if (!error) sum += size;
    }
    return sum;
}

// What is wrong with the call, or a file that it names.
using Problem = std::optional<std::string>;

Problem readSettings(CheckOptions const& options, FileSettings& settings) {
    if (options.isStrict) settings.isStrict = true;
    for (std::string const& name : options.ignored)
        if (auto const problem = settings.filter.ignore(name)) return "--ignore: " + *problem;
    for (std::string const& name : options.only)
        if (auto const problem = settings.filter.only(name)) return "--only: " + *problem;
    for (std::string const& word : options.shown)
        if (auto const problem = settings.shown.add(word)) return "--show: " + *problem;
    return std::nullopt;
}

// Adds the settings of each document. What holds for the whole run is taken from the configuration of the first.
Problem readConfigurations(CheckOptions const& options, std::span<std::string const> names,
                           Configurations& configurations, std::vector<FileJob>& jobs, RunSettings& run) {
    if (!options.configuration.empty())
        if (auto problem = configurations.use(options.configuration)) return problem;
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        Configuration const* configuration = nullptr;
        if (auto problem = configurations.find(names[i], configuration)) return problem;
        if (!configuration) continue;
        configuration->addSettings(names[i], jobs[i].settings);
        if (i == 0) run.complete(configuration->run);
    }
    return std::nullopt;
}

Problem openBaselines(CheckOptions const& options, RunSettings const& run, Baselines& baselines) {
    if (options.newBaseline) baselines.recorded.emplace(*options.newBaseline);
    // A baseline that is written for the first time is not there yet.
    std::optional<std::string> const& known = options.newBaseline ? options.run.baseline : run.baseline;
    return known ? baselines.known.emplace(*known).read() : std::nullopt;
}

// Whether all is recorded that is to be; else the report says why not.
bool record(Baselines const& baselines, Reporter& reporter) {
    if (!baselines.recorded) return true;
    try {
        baselines.recorded->write();
        return true;
    } catch (std::runtime_error const& problem) {
        reporter.failure("", {"unwritable", problem.what(), std::nullopt});
        return false;
    }
}

// Whether findings are left out, of which nobody knows then whether they still occur.
bool isFiltered(std::span<FileJob const> jobs) {
    return std::ranges::any_of(jobs, [](FileJob const& job) {
        return std::ranges::any_of(job.settings, [](FileSettings const* each) { return !each->filter.isEmpty(); });
    });
}

// Checks the files; gives the exit code, or nothing when the run was stopped.
std::optional<int> carryOut(CheckOptions const& options, FileList const& list, FileSettings const& settings) {
    std::vector<std::string> names = list.files;
    std::ranges::replace(names, "-", options.stdinName);
    std::vector<FileJob> jobs;
    for (std::string const& file : list.files) jobs.push_back({file, {}});
    Configurations configurations;
    RunSettings run = options.run;
    Problem const misconfigured = readConfigurations(options, names, configurations, jobs, run);
    ReportFormat const& format = formatOf(run);
    if (misconfigured) return usageError(options, format, *misconfigured);
    for (FileJob& job : jobs) job.settings.push_back(&settings);
    Baselines baselines;
    if (auto const problem = openBaselines(options, run, baselines)) return usageError(options, format, *problem);

    Teller::Options const telling{run.isQuiet.value_or(false), run.isGrouped.value_or(false),
                                  run.maxFindings.value_or(UINT64_MAX)};
    ColorMode const color = run.color.value_or(ColorMode::Auto);
    ReportFile report(options.output);
    std::unique_ptr<Reporter> const reporter =
        format.make(report, {options.output.empty() && usesColor(color), telling.isQuiet, baselines.known.has_value()});
    bool const showsProgress = !telling.isQuiet && isErrorTerminal();
    Progress progress(jobs.size(), showsProgress ? sizeOf(list.files) : 0, showsProgress);
    Teller teller(telling, names, baselines, *reporter, progress);
    for (auto const& [folder, failure] : list.problems) reporter->failure(folder, failure);
    std::uint64_t const threads = run.jobs.value_or(0);
    std::size_t const told =
        runFiles(jobs, threads > 0 ? threads : std::max(1U, std::thread::hardware_concurrency()), teller);
    bool const isStopped = told < jobs.size();
    if (isStopped) {
        XmlFailure const stopped{
            "stopped", "stopped after " + std::to_string(told) + " of " + quantity(jobs.size(), "file"), std::nullopt};
        // The report in a file is left out.
        options.output.empty() ? reporter->failure("", stopped) : printError(failureLine("", stopped));
    }
    bool const isRecorded = !isStopped && record(baselines, *reporter);
    int const code = teller.finish(isRecorded);
    if (isStopped) return std::nullopt;
    report.complete();
    if (baselines.known && !telling.isQuiet && !isFiltered(jobs)) printGone(*baselines.known);
    return list.problems.empty() && isRecorded ? code : 2;
}

} // namespace

int check(CheckOptions const& options) {
    // What the colour parser warns about is legal.
    Core::Log::setHandler([](Core::String const&) {});

    FileSettings settings;
    ReportFormat const& format = formatOf(options.run);
    if (auto const problem = readSettings(options, settings)) return usageError(options, format, *problem);
    std::vector<std::string> paths = options.paths;
    std::string unread;
    if (!options.filesFrom.empty() && !readPaths(options.filesFrom, paths, unread))
        return usageError(options, format, unread);
    FileList const list = gatherFiles(paths);
    std::string const baseline = options.newBaseline.value_or("");
    for (std::string const& written : {options.output, baseline})
        if (isDocument(written, list)) return usageError(options, format, written + ": this document would be lost");
    if (!baseline.empty() && options.output == baseline)
        return usageError(options, format, baseline + ": the report and the baseline cannot be the same file");

    // A stop would wait for what somebody types or a pipe brings.
    std::optional<Stop> stop;
    if (std::ranges::none_of(list.files, mayBlock)) stop.emplace();
    std::optional<int> const code = carryOut(options, list, settings);
    if (!code) {
        flushOutput();
        Stop::end();
    }
    return *code;
}

} // namespace Command
