#include "output/Report.h"

#include "text/Text.h"

#include <span>

namespace Command {

namespace {

std::string location(std::string const& file, Place place) {
    return withoutControls(file) + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ":";
}

std::string_view colorOf(Severity severity) {
    switch (severity) {
    case Severity::Error: return "1;31";
    case Severity::Warning: return "1;35";
    case Severity::Note: break;
    }
    return "1;36";
}

class TextReporter final : public Reporter {
public:
    TextReporter(ReportFile& out, ReportSettings const& settings) : out(out), settings(settings) {}

    void finding(std::string const& file, Finding const& finding) override {
        out.write(findingLine(file, finding, settings.isColored));
    }

    void group(FindingGroup const& group) override {
        std::string line = findingLine(group.places.front().file, group.finding, settings.isColored);
        if (group.count > 1) {
            std::vector<std::string> others;
            for (auto const& [file, place] : std::span(group.places).subspan(1)) {
                others.push_back(location(file, place));
                others.back().pop_back(); // the colon
            }
            line.pop_back(); // the end of the line
            line += " (" + std::to_string(group.count) + " places, also " + joinWith(others, "and") + ")\n";
        }
        out.write(line);
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        printError(failureLine(file, failure));
    }

    void finish(Counts const& counts, std::uint64_t shown) override {
        if (!settings.isQuiet) printError(summaryLine(counts, shown));
    }

private:
    ReportFile& out;
    ReportSettings settings;
};

} // namespace

std::string findingLine(std::string const& file, Finding const& finding, bool isColored) {
    FaultKind const& kind = kindOf(finding.fault);
    return colored(location(file, finding.place), "1", isColored) + " " +
           colored(std::string(wordOf(kind.severity)) + ":", colorOf(kind.severity), isColored) + " " +
           finding.message() + " [" + std::string(kind.id) + "]\n";
}

std::string failureLine(std::string const& file, XmlFailure const& failure) {
    if (file.empty()) return "xmlattr: " + failure.message + "\n";
    std::string const where = failure.place ? location(file, *failure.place) : withoutControls(file) + ":";
    return where + " error: " + failure.message + " [" + std::string(failure.id) + "]\n";
}

std::string summaryLine(Counts const& counts, std::uint64_t shown) {
    std::string line = quantity(counts.files, "file");
    if (counts.failedFiles > 0) line += " (" + std::to_string(counts.failedFiles) + " not read to the end)";
    line += ": " + quantity(counts.attributes, "attribute");
    if (counts.declarations > 0) line += " and " + quantity(counts.declarations, "style declaration");
    line += "; " + std::to_string(counts.read) + " read as written, " + std::to_string(counts.passedOver) +
            " passed over, " + std::to_string(counts.freeText) + " free text, " + std::to_string(counts.misread) +
            " misread, " + std::to_string(counts.lenient) + " lenient, " + std::to_string(counts.refused) +
            " refused, " + std::to_string(counts.notCovered()) + " not covered";
    std::string reasons;
    auto const reason = [&](std::uint64_t number, std::string_view why) {
        if (number == 0) return;
        reasons += (reasons.empty() ? " (" : ", ") + std::to_string(number).append(" ").append(why);
    };
    reason(counts.foreign, "of other vocabularies");
    reason(counts.templates, "templates");
    reason(counts.tooLong, "too long");
    reason(counts.unread, "with an entity that is not read");
    reason(counts.unknown, "unknown");
    if (!reasons.empty()) line += reasons + ")";
    line += "; " + quantity(counts.errors, "error") + ", " + quantity(counts.warnings, "warning");
    if (counts.notes > 0) line += ", " + quantity(counts.notes, "note");
    if (shown < counts.findings()) line += " (" + std::to_string(shown) + " shown)";
    if (counts.ignored > 0) line += ", " + std::to_string(counts.ignored) + " left out";
    if (counts.known > 0) line += ", " + std::to_string(counts.known) + " in the baseline";
    return line + "\n";
}

std::unique_ptr<Reporter> makeTextReporter(ReportFile& out, ReportSettings const& settings) {
    return std::make_unique<TextReporter>(out, settings);
}

} // namespace Command
