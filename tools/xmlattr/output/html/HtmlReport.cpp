#include "output/Report.h"
#include "output/html/Markup.h"
#include "output/html/Readings.h"
#include "text/Text.h"
#include "xmlattr/core/Version.h"

#include <algorithm>
#include <array>
#include <map>
#include <unordered_map>
#include <vector>

namespace Command {

namespace {

// A source beside this file, and the hash by which the page allows it and nothing else.
struct Embedded {
    std::string_view text, hash;
};

constexpr Embedded style =
#include "report.css.inc"
    ;
constexpr Embedded script =
#include "report.js.inc"
    ;

// What a page can hold and a person read; the rest is counted.
constexpr std::size_t mostEntries = 10'000, mostPlaces = 12, mostFiles = 5'000, mostLinks = 50'000;
constexpr std::size_t longestText = 240; // code points

std::string_view severityOf(Fault fault) {
    return wordOf(kindOf(fault).severity);
}

std::string placeText(Place place) {
    return std::to_string(place.line) + ":" + std::to_string(place.column);
}

double shareOf(std::uint64_t part, std::uint64_t whole) {
    return whole > 0 ? static_cast<double>(part) / static_cast<double>(whole) : 0;
}

// Equal findings are one entry: the same text on the same attribute of the same element.
struct Entry {
    Fault fault{};
    std::string title, body; // markup
    struct Where {
        std::size_t file;
        Place place;
    };
    std::vector<Where> places; // the first ones
    std::uint64_t count = 0;
};

struct File {
    std::string name;
    std::map<Severity, std::uint64_t> counts{};
    struct Link {
        std::size_t entry;
        Place place;
    };
    std::vector<Link> links{};
};

// Where the part of the value that is wrong stands in what the document has; npos where that is not certain.
std::size_t partInSource(Finding const& finding) {
    std::string const& value = finding.source.part;
    std::string const& part = finding.part;
    if (part.empty() || part == value) return std::string::npos;
    // What is changed is the part, or stands before it.
    if (!finding.replacement.empty() && value.compare(std::min(finding.offset, value.size()), part.size(), part) == 0)
        return finding.offset;
    std::size_t const first = value.find(part);
    return first == value.rfind(part) ? first : std::string::npos;
}

// The value in its line, and in it the part that is wrong.
std::string sourceLine(Finding const& finding) {
    Excerpt const& source = finding.source;
    if (source.begin == source.end) return {};
    std::size_t const at = partInSource(finding);
    std::string marked;
    if (at == std::string::npos) {
        marked = escaped(cutAtEnd(source.part, longestText));
    } else {
        std::string_view const value = source.part;
        marked = escaped(cutAtStart(value.substr(0, at), longestText / 2)) + "<strong>" +
                 escaped(cutAtEnd(finding.part, longestText)) + "</strong>" +
                 escaped(cutAtEnd(value.substr(at + finding.part.size()), longestText / 2));
    }
    constexpr std::size_t context = 80;
    return "<pre>" + escaped(cutAtStart(source.before, context)) + "<mark>" + marked + "</mark>" +
           escaped(cutAtEnd(source.after, context)) + "</pre>";
}

std::string bodyOf(Finding const& finding) {
    std::string out = sourceLine(finding);
    std::vector<Reading> const readings = readingsOf(finding);
    if (readings.empty()) return out;
    out += "<div class='readings'>";
    for (Reading const& reading : readings) {
        out.append(reading.isShape ? "<figure class='tall'>" : "<figure>")
            .append("<figcaption>")
            .append(reading.caption)
            .append("</figcaption><div class='picture'>");
        if (!reading.text.empty()) out += "<code>" + escaped(inQuotes(cutAtEnd(reading.text, longestText))) + "</code>";
        out += reading.picture + "</div></figure>";
    }
    return out + "</div>";
}

// What stands between backticks is code.
std::string withCode(std::string text) {
    bool isOpen = false;
    for (std::size_t at = 0; (at = text.find('`', at)) != std::string::npos; isOpen = !isOpen)
        text.replace(at, 1, isOpen ? "</code>" : "<code>");
    return text;
}

class HtmlReporter final : public Reporter {
public:
    HtmlReporter(ReportFile& out, ReportSettings const& settings) : out(out), settings(settings) {}

