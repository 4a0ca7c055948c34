#include "xmlattr/catalogue/legality/StyleAttribute.h"

#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>

namespace Xml {

namespace {

// The length of the string, the comment or the url() without quotation marks that may begin with
// this text, or else 1.
std::size_t tokenLength(std::string_view text) {
    auto const through = [&](std::string_view mark, std::size_t from) {
        std::size_t const at = text.find(mark, from);
        return at == std::string_view::npos ? text.size() : at + mark.size();
    };
    if (text.starts_with('"') || text.starts_with('\'')) return through(text.substr(0, 1), 1);
    if (text.starts_with("/*")) return through("*/", 2);
    if (!equalsNoCase(text.substr(0, 4), "url(")) return 1;
    std::string_view const reference = trimXmlSpaceStart(text.substr(4));
    bool const isString = reference.starts_with('"') || reference.starts_with('\'');
    return isString ? 1 : through(")", 4);
}

// How much stands whole at the start of a text; of nearly every character it is plain that it is itself alone.
std::size_t wholeLength(std::string_view text) {
    char const c = text[0];
    return c == '"' || c == '\'' || c == '/' || c == 'u' || c == 'U' ? tokenLength(text) : 1;
}

// The index of the first `mark` that stands outside, or the length of the text.
std::size_t findOutside(std::string_view text, char mark) {
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); i += wholeLength(text.substr(i))) {
        char const c = text[i];
        if (c == mark && depth == 0) return i;
        if (c == '(') ++depth;
        if (c == ')' && depth > 0) --depth;
    }
    return text.size();
}

std::string_view withoutPriority(std::string_view value) {
    std::size_t const mark = value.rfind('!');
    bool const isPriority =
        mark != std::string_view::npos && equalsNoCase(trimXmlSpace(value.substr(mark + 1)), "important");
    return isPriority ? trimXmlSpace(value.substr(0, mark)) : value;
}

// Whether a text has no other characters than the names of CSS.
bool isName(std::string_view text) {
    auto const isOfName = [](char c) {
        bool const isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        return isPlain || c == '-' || c == '_' || c == '\\' || static_cast<unsigned char>(c) >= 0x80;
    };
    return !text.empty() && std::ranges::all_of(text, isOfName);
}

Declaration declarationOf(std::string_view text, std::size_t offset) {
    std::size_t const colon = findOutside(text, ':');
    Declaration declaration{.text = text, .offset = offset, .property = {}, .value = {}, .fault = {}};
    if (colon == text.size()) {
        declaration.fault = "it has no colon";
    } else if (std::string_view const name = trimXmlSpace(text.substr(0, colon)); isName(name)) {
        declaration.property = name;
        declaration.value = withoutPriority(trimXmlSpace(text.substr(colon + 1)));
    } else {
        declaration.fault = "no name stands before its colon";
    }
    return declaration;
}

} // namespace

void blankComments(std::string& text) {
    if (text.find("/*") == std::string::npos) return; // of nearly every text, at once
    std::string_view const view = text;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t const length = wholeLength(view.substr(i));
        if (view.substr(i, length).starts_with("/*")) text.replace(i, length, length, ' ');
        i += length;
    }
}

std::vector<Declaration> splitStyle(std::string_view text) {
    std::vector<Declaration> declarations;
    for (std::string_view rest = text; !rest.empty();) {
        std::size_t const end = findOutside(rest, ';');
        std::string_view const piece = trimXmlSpace(rest.substr(0, end));
        if (!piece.empty())
            declarations.push_back(declarationOf(piece, static_cast<std::size_t>(piece.data() - text.data())));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return declarations;
}

CatalogueEntry const* findProperty(Vocabulary vocabulary, std::string_view element, std::string_view property) {
    CatalogueEntry const* const entry = Catalogue::find(vocabulary, element, toLower(property));
    return entry && entry->isPresentation ? entry : nullptr;
}

} // namespace Xml
