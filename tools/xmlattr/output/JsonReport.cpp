#include "output/Json.h"
#include "output/Report.h"

namespace Command {

namespace {

class JsonReporter final : public Reporter {
public:
    JsonReporter(ReportFile& out, ReportSettings const& settings) : out(out), settings(settings) {}

    void finding(std::string const& file, Finding const& finding) override { out.write(toLine(object(file, finding))); }

    void group(FindingGroup const& group) override {
        Json line = object(group.places.front().file, group.finding);
        line["count"] = group.count;
        line["places"] = Json::array();
        for (auto const& [file, place] : group.places)
            line["places"].push_back({{"file", file}, {"line", place.line}, {"column", place.column}});
        out.write(toLine(line));
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        Json line = Json::object();
        if (!file.empty()) line["file"] = file;
        if (failure.place) {
            line["line"] = failure.place->line;
            line["column"] = failure.place->column;
        }
        line["severity"] = "fatal";
        line["id"] = failure.id;
        line["message"] = failure.message;
        out.write(toLine(line));
    }

    void finish(Counts const& counts, std::uint64_t shown) override {
        if (settings.isQuiet) return;
        printError(toLine({{"files", counts.files},
                           {"failedFiles", counts.failedFiles},
                           {"attributes", counts.attributes},
                           {"declarations", counts.declarations},
                           {"read", counts.read},
                           {"passedOver", counts.passedOver},
                           {"freeText", counts.freeText},
                           {"misread", counts.misread},
                           {"lenient", counts.lenient},
                           {"refused", counts.refused},
                           {"notCovered",
                            {{"foreign", counts.foreign},
                             {"templates", counts.templates},
                             {"tooLong", counts.tooLong},
                             {"unread", counts.unread},
                             {"unknown", counts.unknown}}},
                           {"errors", counts.errors},
                           {"warnings", counts.warnings},
                           {"notes", counts.notes},
                           {"ignored", counts.ignored},
                           {"known", counts.known},
                           {"shown", shown}}));
    }

private:
    static Json object(std::string const& file, Finding const& finding) {
        Json line = {{"file", file},
                     {"line", finding.place.line},
                     {"column", finding.place.column},
                     {"severity", wordOf(kindOf(finding.fault).severity)},
                     {"id", kindOf(finding.fault).id},
                     {"element", finding.element},
                     {"attribute", finding.attribute},
                     {"text", finding.text},
                     {"message", finding.message()}};
        auto const add = [&](char const* name, std::string const& text) {
            if (!text.empty()) line[name] = text;
        };
        add("part", finding.part);
        add("problem", finding.problem);
        add("held", finding.held);
        add("expected", finding.expected);
        add("newer", finding.newer);
        if (!finding.replacement.empty()) {
            line["replacement"] = finding.replacement;
            line["exact"] = finding.isExact;
        }
        return line;
    }

    ReportFile& out;
    ReportSettings settings;
};

} // namespace

std::unique_ptr<Reporter> makeJsonReporter(ReportFile& out, ReportSettings const& settings) {
    return std::make_unique<JsonReporter>(out, settings);
}

} // namespace Command
