// Reports of findings whose texts and files try to be something else.
#include "output/Report.h"
#include "output/Json.h"
#include "text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <system_error>
#include <unistd.h>

namespace Command {

namespace {

std::string const texts[] = {
    "\"><script>hacked=1</script>",
    "</style><img src=x onerror=hacked=1>",
    "' onmouseover='hacked=1",
    "]]>&lt;&#60;",
    "\xE2\x80\xA8\xE2\x80\xAE\xEF\xBB\xBF", // the end of a line, the other direction, a byte order mark
    "\x01\x1B[31m\x7F\xC2\x9B",
    "\r\n::error file=x::%0A,",
    "`<b>`\\",
};
std::string const file = "a\xFF\xFE<b>:,%\n\".svg";

std::filesystem::path const folder =
    std::filesystem::path(testing::TempDir()) / ("xmlattr-reports" + std::to_string(getpid()));

std::string contentOf(std::filesystem::path const& path) {
    std::ifstream content(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(content), {}};
}

Finding findingOf(std::string const& text) {
    Finding finding;
    finding.fault = Fault::Lenient;
    finding.element = finding.attribute = finding.text = finding.part = finding.held = finding.replacement = text;
    finding.source = {text, text, text, {1, 1}, {1, 2}};
    finding.entry = Xml::Catalogue::find(Xml::Vocabulary::Fo, "block", "color");
    return finding;
}

// A report of so many findings, which `tell` tells.
template <class Tell> std::string reportOf(std::string_view format, std::uint64_t findings, Tell tell) {
    std::filesystem::create_directories(folder);
    std::string const path = (folder / "report").string();
    ReportFile out(path);
    auto const reporter = std::ranges::find(reportFormats(), format, &ReportFormat::word)->make(out, {.isQuiet = true});
    tell(*reporter);
    Counts counts;
    counts.warnings = findings;
    reporter->finish(counts, findings);
    out.complete();
    std::string report = contentOf(path);
    std::filesystem::remove_all(folder);
    return report;
}

// All the texts as findings, and as failures.
std::string reportOf(std::string_view format) {
    return reportOf(format, std::size(texts) + 3, [](Reporter& reporter) {
        for (std::string const& text : texts) {
            reporter.finding(file, findingOf(text));
            reporter.failure(file, {"malformed", text, Place{1, 2}});
        }
        reporter.group({findingOf(texts[0]), 3, {{file, {1, 1}}, {file, {2, 1}}}});
    });
}

TEST(Report, ControlsHaveNumbers) {
    EXPECT_EQ(printable("\x1F \x7F\xC2\x80\xC2\x9F\xC2\xA0"), "\\u{1f} \\u{7f}\\u{80}\\u{9f}\xC2\xA0");
    EXPECT_EQ(printable(std::string_view("\xC2\x80", 1)), "\xC2") << "nothing after the end is looked at";
    std::string const eighty = std::string(79, 'x') + "\u00E9";
    EXPECT_EQ(printable(eighty), eighty);
    EXPECT_EQ(printable(eighty + "\u00E9"), eighty + "...");
}

TEST(Report, SummariesHaveEachCount) {
    char const* const json =
        R"({"files":1,"failedFiles":2,"attributes":3,"declarations":4,"read":5,"passedOver":6,"freeText":7,)"
        R"("misread":8,"lenient":9,"refused":10,"notCovered":{"foreign":11,"templates":12,"tooLong":13,"unread":14,)"
        R"("unknown":15},"errors":16,"warnings":17,"notes":18,"ignored":19,"known":20,"shown":21})";
    char const* const text =
        "1 file (2 not read to the end): 3 attributes and 4 style declarations; 5 read as written, 6 passed over, "
        "7 free text, 8 misread, 9 lenient, 10 refused, 65 not covered (11 of other vocabularies, 12 templates, "
        "13 too long, 14 with an entity that is not read, 15 unknown); 16 errors, 17 warnings, 18 notes (21 shown), "
        "19 left out, 20 in the baseline";
    for (auto const& [format, summary] : {std::pair{"json", json}, {"text", text}}) {
        ReportFile out("");
        auto const row = std::ranges::find(reportFormats(), std::string_view(format), &ReportFormat::word);
        testing::internal::CaptureStderr();
        row->make(out, {})->finish({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}, 21);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), std::string(summary) + "\n");
    }
}

