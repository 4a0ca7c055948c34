#include "selecting/Configuration.h"

#include "bytes/TextFile.h"
#include "selecting/Glob.h"
#include "text/Path.h"
#include "text/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

#define TOML_HEADER_ONLY 1
#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#include <toml++/toml.h>

namespace Command {

namespace {

namespace fs = std::filesystem;

fs::path absolute(std::string const& path) {
    std::error_code ignored;
    return fs::absolute(pathOf(path), ignored).lexically_normal();
}

// As the document is named, with what ends it.
std::string_view folderIn(std::string_view document) {
    constexpr std::string_view ends = fs::path::preferred_separator == '/' ? "/" : "/\\:";
    return document.substr(0, document.find_last_of(ends) + 1);
}

} // namespace

void RunSettings::complete(RunSettings const& others) {
    auto const take = [](auto& own, auto const& other) {
        if (!own) own = other;
    };
    take(format, others.format);
    take(color, others.color);
    take(baseline, others.baseline);
    take(isGrouped, others.isGrouped);
    take(isQuiet, others.isQuiet);
    take(maxFindings, others.maxFindings);
    take(jobs, others.jobs);
}

// Reads one file up to the first thing that is wrong.
class Configuration::Reader {
public:
    Reader(Configuration& configuration, std::string const& file) : configuration(configuration), file(file) {}

    std::optional<std::string> problem;

    void read(toml::table const& table) {
        for (auto const& [key, value] : table)
            if (!problem && !readFileOption(key.str(), value, configuration.settings) &&
                !readRunOption(key.str(), value))
                refuse(key.source(), "no option is called " + inQuotes(printable(key.str())));
    }

    void refuse(toml::source_region const& where, std::string const& why) {
        if (problem) return;
        problem = file + ":" + std::to_string(where.begin.line) + ":" + std::to_string(where.begin.column) + ": " + why;
    }

private:
    bool readFileOption(std::string_view key, toml::node const& value, FileSettings& settings) {
        if (key == "strict")
            readFlag(value, settings.isStrict);
        else if (key == "ignore")
            readWords(value, [&](std::string_view name) { return settings.filter.ignore(name); });
        else if (key == "only")
            readWords(value, [&](std::string_view name) { return settings.filter.only(name); });
        else if (key == "show")
            readWords(value, [&](std::string_view word) { return settings.shown.add(word); });
        else
            return false;
        return true;
    }

