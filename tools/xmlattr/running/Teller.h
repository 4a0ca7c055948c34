// Counts what a run finds, and has reported what a user wants to hear of it.
#pragma once

#include "output/Report.h"
#include "running/FileRun.h"
#include "running/Progress.h"
#include "selecting/Baseline.h"
#include "selecting/Groups.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace Command {

// The findings that are known already, and those that are to be known from now on.
struct Baselines {
    std::optional<Baseline> known, recorded;
};

class Teller final : public RunListener {
public:
    struct Options {
        bool isQuiet = false, isGrouped = false;
        std::uint64_t maxFindings = UINT64_MAX;
    };

    // The names are those of the files.
    Teller(Options const& options, std::span<std::string const> names, Baselines& baselines, Reporter& reporter,
           Progress& progress)
        : options(options), names(names), baselines(baselines), reporter(reporter), progress(progress) {}

    void finding(std::size_t file, Finding const& finding) override;
    void ended(std::size_t file, FileEnd const& end) override;
    std::uint64_t wanted() const override;
    void passed(std::uint64_t bytes) override { progress.draw(done, bytes); }

    // Ends the report; gives the exit code. The summary has as findings what was to be recorded and is not.
    int finish(bool isRecorded);

private:
    Options options;
    std::span<std::string const> names;
    Baselines& baselines;
    Reporter& reporter;
    Progress& progress;
    Groups groups;
    Counts counts;
    Counts known, recorded; // findings of the file at hand that are in the baseline, or go to it
    Counts allRecorded;
    bool hasFaults = false;
    std::uint64_t shown = 0;
    std::size_t done = 0;
};

} // namespace Command
