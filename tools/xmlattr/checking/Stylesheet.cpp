#include "checking/Stylesheet.h"

#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>
#include <utility>

namespace Command {

namespace {

std::optional<std::string_view> attributeOf(XmlElement const& element, std::string_view name,
                                            std::string_view space = {}) {
    for (XmlAttributeText const& attribute : element.attributes)
        if (attribute.space == space && attribute.name == name) return attribute.value;
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

std::optional<MadeElement> elementMadeBy(XmlElement const& element) {
    if (element.space != xsltNamespace || element.name != "element") return std::nullopt;
    std::optional<QualifiedName> const name = nameMadeBy(element, true);
    auto const vocabulary = name ? Xml::Catalogue::vocabularyOf(name->space) : std::nullopt;
    if (!vocabulary) return std::nullopt;
    auto const names = [](XmlAttributeText const& attribute) {
        return attribute.space.empty() && attribute.name == "name";
    };
    auto const found = std::ranges::find_if(element.attributes, names);
    return MadeElement{*vocabulary, name->local, static_cast<std::size_t>(found - element.attributes.begin())};
}

void Stylesheet::startElement(XmlElement const& element, XmlHandler::Tag& tag) {
    auto const forget = [&](auto& enclosing) {
        while (!enclosing.empty() && enclosing.back().depth >= element.depth) enclosing.pop_back();
    };
    forget(owners);
    forget(expansions);
    if (attribute && element.depth <= attributeDepth) attribute.reset();
    if (!element.namespaces.hasXslt()) return;
    noteExpansion(element);
    if (attribute) {
        attribute->hasTextTemplates |= hasTextTemplates();
    } else if (element.space != xsltNamespace) {
        owners.push_back({element.depth, false, Xml::Catalogue::vocabularyOf(element.space), std::string(element.name),
                          nameInDocument(element.name, tag)});
    } else if (element.name == "element") {
        Owner owner{element.depth, false};
        if (std::optional<MadeElement> const made = elementMadeBy(element)) {
            owner.vocabulary = made->vocabulary;
            owner.local = made->local;
            owner.named = element.attributes[made->number].value;
        }
        owners.push_back(std::move(owner));
    } else if (element.name == "attribute-set") {
        owners.push_back({element.depth, true, std::nullopt, {}, nameInDocument(element.name, tag)});
    } else if (element.name == "attribute") {
        attribute = makes(element, tag);
        attributeDepth = element.depth;
    }
}

// Of an instruction the attribute has no namespace, of a literal element that of XSLT.
void Stylesheet::noteExpansion(XmlElement const& element) {
    bool const isLiteral = element.space != xsltNamespace;
    auto const value = attributeOf(element, "expand-text", isLiteral ? xsltNamespace : std::string_view());
    if (!value) return;
    std::string_view const word = Xml::trimXmlSpace(*value);
    expansions.push_back({element.depth, word == "yes" || word == "true" || word == "1"});
}

std::optional<MadeAttribute> Stylesheet::makes(XmlElement const& element, XmlHandler::Tag& tag) const {
    std::optional<QualifiedName> const name = nameMadeBy(element, false);
    if (!name || attributeOf(element, "select")) return std::nullopt;
    MadeAttribute made;
    if (name->space == xmlNamespace)
        made.attribute = "xml:";
    else if (name->space == xlinkNamespace)
        made.attribute = "xlink:";
    else if (!name->space.empty())
        return std::nullopt;
    made.attribute += name->local;
    made.hasTextTemplates = hasTextTemplates();
    if (!owners.empty() && !owners.back().isSet) {
        Owner const& owner = owners.back();
        if (!owner.vocabulary) return std::nullopt;
        made.vocabulary = *owner.vocabulary;
        made.element = owner.local;
        made.named = owner.named;
        return made;
    }
    // An attribute set, or a template that adds to whatever calls it: it belongs to the vocabulary of the
    // stylesheet if there is but one.
    auto const has = [&](Xml::Vocabulary vocabulary) {
        return element.namespaces.has(Xml::Catalogue::namespaceOf(vocabulary));
    };
    bool const isFo = has(Xml::Vocabulary::Fo), isSvg = has(Xml::Vocabulary::Svg);
    if (isFo == isSvg) return std::nullopt;
    made.vocabulary = isFo ? Xml::Vocabulary::Fo : Xml::Vocabulary::Svg;
    made.named = owners.empty() ? nameInDocument(element.name, tag) : owners.back().named;
    return made;
}

} // namespace Command