    bool readRunOption(std::string_view key, toml::node const& value) {
        RunSettings& run = configuration.run;
        if (key == "format")
            readFormat(value, run.format);
        else if (key == "color")
            readChoice<ColorMode>(
                value, run.color,
                {{"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}});
        else if (key == "baseline") {
            readWord(value, run.baseline);
            if (run.baseline) run.baseline = (pathOf(configuration.folder) / pathOf(*run.baseline)).string();
        } else if (key == "group")
            readFlag(value, run.isGrouped);
        else if (key == "quiet")
            readFlag(value, run.isQuiet);
        else if (key == "max-findings")
            readCount(value, run.maxFindings);
        else if (key == "jobs")
            readCount(value, run.jobs);
        else if (key == "paths")
            readPaths(value);
        else
            return false;
        return true;
    }

    void readPaths(toml::node const& value) {
        toml::array const* const tables = value.as_array();
        if (!tables || !tables->is_array_of_tables()) return refuse(value.source(), "paths is a table: [[paths]]");
        for (toml::node const& node : *tables) {
            Paths& paths = configuration.paths.emplace_back();
            for (auto const& [key, option] : *node.as_table()) {
                if (key.str() == "files")
                    readWords(option, [&](std::string_view pattern) -> std::optional<std::string> {
                        paths.patterns.emplace_back(pattern);
                        return std::nullopt;
                    });
                else if (!readFileOption(key.str(), option, paths.settings))
                    refuse(key.source(), "no option of [[paths]] is called " + inQuotes(printable(key.str())) +
                                             "; there are files, strict, ignore, only and show");
            }
            if (paths.patterns.empty()) refuse(node.source(), "[[paths]] without files");
        }
    }

    void readFlag(toml::node const& value, std::optional<bool>& flag) {
        flag = value.value_exact<bool>();
        if (!flag) refuse(value.source(), "expected true or false");
    }

    void readCount(toml::node const& value, std::optional<std::uint64_t>& count) {
        std::optional<std::int64_t> const number = value.value_exact<std::int64_t>();
        if (!number || *number < 0) return refuse(value.source(), "expected a whole number");
        count = static_cast<std::uint64_t>(*number);
    }

    void readFormat(toml::node const& value, std::optional<ReportFormat const*>& format) {
        std::vector<std::pair<std::string, ReportFormat const*>> choices;
        for (ReportFormat const& each : reportFormats()) choices.emplace_back(each.word, &each);
        readChoice(value, format, choices);
    }

    void readWord(toml::node const& value, std::optional<std::string>& word) {
        word = value.value_exact<std::string>();
        if (!word) refuse(value.source(), "expected a text in quotation marks");
    }

    template <class T>
    void readChoice(toml::node const& value, std::optional<T>& chosen,
                    std::vector<std::pair<std::string, T>> const& choices) {
        std::optional<std::string> const given = value.value_exact<std::string>();
        std::vector<std::string> words;
        for (auto const& [word, choice] : choices) {
            if (given == word) chosen = choice;
            words.push_back(inQuotes(word));
        }
        if (!chosen) refuse(value.source(), "expected " + joinWith(words, "or"));
    }

    // A text, or a list of texts.
    template <class Take> void readWords(toml::node const& value, Take take) {
        auto const takeOne = [&](toml::node const& node) {
            std::optional<std::string> word;
            readWord(node, word);
            if (!word) return;
            if (auto const wrong = take(*word)) refuse(node.source(), *wrong);
        };
        toml::array const* const list = value.as_array();
        if (!list) return takeOne(value);
        for (toml::node const& node : *list) takeOne(node);
    }

    Configuration& configuration;
    std::string const& file;
};

std::optional<std::string> Configuration::read(std::string const& file) {
    std::ifstream opened;
    if (auto const problem = openText(file, opened)) return file + ": the configuration cannot be read: " + *problem;
    folder = absolute(file).parent_path().string();
    Reader reader(*this, file);
    toml::parse_result const result = toml::parse(opened);
    if (result)
        reader.read(result.table());
    else
        reader.refuse(result.error().source(), std::string(result.error().description()));
    return reader.problem;
}

void Configuration::addSettings(std::string const& document, std::vector<FileSettings const*>& found) const {
    found.push_back(&settings);
    if (paths.empty()) return;
    std::string const path = absolute(document).lexically_relative(pathOf(folder)).generic_string();
    for (Paths const& some : paths)
        if (std::ranges::any_of(some.patterns, [&](std::string const& pattern) { return matchesGlob(pattern, path); }))
            found.push_back(&some.settings);
}

std::optional<std::string> Configurations::use(std::string const& file) {
    return named.emplace().read(file);
}

std::optional<std::string> Configurations::find(std::string const& document, Configuration const*& configuration) {
    configuration = named ? &*named : nullptr;
    if (named) return std::nullopt;
    // So that the next document beside it is found at once.
    std::string_view const beside = folderIn(document);
    if (auto const known = folders.find(beside); known != folders.end()) {
        configuration = known->second;
        return std::nullopt;
    }
    std::vector<std::string> visited = {std::string(beside)};
    for (fs::path folder = absolute(document).parent_path();; folder = folder.parent_path()) {
        if (auto const known = folders.find(folder.string()); known != folders.end()) {
            configuration = known->second;
            break;
        }
        visited.push_back(folder.string());
        fs::path const file = folder / "xmlattr.toml";
        std::error_code ignored;
        if (fs::is_regular_file(file, ignored)) {
            Configuration& found = files[folder.string()];
            if (auto problem = found.read(file.string())) return problem;
            configuration = &found;
            break;
        }
        if (folder == folder.parent_path()) break;
    }
    for (std::string const& folder : visited) folders[folder] = configuration;
    return std::nullopt;
}

} // namespace Command