    void finding(std::string const& file, Finding const& finding) override {
        Entry* const entry = entryFor(finding, 1);
        File& in = fileFor(file);
        ++in.counts[kindOf(finding.fault).severity];
        if (!entry) return;
        if (entry->places.size() < mostPlaces) entry->places.push_back({files.size() - 1, finding.place});
        if (links == mostLinks) return;
        ++links;
        in.links.push_back({static_cast<std::size_t>(entry - entries.data()), finding.place});
    }

    void group(FindingGroup const& group) override {
        isGrouped = true;
        if (Entry* const entry = entryFor(group.finding, group.count)) {
            for (auto const& [file, place] : group.places) {
                fileFor(file);
                entry->places.push_back({files.size() - 1, place});
            }
        }
    }

    void failure(std::string const& file, XmlFailure const& failure) override {
        failures += "<tr><th scope='row'>" + escaped(file) + "</th><td class='place'>" +
                    (failure.place ? placeText(*failure.place) : "") + "</td><td>" + escaped(failure.message) +
                    "</td></tr>\n";
    }

    void finish(Counts const& counts, std::uint64_t shown) override {
        writeHead();
        writeSummary(counts);
        writeTools(counts);
        writeKinds();
        writeFiles();
        out.write("</main>\n<footer><p>xmlattr " + escaped(Core::version()) + "</p></footer>\n<script>");
        out.write(script.text);
        out.write("</script>\n</body>\n</html>\n");
        if (!settings.isQuiet) printError(summaryLine(counts, shown));
    }

private:
    static std::string keyOf(Finding const& finding) {
        constexpr std::size_t longest = 1024; // what is kept of a text; of a longer one its hash as well
        std::string key;
        for (std::string_view const text : finding.identity()) {
            key.append(1, '\0').append(text.substr(0, longest));
            if (text.size() > longest) key += std::to_string(std::hash<std::string_view>()(text));
        }
        return key;
    }

    // Null for one that is counted only.
    Entry* entryFor(Finding const& finding, std::uint64_t count) {
        countByFault[finding.fault] += count;
        std::string const key = keyOf(finding);
        auto found = entryOf.find(key);
        if (found == entryOf.end()) {
            if (entries.size() == mostEntries) {
                untold += count;
                return nullptr;
            }
            found = entryOf.emplace(key, entries.size()).first;
            entries.push_back({finding.fault, escaped(finding.message()), bodyOf(finding), {}});
        }
        Entry& entry = entries[found->second];
        entry.count += count;
        told += count;
        return &entry;
    }

    // The last of the files.
    File& fileFor(std::string const& name) {
        if (files.empty() || files.back().name != name) files.push_back({name});
        return files.back();
    }

    void writeHead() {
        out.write("<!DOCTYPE html>\n<html lang='en'>\n<head>\n<meta charset='utf-8'>\n"
                  R"(<meta http-equiv="Content-Security-Policy" content="default-src 'none'; base-uri 'none'; )"
                  "form-action 'none'; style-src '");
        out.write(style.hash);
        out.write("'; script-src '");
        out.write(script.hash);
        out.write("'\">\n<meta name='viewport' content='width=device-width, initial-scale=1'>\n"
                  "<title>Attributes that are not read as they are written</title>\n<style>");
        out.write(style.text);
        out.write("</style>\n</head>\n<body>\n<a class='skip' href='#kinds'>To the findings</a>\n");
    }

