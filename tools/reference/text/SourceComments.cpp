#include "tools/reference/text/SourceComments.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <stdexcept>

namespace Reference {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view mark = "Intended: ";

std::string trimmed(std::string_view text) {
    std::size_t const start = text.find_first_not_of(' ');
    return start == std::string_view::npos ? ""
                                           : std::string(text.substr(start, text.find_last_not_of(' ') - start + 1));
}

// "BorderWidth" of "Xml::BorderWidth"; a list keeps its whole name, since its item has one too.
std::string bareName(std::string const& type) {
    if (type.find('<') != std::string::npos) return type;
    return type.substr(type.rfind(':') + 1);
}

// What follows the mark, up to the end of the comment, in one line.
std::string oddityIn(Comment const& comment) {
    std::string all;
    for (std::string const& line : comment) all.append(all.empty() ? "" : " ").append(trimmed(line));
    std::size_t const at = all.find(mark);
    return at == std::string::npos ? "" : all.substr(at + mark.size());
}

// Whether the line begins something that belongs to no value type unless it names one.
bool beginsOther(std::string_view line, bool isHeader) {
    if (!isHeader) return !line.empty() && line[0] != ' ' && line.ends_with('{');
    for (std::string_view const start : {"class ", "struct ", "enum ", "inline ", "constexpr ", "template <class "})
        if (line.starts_with(start)) return true;
    return false;
}

} // namespace

SourceComments::SourceComments(fs::path const& sources) {
    fs::path const folder = sources / "xmlattr";
    readFamilies(folder / "ValueTypes.inc");
    std::vector<fs::path> files;
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(folder)) {
        fs::path const within = entry.path().lexically_relative(folder);
        if (*within.begin() != "catalogue" && (within.extension() == ".h" || within.extension() == ".cpp"))
            files.push_back(within);
    }
    std::ranges::sort(files);
    for (fs::path const& file : files) readSource(folder / file, "xmlattr/" + file.generic_string());
}

std::vector<Comment> const& SourceComments::above(std::string_view type) const {
    static std::vector<Comment> const none;
    auto const found = comments.find(type);
    return found == comments.end() ? none : found->second;
}

std::vector<Oddity> const& SourceComments::oddities(std::string_view type) const {
    static std::vector<Oddity> const none;
    auto const found = odd.find(type);
    return found == odd.end() ? none : found->second;
}

void SourceComments::readFamilies(fs::path const& list) {
    std::ifstream in(list);
    if (!in) throw std::runtime_error("cannot read " + list.string());
    std::regex const row(R"(XMLATTR_\w+_VALUE\((.*)\))");
    std::smatch found;
    for (std::string line, comment; std::getline(in, line);) {
        if (line.starts_with("// ")) comment = line.substr(3);
        if (line.starts_with("#include") && !comment.empty()) {
            allFamilies.push_back({comment, {}});
            comment.clear();
        }
        if (!std::regex_match(line, found, row)) continue;
        allFamilies.back().types.push_back(found[1]);
        typesByWord[bareName(found[1])] = found[1];
    }
}

// The value type that a line of a header declares, or whose traits or words it begins.
std::string SourceComments::typeDeclaredBy(std::string_view line) const {
    static std::regex const declaration(R"(^\s*(?:enum class|class|struct) (?:XMLATTR_API )?(\w+) .*)");
    static std::regex const traits(R"(^template <> struct (?:XMLATTR_API )?(?:Keywords|AttributeTraits)<(.+?)> .*)");
    std::string const text(line);
    std::smatch found;
    if (!std::regex_match(text, found, declaration) && !std::regex_match(text, found, traits)) return {};
    auto const type = typesByWord.find(bareName(found[1]));
    return type == typesByWord.end() ? "" : type->second;
}

// The value type that the function of a source belongs to.
std::string SourceComments::typeDefinedBy(std::string_view line) const {
    if (line.empty() || line[0] == ' ') return {};
    std::string const text(line);
    static std::regex const word(R"((?:AttributeTraits<(.+?)>::|(\w+)::)\w+\()");
    std::smatch found;
    if (!std::regex_search(text, found, word)) return {};
    auto const type = typesByWord.find(found[1].matched ? found[1].str() : found[2].str());
    return type == typesByWord.end() ? "" : type->second;
}

void SourceComments::readSource(fs::path const& file, std::string const& name) {
    std::ifstream in(file);
    bool const isHeader = file.extension() == ".h";
    std::string current;
    Comment comment;
    for (std::string line; std::getline(in, line);) {
        std::string const text = trimmed(line);
        if (text.starts_with("// clang-format") || text.starts_with("// NOLINT")) continue;
        if (text.starts_with("//")) {
            comment.push_back(text.size() > 3 ? text.substr(3) : "");
            continue;
        }
        // Namespaces have no indentation, so that each definition begins in the first column.
        std::string const declared = isHeader ? typeDeclaredBy(line) : typeDefinedBy(line);
        if (!declared.empty() || beginsOther(line, isHeader)) current = declared;
        if (isHeader && !declared.empty()) {
            if (!comment.empty()) comments[declared].push_back(comment);
        } else if (std::string const oddity = oddityIn(comment); !oddity.empty()) {
            odd[current].push_back({name, oddity, ""});
        }
        comment.clear();
        if (std::size_t const at = line.find("// " + std::string(mark)); at != std::string::npos)
            odd[current].push_back({name, line.substr(at + 3 + mark.size()), trimmed(line.substr(0, at))});
    }
}

} // namespace Reference
