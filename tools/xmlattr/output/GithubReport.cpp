#include "output/Report.h"

#include "text/Text.h"

namespace Command {

namespace {

// The message of a command, or one of its properties, which ends at a comma and its name at a colon.
std::string escaped(std::string_view text, bool isProperty) {
    std::string out;
    for (char const c : text) {
        switch (c) {
        case '%': out += "%25"; break;
        case '\r': out += "%0D"; break;
        case '\n': out += "%0A"; break;
        case ':': out += isProperty ? "%3A" : ":"; break;
        case ',': out += isProperty ? "%2C" : ","; break;
        default: out += c;
        }
    }
    return withoutControls(out);
}

std::string_view levelOf(Severity severity) {
    return severity == Severity::Note ? "notice" : wordOf(severity);
}

class GithubReporter final : public Reporter {
public:
    GithubReporter(ReportFile& out, ReportSettings const& settings) : out(out), settings(settings) {}

    void finding(std::string const& file, Finding const& finding) override {
        FaultKind const& kind = kindOf(finding.fault);
        annotate(levelOf(kind.severity), file, finding.place, kind.id, finding.message());
    }

    void group(FindingGroup const& group) override {
        FaultKind const& kind = kindOf(group.finding.fault);
        annotate(levelOf(kind.severity), group.places.front().file, group.finding.place, kind.id,
                 group.finding.message() + " (" + std::to_string(group.count) + " places)");
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        annotate("error", file, failure.place, failure.id, failure.message);
    }

    void finish(Counts const& counts, std::uint64_t shown) override {
        if (!settings.isQuiet) printError(summaryLine(counts, shown));
    }

private:
    void annotate(std::string_view level, std::string const& file, std::optional<Place> place, std::string_view id,
                  std::string const& message) {
        std::string line("::");
        line.append(level).append(" ");
        if (!file.empty()) line.append("file=").append(escaped(file, true)).append(",");
        if (place) line += "line=" + std::to_string(place->line) + ",col=" + std::to_string(place->column) + ",";
        line.append("title=").append(escaped(id, true)).append("::").append(escaped(message, false)).append("\n");
        out.write(line);
    }

    ReportFile& out;
    ReportSettings settings;
};

} // namespace

std::unique_ptr<Reporter> makeGithubReporter(ReportFile& out, ReportSettings const& settings) {
    return std::make_unique<GithubReporter>(out, settings);
}

} // namespace Command
