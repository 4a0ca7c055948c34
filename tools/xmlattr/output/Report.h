// What `check` says, in the format that was asked for.
#pragma once

#include "checking/Checker.h"
#include "output/Output.h"
#include "output/ReportFile.h"
#include "xml/XmlReader.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// A finding that stands in several places.
struct FindingGroup {
    struct FilePlace {
        std::string file;
        Place place;
    };

    Finding finding; // as it is in the first place
    std::uint64_t count = 0;
    std::vector<FilePlace> places; // the first few
};

// Hears of the findings of one file after the other.
class Reporter {
public:
    virtual ~Reporter() = default;
    virtual void finding(std::string const& file, Finding const& finding) = 0;
    virtual void group(FindingGroup const& group) = 0;
    // The file was not read to its end. Without a name, the run was not carried out, or not to its end.
    virtual void failure(std::string const& file, XmlFailure const& failure) = 0;
    // The end of the report: the first `shown` findings have been told.
    virtual void finish(Counts const& counts, std::uint64_t shown) = 0;
};

struct ReportSettings {
    bool isColored = false;
    bool isQuiet = false;     // nothing about the run as a whole on standard error
    bool hasBaseline = false; // only what is new is told
};

struct ReportFormat {
    std::string_view word; // of the command line
    std::unique_ptr<Reporter> (*make)(ReportFile& out, ReportSettings const& settings);
    bool isForPrograms = false; // which learn from the report alone that nothing could be checked
};

// The first is the usual one.
std::span<ReportFormat const> reportFormats();

// GCC style: "file:line:column: warning: ... [id]".
std::unique_ptr<Reporter> makeTextReporter(ReportFile& out, ReportSettings const& settings);
// An object a line; docs/json.md has its keys.
std::unique_ptr<Reporter> makeJsonReporter(ReportFile& out, ReportSettings const& settings);
// SARIF 2.1.0, for services that keep findings from run to run.
std::unique_ptr<Reporter> makeSarifReporter(ReportFile& out, ReportSettings const& settings);
// The annotations of a workflow of GitHub.
std::unique_ptr<Reporter> makeGithubReporter(ReportFile& out, ReportSettings const& settings);
// A page that stands by itself.
std::unique_ptr<Reporter> makeHtmlReporter(ReportFile& out, ReportSettings const& settings);

// For a person, in a line: a finding, why a file was not read to its end, and the whole run.
std::string findingLine(std::string const& file, Finding const& finding, bool isColored);
std::string failureLine(std::string const& file, XmlFailure const& failure);
std::string summaryLine(Counts const& counts, std::uint64_t shown);

} // namespace Command
