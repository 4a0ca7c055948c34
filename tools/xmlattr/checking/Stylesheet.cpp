#include "checking/Stylesheet.h"

#include <algorithm>

namespace Command {

namespace {

constexpr std::string_view foNamespace = "http://www.w3.org/1999/XSL/Format";
constexpr std::string_view svgNamespace = "http://www.w3.org/2000/svg";

std::optional<std::string_view> attributeOf(XmlElement const& element, std::string_view name) {
    for (XmlAttributeText const& attribute : element.attributes)
        if (attribute.space.empty() && attribute.name == name) return attribute.value;
    return std::nullopt;
}

struct QualifiedName {
    std::string_view space, local;
};

// What an instruction names; nothing when that is computed.
std::optional<QualifiedName> nameMadeBy(XmlElement const& element, bool hasDefault) {
    std::string_view const name = attributeOf(element, "name").value_or("");
    std::optional<std::string_view> const space = attributeOf(element, "namespace");
    if (name.empty() || isTemplate(name) || (space && isTemplate(*space))) return std::nullopt;
    std::size_t const colon = name.find(':');
    std::string_view const prefix = colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
    std::string_view const local = colon == std::string_view::npos ? name : name.substr(colon + 1);
    if (space) return QualifiedName{*space, local};
    if (prefix == "xml") return QualifiedName{xmlNamespace, local};
    return QualifiedName{prefix.empty() && !hasDefault ? std::string_view() : element.namespaces.of(prefix), local};
}

} // namespace

bool isTemplate(std::string_view text) {
    for (std::size_t at = text.find('{'); at != std::string_view::npos; at = text.find('{', at + 2))
        if (at + 1 == text.size() || text[at + 1] != '{') return true;
    return false;
}

std::string templateText(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        plain += text[i];
        bool const isDoubled = (text[i] == '{' || text[i] == '}') && i + 1 < text.size() && text[i + 1] == text[i];
        if (isDoubled) ++i;
    }
    return plain;
}

void Stylesheet::startElement(XmlElement const& element) {
    while (!results.empty() && results.back().depth >= element.depth) results.pop_back();
    if (!element.namespaces.hasXslt()) return;
    if (element.space != xsltNamespace) {
        results.push_back({element.depth, Xml::Catalogue::vocabularyOf(element.space), std::string(element.name)});
    } else if (element.name == "element") {
        Result& result = results.emplace_back();
        result.depth = element.depth;
        if (std::optional<QualifiedName> const name = nameMadeBy(element, true)) {
            result.vocabulary = Xml::Catalogue::vocabularyOf(name->space);
            result.name = name->local;
        }
    }
}

std::optional<MadeAttribute> Stylesheet::made(XmlElement const& element) const {
    if (element.space != xsltNamespace || element.name != "attribute") return std::nullopt;
    std::optional<QualifiedName> const name = nameMadeBy(element, false);
    if (!name) return std::nullopt;
    MadeAttribute made;
    if (name->space == xmlNamespace)
        made.attribute = "xml:";
    else if (name->space == xlinkNamespace)
        made.attribute = "xlink:";
    else if (!name->space.empty())
        return std::nullopt;
    made.attribute += name->local;
    if (!results.empty()) {
        if (!results.back().vocabulary) return std::nullopt;
        made.vocabulary = *results.back().vocabulary;
        made.element = results.back().name;
        return made;
    }
    // An attribute set, or a template that adds to whatever calls it: it belongs to the vocabulary of the
    // stylesheet if there is but one.
    bool const isFo = element.namespaces.has(foNamespace), isSvg = element.namespaces.has(svgNamespace);
    if (isFo == isSvg) return std::nullopt;
    made.vocabulary = isFo ? Xml::Vocabulary::Fo : Xml::Vocabulary::Svg;
    return made;
}

} // namespace Command
