#include "cli/Commands.h"
#include "cli/NamedType.h"
#include "text/Text.h"

#include "xmlattr/catalogue/legality/Words.h"

#include "xmlattr/catalogue/Catalogue.h"

#include <algorithm>
#include <nlohmann/json.hpp>

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

// The syntax, or the keywords of an enumeration, or both.
std::string syntaxOf(Xml::AttributeType const& type) {
    std::vector<std::string> words;
    for (std::u16string_view const word : type.keywords()) words.push_back(word.empty() ? "\"\"" : toUtf8(word));
    std::string text = joinWith(words, "or");
    if (type.syntax().empty()) return text;
    return text + (text.empty() ? "" : "; ") + std::string(type.syntax());
}

} // namespace

int types(TypesOptions const& options) {
    bool isAny = false;
    for (Xml::AttributeType const& type : Xml::attributeTypes()) {
        if (!contains(type.name, options.name)) continue;
        isAny = true;
        if (options.format == OutputFormat::Json)
            print(Json({{"type", type.name}, {"public", type.isPublic}, {"syntax", syntaxOf(type)}}).dump() + "\n");
        else
            print(trimmedLine(padded(type.name, 30) + syntaxOf(type)));
    }
    flushOutput();
    return isAny ? 0 : nothingMatches();
}

int properties(PropertiesOptions const& options) {
    Xml::AttributeType const* const type = options.type ? findNamedType(*options.type) : nullptr;
    if (options.type && !type) return 2;
    bool isAny = false;
    for (Xml::CatalogueEntry const& entry : Xml::Catalogue::entries()) {
        std::string_view const vocabulary = Xml::Catalogue::name(entry.vocabulary);
        std::string_view const kind = Xml::Catalogue::name(entry.kind);
        if ((options.vocabulary && options.vocabulary != entry.vocabulary) || (type && type->name != entry.valueType) ||
            !contains(entry.attribute, options.name))
            continue;
        isAny = true;
        if (options.format == OutputFormat::Json)
            print(Json({{"vocabulary", vocabulary},
                        {"element", entry.element},
                        {"attribute", entry.attribute},
                        {"kind", kind},
                        {"valueType", entry.valueType},
                        {"alsoLegal", entry.alsoLegal},
                        {"defaultConstant", entry.defaultConstant},
                        {"inherited", entry.inherited},
                        {"note", entry.note}})
                      .dump() +
                  "\n");
        else
            print(trimmedLine(padded(vocabulary, 3) + padded(entry.element, 6) + padded(entry.attribute, 28) +
                              padded(entry.valueType.empty() ? kind : entry.valueType, 24) +
                              padded(entry.inherited ? "inherited" : "", 9) + padded(entry.defaultConstant, 24) +
                              (entry.alsoLegal.empty() ? "" : "also: " + std::string(entry.alsoLegal))));
    }
    flushOutput();
    return isAny ? 0 : nothingMatches();
}

} // namespace Command
