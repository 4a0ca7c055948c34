#include "selecting/Baseline.h"

#include "bytes/TextFile.h"
#include "output/Json.h"
#include "output/ReportFile.h"
#include "text/Path.h"
#include "text/Text.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace Command {

namespace {

namespace fs = std::filesystem;

constexpr int version = 1;

// A long text by its beginning and a hash of the whole.
std::string recorded(std::string_view text) {
    constexpr std::size_t longest = 120, shown = 60;
    if (text.size() <= longest) return std::string(text);
    std::size_t cut = shown;
    while ((static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80) --cut; // inside of a code point
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hashOf(text)));
    return std::string(text.substr(0, cut)) + "... " + digits;
}

} // namespace

Baseline::Baseline(std::string file) : file(std::move(file)) {}

std::optional<std::string> Baseline::read() {
    std::ifstream opened;
    if (auto const problem = openText(file, opened)) return file + ": the baseline cannot be read: " + *problem;
    try {
        Json const content = Json::parse(opened);
        if (content.at("baseline") != version) return file + ": a baseline of another version; write it anew";
        std::map<std::string, Document> found;
        bool isBaseline = content.at("documents").is_object();
        for (auto const& [name, entries] : content.at("documents").items())
            for (Json const& entry : entries) {
                Json const& count = entry.at("count");
                isBaseline = isBaseline && count.is_number_unsigned();
                if (!isBaseline) break;
                found[name].counts[{entry.at("id"), entry.at("element"), entry.at("attribute"), entry.at("text")}] +=
                    count.get<std::uint64_t>();
            }
        if (isBaseline) {
            documents = std::move(found);
            return std::nullopt;
        }
    } catch (Json::exception const&) { // no more is known of it
    }
    return file + ": no baseline; --write-baseline writes one";
}

void Baseline::write() const {
    ReportFile out(file);
    out.write("{\"baseline\":" + std::to_string(version) + ",\"documents\":{");
    std::string_view separator = "\n";
    for (auto const& [name, document] : documents) {
        out.write(std::string(separator) + toText(name) + ":[");
        separator = "\n";
        for (auto const& [key, count] : document.counts) {
            auto const& [id, element, attribute, text] = key;
            out.write(
                std::string(separator) +
                toText({{"id", id}, {"element", element}, {"attribute", attribute}, {"text", text}, {"count", count}}));
            separator = ",\n";
        }
        out.write("]");
        separator = ",\n";
    }
    out.write("}}\n");
    out.complete();
}

void Baseline::add(std::string const& document, Finding const& finding) {
    ++documents[nameOf(document)].counts[keyOf(finding)];
}

bool Baseline::take(std::string const& document, Finding const& finding) {
    auto const found = documents.find(nameOf(document));
    if (found == documents.end()) return false;
    auto const entry = found->second.counts.find(keyOf(finding));
    if (entry == found->second.counts.end() || entry->second == 0) return false;
    --entry->second;
    return true;
}

void Baseline::finish(std::string const& document) {
    auto const found = documents.find(nameOf(document));
    if (found != documents.end()) found->second.isFinished = true;
}

std::vector<std::string> Baseline::gone() const {
    std::vector<std::string> lines;
    for (auto const& [name, document] : documents) {
        std::error_code ignored;
        fs::path const path = pathOf(file).parent_path() / pathOf(name);
        if (!document.isFinished && fs::exists(path, ignored)) continue;
        for (auto const& [key, count] : document.counts) {
            if (count == 0) continue;
            auto const& [id, element, attribute, text] = key;
            std::string line = withoutControls(name) + ": ";
            if (!attribute.empty()) line.append(attribute).append("=").append(inQuotes(printable(text))).append(" on ");
            line.append(printable(element)).append(" [").append(id).append("]");
            if (count > 1) line += ", " + std::to_string(count) + " times";
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

Baseline::Key Baseline::keyOf(Finding const& finding) {
    auto const [id, element, attribute, text] = finding.identity();
    return {std::string(id), std::string(element), std::string(attribute), recorded(text)};
}

std::string Baseline::nameOf(std::string const& document) const {
    std::error_code ignored;
    fs::path const folder = fs::absolute(pathOf(file), ignored).lexically_normal().parent_path();
    fs::path const path = fs::absolute(pathOf(document), ignored).lexically_normal();
    fs::path const fromFolder = path.lexically_relative(folder); // empty on another drive
    std::string const name = (fromFolder.empty() ? path : fromFolder).generic_string();
    return toUtf8(toUtf16(name)); // JSON has nothing else than UTF-8
}

} // namespace Command
