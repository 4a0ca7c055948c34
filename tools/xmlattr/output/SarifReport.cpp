// SARIF 2.1.0, https://docs.oasis-open.org/sarif/sarif/v2.1.0/sarif-v2.1.0.html
#include "output/Json.h"
#include "output/Report.h"
#include "text/Text.h"
#include "xmlattr/core/Version.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>
#include <unordered_map>

namespace Command {

namespace {

// The path of a file as a reference by RFC 3986: relative where the path is.
std::string uriOf(std::string const& file) {
    std::string path = file;
#ifdef _WIN32
    std::ranges::replace(path, '\\', '/');
    bool const hasDrive = path.size() > 1 && path[1] == ':';
#else
    bool const hasDrive = false;
#endif
    std::string uri;
    if (path.starts_with('/') || hasDrive)
        uri = hasDrive ? "file:///" : "file://";
    else if (path.substr(0, path.find('/')).find(':') != std::string::npos)
        uri = "./"; // or the colon would end a scheme
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/:@!$&'()*+,;=";
    for (char const c : path) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
            continue;
        }
        constexpr std::string_view digits = "0123456789ABCDEF";
        auto const byte = static_cast<unsigned char>(c);
        uri += {'%', digits[byte >> 4], digits[byte & 0xF]};
    }
    return uri;
}

Json rules() {
    Json all = Json::array();
    for (FaultKind const& kind : faultKinds()) {
        std::string text(kind.explanation);
        text.pop_back(); // the last end of a line
        std::ranges::replace(text, '\n', ' ');
        all.push_back({{"id", kind.id},
                       {"shortDescription", {{"text", text.substr(0, std::min(text.find(". "), text.size() - 1) + 1)}}},
                       {"fullDescription", {{"text", text}}},
                       {"help", {{"text", text}}},
                       {"defaultConfiguration", {{"level", wordOf(kind.severity)}}}});
    }
    return all;
}

Json locationOf(std::string const& file, Json region) {
    Json physical = {{"artifactLocation", {{"uri", uriOf(file)}}}};
    if (!region.empty()) physical["region"] = std::move(region);
    return {{"physicalLocation", std::move(physical)}};
}

Json regionOf(Finding const& finding) {
    constexpr std::size_t longestSnippet = 1000;
    Excerpt const& source = finding.source;
    if (source.part.empty()) return {{"startLine", finding.place.line}, {"startColumn", finding.place.column}};
    Json region = {{"startLine", source.begin.line},
                   {"startColumn", source.begin.column},
                   {"endLine", source.end.line},
                   {"endColumn", source.end.column}};
    if (source.part.size() <= longestSnippet) region["snippet"] = {{"text", source.part}};
    return region;
}

// Keeps nothing but what comes after the results.
class SarifReporter final : public Reporter {
public:
    SarifReporter(ReportFile& out, ReportSettings const& settings) : out(out), settings(settings) {
        Json const driver = {{"name", "xmlattr"},
                             {"version", Core::version()},
                             {"semanticVersion", Core::version()},
                             {"rules", rules()}};
        out.write(R"({"$schema":"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/)"
                  R"(sarif-schema-2.1.0.json","version":"2.1.0","runs":[{"tool":)");
        out.write(toText({{"driver", driver}}) + R"(,"columnKind":"unicodeCodePoints","results":[)");
    }

    void finding(std::string const& file, Finding const& finding) override { write(resultOf(file, finding)); }

    void group(FindingGroup const& group) override {
        Json result = resultOf(group.places.front().file, group.finding);
        result["occurrenceCount"] = group.count;
        for (auto const& [file, place] : std::span(group.places).subspan(1))
            result["locations"].push_back(locationOf(file, {{"startLine", place.line}, {"startColumn", place.column}}));
        write(result);
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        Json region;
        if (failure.place) region = {{"startLine", failure.place->line}, {"startColumn", failure.place->column}};
        Json locations = Json::array();
        if (!file.empty()) locations.push_back(locationOf(file, std::move(region)));
        notifications.push_back({{"level", "error"},
                                 {"descriptor", {{"id", failure.id}}},
                                 {"message", {{"text", failure.message}}},
                                 {"locations", std::move(locations)}});
    }

    void finish(Counts const& counts, std::uint64_t shown) override {
        Json const invocation = {{"executionSuccessful", notifications.empty()},
                                 {"toolExecutionNotifications", std::move(notifications)}};
        out.write("\n],\"invocations\":[" + toText(invocation) + "]}]}\n");
        if (!settings.isQuiet) printError(summaryLine(counts, shown));
    }

private:
    void write(Json const& result) {
        out.write((isFirst ? "\n" : ",\n") + toText(result));
        isFirst = false;
    }

    Json resultOf(std::string const& file, Finding const& finding) {
        FaultKind const& kind = kindOf(finding.fault);
        Json result = {{"ruleId", kind.id},
                       {"ruleIndex", &kind - faultKinds().data()},
                       {"level", wordOf(kind.severity)},
                       {"message", {{"text", finding.message()}}},
                       {"locations", {locationOf(file, regionOf(finding))}},
                       {"partialFingerprints", {{"findingHash/v1", fingerprint(file, finding)}}}};
        if (settings.hasBaseline) result["baselineState"] = "new";
        return result;
    }

    // The same when lines move, and when the file has other findings more or less: of the text, and of how many like
    // it stand before it.
    std::string fingerprint(std::string const& file, Finding const& finding) {
        if (file != lastFile) {
            lastFile = file;
            alike.clear();
        }
        constexpr std::string_view end = "\xFF"; // which no text has
        std::uint64_t hash = hashOf("");
        for (std::string_view const text : finding.identity()) hash = hashOf(end, hashOf(text, hash));
        hash = hashOf(end, hashOf(std::to_string(alike[hash]++), hash));
        std::array<char, 16> digits;
        return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16).ptr};
    }

    ReportFile& out;
    ReportSettings settings;
    bool isFirst = true;
    Json notifications = Json::array();
    std::string lastFile;
    std::unordered_map<std::uint64_t, std::uint64_t> alike; // findings of the file, by hash
};

} // namespace

std::unique_ptr<Reporter> makeSarifReporter(ReportFile& out, ReportSettings const& settings) {
    return std::make_unique<SarifReporter>(out, settings);
}

} // namespace Command
