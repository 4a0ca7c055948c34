#include "xmlattr/catalogue/legality/StyleAttribute.h"

#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>

namespace Xml {

namespace {

bool isBlank(char c) {
    return isXmlSpace(static_cast<unsigned char>(c));
}

std::string_view trimStart(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    return text;
}

std::string_view trim(std::string_view text) {
    text = trimStart(text);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

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
    std::string_view const reference = trimStart(text.substr(4));
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
    bool const isPriority = mark != std::string_view::npos && equalsNoCase(trim(value.substr(mark + 1)), "important");
    return isPriority ? trim(value.substr(0, mark)) : value;
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
        std::string_view const declaration = trim(rest.substr(0, end));
        std::size_t const colon = declaration.find(':');
        if (colon != std::string_view::npos)
            declarations.push_back({trim(declaration.substr(0, colon)),
                                    withoutPriority(trim(declaration.substr(colon + 1))),
                                    static_cast<std::size_t>(declaration.data() - text.data())});
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return declarations;
}

CatalogueEntry const* findProperty(Vocabulary vocabulary, std::string_view element, std::string_view property) {
    CatalogueEntry const* const entry = Catalogue::find(vocabulary, element, toLower(property));
    return entry && entry->isPresentation ? entry : nullptr;
}

} // namespace Xml
