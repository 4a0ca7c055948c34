#include "checking/Checker.h"

#include "checking/Stylesheet.h"
#include "text/Text.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"

namespace Command {

namespace {

// The values of a list take up to twenty times the memory of its text.
constexpr std::size_t longestList = 4 << 20;

} // namespace

struct Checker::Occurrence {
    Tag& tag;
    Xml::Vocabulary vocabulary;
    std::string_view element;
    std::size_t number; // of the attribute in its tag
    std::string_view name, value;
    std::size_t offset = 0; // in the attribute's value
    Xml::Notation notation = Xml::Notation::Attribute;

    bool isDeclaration() const { return notation == Xml::Notation::Declaration; }
};

void Checker::startElement(XmlElement const& element, Tag& tag) {
    if (element.depth == 0) isPlainSvg = element.space.empty() && element.name == "svg";
    counts.attributes += element.attributes.size();
    auto vocabulary = Xml::Catalogue::vocabularyOf(element.space);
    if (!vocabulary && isPlainSvg && element.space.empty()) vocabulary = Xml::Vocabulary::Svg;
    if (!vocabulary) {
        counts.foreign += element.attributes.size();
        return;
    }
    bool const isInStylesheet = element.namespaces.has(xsltNamespace);
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        XmlAttributeText const& attribute = element.attributes[i];
        if (isInStylesheet && isTemplate(attribute.value)) {
            ++counts.passedOver;
            continue;
        }
        Occurrence occurrence{tag, *vocabulary, element.name, i, attribute.name, attribute.value};
        if (attribute.space == xmlNamespace || attribute.space == xlinkNamespace) {
            prefixed.assign(attribute.space == xmlNamespace ? "xml:" : "xlink:").append(attribute.name);
            occurrence.name = prefixed;
        } else if (!attribute.space.empty()) {
            ++counts.foreign;
            continue;
        }
        check(occurrence);
    }
}

void Checker::check(Occurrence const& occurrence) {
    auto const find = occurrence.isDeclaration() ? Xml::findProperty : Xml::Catalogue::find;
    Xml::CatalogueEntry const* const entry = find(occurrence.vocabulary, occurrence.element, occurrence.name);
    if (!entry) {
        ++counts.unknown;
        return;
    }
    switch (entry->kind) {
    case Xml::AttributeKind::Typed:
    case Xml::AttributeKind::Shorthand: return checkValue(occurrence, *entry);
    case Xml::AttributeKind::Identifier: ++counts.identifiers; return;
    case Xml::AttributeKind::Untyped: ++counts.untyped; return;
    case Xml::AttributeKind::Text:
        ++counts.texts;
        if (occurrence.vocabulary == Xml::Vocabulary::Svg && occurrence.name == "style") checkStyle(occurrence);
        return;
    }
}

void Checker::checkValue(Occurrence const& occurrence, Xml::CatalogueEntry const& entry) {
    if (entry.type() && entry.type()->readsList() && occurrence.value.size() > longestList) {
        ++counts.tooLong;
        return;
    }
    Xml::Judgement judgement;
    Xml::Verdict const verdict = cache.find(entry, occurrence.notation, occurrence.value, [&] {
        toUtf16(occurrence.value, text);
        judgement = Xml::judge(entry, text, occurrence.notation);
        return judgement.verdict;
    });
    switch (verdict) {
    case Xml::Verdict::Read: ++counts.checked; return;
    case Xml::Verdict::PassedOver: ++counts.passedOver; return;
    case Xml::Verdict::FreeText: ++counts.texts; return;
    case Xml::Verdict::NotCovered: ++counts.untyped; return;
    case Xml::Verdict::Refused: break;
    }
    if (!occurrence.tag.isWhole(occurrence.number)) {
        ++counts.unread;
        return;
    }
    if (counts.refused++ >= maxFindings) return;
    Finding finding;
    finding.attribute = entry.attribute;
    finding.part = toUtf8(judgement.part);
    finding.problem = judgement.problem;
    for (Xml::AttributeType const* const type : judgement.tried) {
        finding.types.emplace_back(type->name());
        if (finding.hints.variant.empty() && finding.hints.nearest.empty())
            finding.hints = hintsFor(*type, judgement.part.empty() ? text : judgement.part);
    }
    if (judgement.tried.size() > 1) finding.hints.accepted.clear(); // those of one type are not all
    refuse(occurrence, std::move(finding));
}

void Checker::checkStyle(Occurrence const& occurrence) {
    style = occurrence.value;
    Xml::blankComments(style);
    for (Xml::Declaration const& declaration : Xml::splitStyle(style)) {
        ++counts.declarations;
        check({occurrence.tag, occurrence.vocabulary, occurrence.element, occurrence.number, declaration.property,
               declaration.value, declaration.offset, Xml::Notation::Declaration});
    }
}

void Checker::refuse(Occurrence const& occurrence, Finding finding) {
    RawTag& tag = occurrence.tag.raw();
    finding.place = occurrence.isDeclaration() ? tag.inValue(occurrence.number, occurrence.offset)
                                               : tag.attribute(occurrence.number);
    finding.element = tag.elementName();
    if (finding.element.empty()) finding.element = occurrence.element;
    finding.text = occurrence.value;
    report(finding);
}

std::string Finding::message() const {
    std::string line = attribute + "=" + inQuotes(printable(text)) + " on " + printable(element);
    if (!problem.empty()) return line + " " + problem;
    line += part.empty() ? " is no " : ": " + inQuotes(printable(part)) + " is no ";
    line += joinWith(types, "or");
    if (!hints.variant.empty()) line += "; " + inQuotes(hints.variant) + " is";
    if (!hints.accepted.empty()) line += "; accepted: " + joinWith(hints.accepted, "and");
    if (!hints.nearest.empty()) line += "; did you mean " + inQuotes(hints.nearest) + "?";
    return line;
}

} // namespace Command