TEST(Report, JsonKeepsEveryText) {
    std::istringstream lines(reportOf("json"));
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        Json const object = Json::parse(line);
        EXPECT_EQ(object["file"], "a\uFFFD\uFFFD<b>:,%\n\".svg");
        if (count == 2 * std::size(texts)) {
            EXPECT_EQ(object["places"].size(), 2);
        } else {
            bool const isFailure = count % 2 == 1;
            EXPECT_EQ(object[isFailure ? "message" : "text"], texts[count / 2]);
            EXPECT_EQ(object["severity"], isFailure ? "fatal" : "warning");
            EXPECT_EQ(object["id"], isFailure ? "malformed" : "lenient");
            EXPECT_TRUE(object["line"] == 1 && object["column"] == (isFailure ? 2 : 1));
        }
    }
    EXPECT_EQ(count, 2 * std::size(texts) + 1);
}

TEST(Report, JsonNamesEachFieldOfAFinding) {
    std::pair<char const*, std::string Finding::*> const fields[] = {
        {"element", &Finding::element},   {"attribute", &Finding::attribute}, {"text", &Finding::text},
        {"part", &Finding::part},         {"problem", &Finding::problem},     {"held", &Finding::held},
        {"expected", &Finding::expected}, {"newer", &Finding::newer},         {"replacement", &Finding::replacement}};
    Finding finding;
    finding.place = {7, 8};
    for (auto const& [name, field] : fields) finding.*field = name;
    Json object = Json::parse(reportOf("json", 1, [&](Reporter& reporter) { reporter.finding("file", finding); }));
    Json expected = {{"file", "file"},      {"line", 7},         {"column", 8},
                     {"severity", "error"}, {"id", "bad-value"}, {"message", finding.message()},
                     {"exact", false}};
    for (auto const& [name, field] : fields) expected[name] = name;
    EXPECT_EQ(object.size(), expected.size());
    for (auto const& [name, value] : expected.items()) EXPECT_EQ(object[name], value) << name;
}

TEST(Report, EachFormatTellsHowGraveAFindingIs) {
    for (FaultKind const& kind : faultKinds()) {
        bool const isError = kind.id == "bad-value", isNote = kind.id == "passed-over" || kind.id == "not-covered";
        std::string const word = isError ? "error" : isNote ? "note" : "warning";
        Finding finding = findingOf("q");
        finding.fault = kind.fault;
        auto const report = [&](std::string_view format) {
            return reportOf(format, 1, [&](Reporter& reporter) { reporter.finding("a", finding); });
        };
        EXPECT_EQ(report("text").find("a:1:1: " + word + ": "), 0u) << report("text");
        std::string const color = isError ? "1;31" : isNote ? "1;36" : "1;35";
        EXPECT_EQ(findingLine("a", finding, true).find("\x1b[1ma:1:1:\x1b[0m \x1b[" + color + "m" + word), 0u);
        EXPECT_EQ(report("github").find("::" + (isNote ? "notice" : word) + " file=a,"), 0u) << report("github");
        EXPECT_EQ(Json::parse(report("json"))["severity"], word);
        Json const sarif = Json::parse(report("sarif"))["runs"][0];
        EXPECT_EQ(sarif["results"][0]["level"], word);
        std::size_t const rule = sarif["results"][0]["ruleIndex"];
        EXPECT_EQ(sarif["tool"]["driver"]["rules"][rule]["id"], kind.id);
        EXPECT_NE(report("html").find("<article id='f0' data-severity='" + word + "'"), std::string::npos) << kind.id;
    }
}

TEST(Report, SarifKeepsEveryText) {
    Json const run = Json::parse(reportOf("sarif"))["runs"][0];
    Json const& results = run["results"];
    ASSERT_EQ(results.size(), std::size(texts) + 1);
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        Json const& place = results[i]["locations"][0]["physicalLocation"];
        EXPECT_EQ(place["artifactLocation"]["uri"], "./a%FF%FE%3Cb%3E:,%25%0A%22.svg");
        Json expected = {{"startLine", 1}, {"startColumn", 1}, {"endLine", 1}, {"endColumn", 2}};
        expected["snippet"]["text"] = texts[i];
        EXPECT_EQ(place["region"], expected);
        Json const& notification = run["invocations"][0]["toolExecutionNotifications"][i];
        EXPECT_EQ(notification["message"]["text"], texts[i]);
        EXPECT_EQ(notification["level"], "error");
    }
    EXPECT_EQ(results.back()["occurrenceCount"], 3);
    EXPECT_FALSE(results.back().contains("baselineState"));
}