    void writeSummary(Counts const& counts) {
        std::string text =
            "<header>\n<h1>Attributes that are not read as they are written</h1>\n<p><span class='error'>" +
            counted(counts.errors, "error") + "</span> and <span class='warning'>" +
            counted(counts.warnings, "warning") + "</span> in " + counted(counts.files, "file") + " with " +
            counted(counts.attributes, "attribute");
        if (counts.declarations > 0) text += " and " + counted(counts.declarations, "style declaration");
        text += ".</p>\n";
        if (counts.ignored > 0) text += "<p>Left out: " + counted(counts.ignored, "finding") + ".</p>\n";
        if (counts.known > 0) text += "<p>In the baseline: " + counted(counts.known, "finding") + ".</p>\n";
        if (told + untold < counts.findings()) text += "<p>Shown: " + counted(told + untold, "finding") + ".</p>\n";
        if (untold > 0)
            text += "<p>" + counted(untold, "finding") + " came after the first " + grouped(mostEntries) +
                    " different ones and are counted only.</p>\n";
        if (hasFiles()) text += "<nav><a href='#kinds'>By kind</a> <a href='#files'>By file</a></nav>\n";
        text += "</header>\n<main>\n<div class='summary'>\n";
        out.write(text + classTable(counts) + kindTable() + "</div>\n");
        if (!failures.empty())
            out.write("<h2>Not read to the end</h2>\n<table><thead><tr><th scope='col'>File</th><th scope='col'>"
                      "Place</th><th scope='col'>Reason</th></tr></thead><tbody>\n" +
                      failures + "</tbody></table>\n");
    }

    static std::string classTable(Counts const& counts) {
        struct Row {
            std::string_view name;
            std::uint64_t count;
            std::string_view color;
        };
        std::array<Row, 7> const rows{{{"read as written", counts.read, "fine"},
                                       {"passed over", counts.passedOver, "quiet"},
                                       {"free text", counts.freeText, "quiet"},
                                       {"misread", counts.misread, "warning"},
                                       {"lenient", counts.lenient, "warning"},
                                       {"refused", counts.refused, "error"},
                                       {"not covered", counts.notCovered(), "quiet"}}};
        std::uint64_t all = 0;
        for (Row const& row : rows) all += row.count;
        std::string text = tableHead("Texts of attributes", "Class", "Texts");
        for (Row const& row : rows)
            text += tableRow(std::string(row.name), row.count, bar(shareOf(row.count, all), row.color));
        return text + "</tbody></table>\n";
    }

    std::string kindTable() const {
        std::uint64_t all = 0;
        for (auto const& [fault, count] : countByFault) all += count;
        std::string text = tableHead("Findings", "Id", "Findings");
        for (auto const& [fault, count] : countByFault) {
            std::string_view const id = kindOf(fault).id;
            std::string link("<a href='#");
            link.append(id).append("'>").append(id).append("</a>");
            text += tableRow(link, count, bar(shareOf(count, all), severityOf(fault)));
        }
        return text + "</tbody></table>\n";
    }

    static std::string tableHead(std::string const& caption, std::string const& name, std::string const& count) {
        return "<table><caption>" + caption + "</caption><thead><tr><th scope='col'>" + name +
               "</th><th scope='col' class='number'>" + count +
               "</th><th scope='col' class='share'>Share</th></tr></thead><tbody>\n";
    }

    static std::string tableRow(std::string const& name, std::uint64_t count, std::string const& share) {
        return "<tr><th scope='row'>" + name + "</th><td class='number'>" + grouped(count) + "</td><td class='share'>" +
               share + "</td></tr>\n";
    }

    // Hidden until the script works them.
    void writeTools(Counts const& counts) {
        out.write("<div class='tools' role='search' hidden>\n<label class='grow'>Filter <input type='search' "
                  "id='filter' placeholder='words of a finding, a file or a kind' aria-keyshortcuts='/'></label>\n"
                  "<label><input type='checkbox' data-severity='error' checked> Errors</label>\n"
                  "<label><input type='checkbox' data-severity='warning' checked> Warnings</label>\n" +
                  std::string(counts.notes > 0
                                  ? "<label><input type='checkbox' data-severity='note' checked> Notes</label>\n"
                                  : "") +
                  "<button type='button' id='open'>Open all</button>\n"
                  "<button type='button' id='close'>Close all</button>\n"
                  "<output aria-live='polite' data-all='" +
                  grouped(told) + "'></output>\n</div>\n");
    }

