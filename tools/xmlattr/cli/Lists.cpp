#include "cli/Commands.h"
#include "cli/NamedType.h"
#include "text/Text.h"

#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/catalogue/Catalogue.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <tuple>
#include <vector>

namespace Command {

namespace {

using Json = nlohmann::ordered_json;

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

int nothingMatches() {
    printError("xmlattr: nothing matches\n");
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

std::string jsonLine(std::string_view element, Xml::CatalogueEntry const& entry) {
    Json line = {{"vocabulary", Xml::Catalogue::name(entry.vocabulary)},
                 {"element", element},
                 {"attribute", entry.attribute},
                 {"kind", Xml::Catalogue::name(entry.kind)},
                 {"valueType", entry.valueType},
                 {"defaultConstant", entry.defaultConstant},
                 {"inherited", entry.isInherited},
                 {"note", entry.note},
                 {"presentation", entry.isPresentation},
                 {"grammar", entry.grammar.text()},
                 {"initial", entry.initial}};
    for (Xml::CatalogueEntry const* const longhand : entry.longhands) line["longhands"].push_back(longhand->attribute);
    return line.dump() + "\n";
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
            print(
                Json({{"type", type.name()}, {"public", type.isPublic()}, {"syntax", type.syntax().toUtf8()}}).dump() +
                "\n");
        else
            print(trimmedLine(padded(type.name(), 30) + type.syntax().toUtf8()));
    }
    flushOutput();
    return isAny ? 0 : nothingMatches();
}

int properties(PropertiesOptions const& options) {
    Xml::AttributeType const* const type = options.type ? findNamedType(*options.type) : nullptr;
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
    return isAny ? 0 : nothingMatches();
}

} // namespace Command
