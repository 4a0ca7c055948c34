#include "output/Report.h"

#include <nlohmann/json.hpp>

namespace Command {

namespace {

using Json = nlohmann::ordered_json;

std::string location(std::string const& file, Place place) {
    return file + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ":";
}

// "1 file", "2 files".
std::string count(std::uint64_t number, std::string_view noun) {
    return std::to_string(number).append(" ").append(noun).append(number == 1 ? "" : "s");
}

class TextReporter final : public Reporter {
public:
    explicit TextReporter(bool isColored) : isColored(isColored) {}

    void finding(std::string const& file, Finding const& finding) override {
        print(findingLine(file, finding, isColored));
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        printError(failureLine(file, failure));
    }

    void summary(Counts const& counts, std::uint64_t shown) override {
        std::string line = count(counts.files, "file");
        if (counts.failedFiles > 0) line += " (" + std::to_string(counts.failedFiles) + " not read to the end)";
        line += ": " + count(counts.attributes, "attribute");
        if (counts.declarations > 0) line += " and " + count(counts.declarations, "style declaration");
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
        line += "; " + count(counts.errors, "error") + ", " + count(counts.warnings, "warning");
        if (shown < counts.findings()) line += " (" + std::to_string(shown) + " shown)";
        printError(line + "\n");
    }

private:
    bool isColored;
};

class JsonReporter final : public Reporter {
public:
    void finding(std::string const& file, Finding const& finding) override {
        Json line = {{"file", file},
                     {"line", finding.place.line},
                     {"column", finding.place.column},
                     {"severity", kindOf(finding.fault).isError ? "error" : "warning"},
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
        print(write(line));
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        Json line = {{"file", file}};
        if (failure.place) {
            line["line"] = failure.place->line;
            line["column"] = failure.place->column;
        }
        line["severity"] = "fatal";
        line["id"] = failure.id;
        line["message"] = failure.message;
        print(write(line));
        printError(failureLine(file, failure));
    }

    void summary(Counts const& counts, std::uint64_t shown) override {
        printError(write({{"files", counts.files},
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
                          {"shown", shown}}));
    }

private:
    // A file name may be no UTF-8.
    static std::string write(Json const& line) {
        return line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    }
};

} // namespace

std::string findingLine(std::string const& file, Finding const& finding, bool isColored) {
    FaultKind const& kind = kindOf(finding.fault);
    return colored(location(file, finding.place), "1", isColored) + " " +
           colored(kind.isError ? "error:" : "warning:", kind.isError ? "1;31" : "1;35", isColored) + " " +
           finding.message() + " [" + std::string(kind.id) + "]\n";
}

std::string failureLine(std::string const& file, XmlFailure const& failure) {
    std::string const where = failure.place ? location(file, *failure.place) : file + ":";
    return where + " error: " + failure.message + " [" + std::string(failure.id) + "]\n";
}

std::unique_ptr<Reporter> makeTextReporter(bool isColored) {
    return std::make_unique<TextReporter>(isColored);
}

std::unique_ptr<Reporter> makeJsonReporter() {
    return std::make_unique<JsonReporter>();
}

} // namespace Command