    void writeKinds() {
        out.write("<section id='kinds'>\n<h2>By kind</h2>\n");
        if (entries.empty()) out.write("<p>Nothing was found.</p>\n");
        for (FaultKind const& kind : faultKinds()) {
            auto const found = countByFault.find(kind.fault);
            if (found == countByFault.end()) continue;
            std::string_view const severity = severityOf(kind.fault);
            std::string text("<details class='group' id='");
            text.append(kind.id).append("' open><summary><h3>").append(kind.id).append("</h3><span class='");
            text.append(severity)
                .append("'>")
                .append(counted(found->second, severity))
                .append("</span></summary>\n<p>");
            out.write(text.append(withCode(escaped(kind.explanation))).append("</p>\n"));
            for (std::size_t i = 0; i < entries.size(); ++i)
                if (entries[i].fault == kind.fault) writeEntry(i);
            out.write("</details>\n");
        }
        out.write("</section>\n");
    }

    void writeEntry(std::size_t index) {
        Entry const& entry = entries[index];
        out.write("<article id='f" + std::to_string(index) + "' data-severity='" +
                  std::string(severityOf(entry.fault)) + "' data-count='" + std::to_string(entry.count) +
                  "'><div class='head'><h4>" + entry.title + "</h4>" + whereIs(entry) + "</div>" + entry.body +
                  "</article>\n");
    }

    // The first place, which opens to show the others.
    std::string whereIs(Entry const& entry) const {
        auto const textOf = [&](Entry::Where const& where) {
            return escaped(files[where.file].name) + ":" + placeText(where.place);
        };
        std::string const first = textOf(entry.places.front());
        if (entry.count == 1) return "<p class='place'>" + first + "</p>";
        std::string text =
            "<details class='place'><summary>" + first + " and " + grouped(entry.count - 1) + " more</summary><ul>";
        for (std::size_t i = 1; i < entry.places.size(); ++i) text += "<li>" + textOf(entry.places[i]) + "</li>";
        if (entry.count > entry.places.size())
            text += "<li>and " + grouped(entry.count - entry.places.size()) + " more</li>";
        return text + "</ul></details>";
    }

    // Groups name but a few of their files.
    bool hasFiles() const { return !files.empty() && !isGrouped; }

    void writeFiles() {
        if (!hasFiles()) return;
        out.write("<section id='files'>\n<h2>By file</h2>\n");
        if (files.size() > mostFiles)
            out.write("<p>The first " + grouped(mostFiles) + " of " + counted(files.size(), "file") +
                      " with findings.</p>\n");
        for (std::size_t i = 0; i < std::min(files.size(), mostFiles); ++i) {
            File const& file = files[i];
            std::string text = "<details class='group'><summary><h3>" + escaped(file.name) + "</h3><span class='soft'>";
            std::string_view separator;
            for (auto const& [severity, count] : file.counts) {
                text.append(separator) += counted(count, wordOf(severity));
                separator = ", ";
            }
            text += "</span></summary>\n<ol>";
            for (File::Link const& link : file.links)
                text += "<li><a class='place' href='#f" + std::to_string(link.entry) + "'>" + placeText(link.place) +
                        "</a> " + entries[link.entry].title + "</li>\n";
            out.write(text + "</ol></details>\n");
        }
        out.write("</section>\n");
    }

    ReportFile& out;
    ReportSettings settings;
    std::vector<Entry> entries; // in the order in which they came
    std::unordered_map<std::string, std::size_t> entryOf;
    std::vector<File> files; // with findings
    std::string failures;    // rows of their table
    FaultCounts countByFault;
    std::uint64_t told = 0, untold = 0; // the latter came after the last entry that was kept
    bool isGrouped = false;
    std::size_t links = 0;
};

} // namespace

std::unique_ptr<Reporter> makeHtmlReporter(ReportFile& out, ReportSettings const& settings) {
    return std::make_unique<HtmlReporter>(out, settings);
}

} // namespace Command