TEST(Report, SarifTellsFindingsApart) {
    Finding moved = findingOf("a");
    moved.place = moved.source.begin = {7, 1};
    Json const report = Json::parse(reportOf("sarif", 4, [&](Reporter& reporter) {
        for (auto const& [name, finding] : {std::pair{"x.svg", findingOf("a")},
                                            {"x.svg", findingOf("b")},
                                            {"x.svg", findingOf("a")},
                                            {"y.svg", moved}})
            reporter.finding(name, finding);
    }));
    std::vector<std::string> prints;
    for (Json const& result : report["runs"][0]["results"])
        prints.push_back(result["partialFingerprints"]["findingHash/v1"].get<std::string>());
    ASSERT_EQ(prints.size(), 4);
    EXPECT_EQ(prints[0], prints[3]) << "elsewhere";
    EXPECT_EQ(std::set(prints.begin(), prints.end()).size(), 3) << "twice in a file";
}

TEST(Report, GithubHasOneCommandALine) {
    std::istringstream lines(reportOf("github"));
    std::size_t count = 0;
    std::regex const command("::(warning|error) file=a\xFF\xFE<b>%3A%2C%25%0A\".svg,line=1,col=[12],title=[a-z-]+::.*");
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_TRUE(std::regex_match(line, command)) << line;
        EXPECT_EQ(line.find('\r'), std::string::npos);
    }
    EXPECT_EQ(count, 2 * std::size(texts) + 1);
}

TEST(Report, HtmlHasNoMarkupFromDocuments) {
    std::string const page = reportOf("html");
    auto const count = [&](std::string_view text) {
        std::size_t number = 0;
        for (std::size_t at = page.find(text); at != page.npos; at = page.find(text, at + 1)) ++number;
        return number;
    };
    EXPECT_EQ(count("<script"), 1);
    EXPECT_EQ(count("<style"), 1);
    EXPECT_EQ(count("<article"), std::size(texts));
    for (std::string_view const text :
         {"<img", "<b>", "onmouseover='", "\xE2\x80\xA8", "\xE2\x80\xAE", "\xEF\xBB\xBF", "\xFF", "\xC2\x9B"})
        EXPECT_EQ(count(text), 0) << text;
    EXPECT_TRUE(std::ranges::none_of(page, [](char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\t'; }));
    EXPECT_GT(count("\\u{202e}"), 0);
    EXPECT_EQ(count("…"), 0) << "all are shown whole";
    EXPECT_EQ(count("<p>Shown: ") + count(" came after the first "), 0) << "all are told";
    EXPECT_EQ(count(" and 3 more</summary>"), 1) << "one finding, and three in a group";
}

TEST(Report, TextHasOneLineForEachWhateverAFileIsCalled) {
    for (std::string const& text : texts) {
        std::string const lines = findingLine(text, findingOf("q"), false) + failureLine(text, {"limit", "q", {}});
        EXPECT_EQ(std::ranges::count(lines, '\n'), 2) << lines;
        EXPECT_TRUE(std::ranges::none_of(lines, [](char c) { return c >= 0 && c < ' ' && c != '\n'; })) << lines;
    }
}

TEST(ReportFile, HasItsNameWhenItIsComplete) {
    std::filesystem::create_directories(folder);
    std::string const path = (folder / "report").string();
    std::ofstream(path) << "before";
    auto const files = [] { return std::distance(std::filesystem::directory_iterator(folder), {}); };
    {
        ReportFile file(path);
        file.write("half");
        EXPECT_EQ(contentOf(path), "before");
        EXPECT_EQ(files(), 2);
    }
    EXPECT_EQ(contentOf(path), "before");
    EXPECT_EQ(files(), 1);
    {
        ReportFile file(path);
        file.write("whole");
        file.complete();
    }
    EXPECT_EQ(contentOf(path), "whole");
    EXPECT_EQ(files(), 1);
    std::error_code hasNoLinks;
    std::filesystem::create_symlink("elsewhere", folder / "link", hasNoLinks);
    if (!hasNoLinks) {
        ReportFile((folder / "link").string()).complete();
        EXPECT_EQ(files(), 3) << "a link stays";
    }
    EXPECT_THROW(ReportFile((folder / "missing" / "report").string()), std::runtime_error);
    std::filesystem::remove_all(folder);
}

} // namespace

} // namespace Command
