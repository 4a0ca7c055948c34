#include "cli/Commands.h"
#include "cli/NamedType.h"
#include "output/Json.h"
#include "text/Text.h"
#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/catalogue/grammar/GrammarText.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>
#include <span>
#include <tuple>
#include <vector>

namespace Command {

namespace {

// Whatever the case of either.
bool contains(std::string_view text, std::string_view part) {
    return Xml::toLower(text).find(Xml::toLower(part)) != std::string::npos;
}

std::string padded(std::string_view text, std::size_t width) {
    std::string cell(text);
    cell.resize(std::max(cell.size(), width) + 2, ' ');
    return cell;
}

std::string trimmedLine(std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

int nothingMatches(OutputFormat format) {
    tellFailure("no-match", "nothing matches", format == OutputFormat::Json);
    return 2;
}

struct ElementRow {
    std::string_view element;
    Xml::CatalogueEntry const* entry;
};

// A row for each element, sorted by attribute, then by element.
std::vector<ElementRow> rowsByElement() {
    std::vector<ElementRow> rows;
    for (Xml::CatalogueEntry const& entry : Xml::Catalogue::entries())
        for (std::string_view const element : entry.elements) rows.push_back({element, &entry});
    std::ranges::sort(rows, {}, [](ElementRow const& row) {
        return std::tuple(row.entry->vocabulary, row.entry->attribute, row.element);
    });
    return rows;
}

// The words that are legal and that the value type does not read.
std::vector<std::string_view> alsoLegal(Xml::CatalogueEntry const& entry) {
    std::vector<std::string_view> words;
    if (!entry.type()) return words;
    for (std::string_view const word : Xml::wordsIn(entry.grammar))
        if (Xml::judge(entry, toUtf16(word)).verdict == Xml::Verdict::PassedOver) words.push_back(word);
    return words;
}

std::string jsonLine(std::string_view element, Xml::CatalogueEntry const& entry) {
    Json line = {{"vocabulary", Xml::Catalogue::name(entry.vocabulary)},
                 {"element", element},
                 {"attribute", entry.attribute},
                 {"kind", Xml::Catalogue::name(entry.kind)},
                 {"type", entry.valueType},
                 {"defaultConstant", entry.defaultConstant},
                 {"inherited", entry.isInherited},
                 {"note", entry.note},
                 {"presentation", entry.isPresentation},
                 {"grammar", entry.grammar.text()},
                 {"expected", describeGrammar(entry.grammar, dialectOf(entry, Xml::Notation::Attribute))},
                 {"alsoLegal", alsoLegal(entry)},
                 {"initial", entry.initial}};
    for (Xml::CatalogueEntry const* const longhand : entry.longhands) line["longhands"].push_back(longhand->attribute);
    return toLine(line);
}

std::vector<std::string> inUtf8(std::span<std::u16string_view const> texts) {
    std::vector<std::string> all;
    for (std::u16string_view const text : texts) all.push_back(toUtf8(text));
    return all;
}

std::string textLine(std::string_view element, Xml::CatalogueEntry const& entry) {
    std::string_view const type = entry.valueType.empty() ? Xml::Catalogue::name(entry.kind) : entry.valueType;
    return trimmedLine(padded(Xml::Catalogue::name(entry.vocabulary), 3) + padded(element, 6) +
                       padded(entry.attribute, 28) + padded(type, 24) +
                       padded(entry.isInherited ? "inherited" : "", 9) + padded(entry.defaultConstant, 24) +
                       std::string(entry.grammar.text()));
}

} // namespace

int types(TypesOptions const& options) {
    bool isAny = false;
    for (Xml::AttributeType const& type : Xml::AttributeType::all()) {
        if (!contains(type.name(), options.name)) continue;
        isAny = true;
        if (options.format == OutputFormat::Json)
            print(toLine({{"type", type.name()},
                          {"public", type.isPublic()},
                          {"syntax", type.syntax().toUtf8()},
                          {"keywords", inUtf8(type.words())},
                          {"examples", inUtf8(type.examples())}}));
        else
            print(trimmedLine(padded(type.name(), 30) + type.syntax().toUtf8()));
    }
    flushOutput();
    return isAny ? 0 : nothingMatches(options.format);
}

int properties(PropertiesOptions const& options) {
    Xml::AttributeType const* const type = options.type ? findNamedType(*options.type, options.format) : nullptr;
    if (options.type && !type) return 2;
    bool isAny = false;
    for (auto const& [element, entry] : rowsByElement()) {
        if ((options.vocabulary && options.vocabulary != entry->vocabulary) || (type && type != entry->type()) ||
            !contains(entry->attribute, options.name))
            continue;
        isAny = true;
        print(options.format == OutputFormat::Json ? jsonLine(element, *entry) : textLine(element, *entry));
    }
    flushOutput();
    return isAny ? 0 : nothingMatches(options.format);
}

} // namespace Command
