#include "checking/Checker.h"

#include "text/Text.h"
#include "xmlattr/catalogue/legality/Shorthand.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"

#include "xmlattr/catalogue/legality/Words.h"

#include "xmlattr/core/String.h"

namespace Command {

namespace {

constexpr std::string_view xmlSpace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view xlinkSpace = "http://www.w3.org/1999/xlink";

// The values of a list take up to twenty times the memory of its text.
constexpr std::size_t longestList = 4 << 20;

Xml::Judgement judge(Xml::Property const& property, std::u16string_view text) {
    if (property.entry->kind == Xml::AttributeKind::Shorthand) return Xml::judgeShorthand(*property.entry, text);
    Xml::Verdict const verdict = property.judge(text);
    if (verdict != Xml::Verdict::Refused) return {verdict, {}, {}, {}};
    return {verdict, {}, {property.type}, {}};
}

} // namespace

struct Checker::Occurrence {
    Tag& tag;
    Xml::Vocabulary vocabulary;
    std::string_view element;
    std::size_t number; // of the attribute in its tag
    std::string_view name, value;
    std::size_t offset = 0;     // in the attribute's value
    bool isDeclaration = false; // of a style attribute
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
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        XmlAttributeText const& attribute = element.attributes[i];
        Occurrence occurrence{tag, *vocabulary, element.name, i, attribute.name, attribute.value};
        if (attribute.space == xmlSpace || attribute.space == xlinkSpace) {
            prefixed.assign(attribute.space == xmlSpace ? "xml:" : "xlink:").append(attribute.name);
            occurrence.name = prefixed;
        } else if (!attribute.space.empty()) {
            ++counts.foreign;
            continue;
        }
        check(occurrence);
    }
}

void Checker::check(Occurrence const& occurrence) {
    Xml::Property const* const property = Xml::findProperty(occurrence.vocabulary, occurrence.element, occurrence.name);
    if (!property || (occurrence.isDeclaration && !property->entry->isPresentation())) {
        ++counts.unknown;
        return;
    }
    switch (property->entry->kind) {
    case Xml::AttributeKind::Typed:
    case Xml::AttributeKind::Shorthand: return checkValue(occurrence, *property);
    case Xml::AttributeKind::Identifier: ++counts.identifiers; return;
    case Xml::AttributeKind::None: ++counts.noType; return;
    case Xml::AttributeKind::Text:
        ++counts.texts;
        if (occurrence.vocabulary == Xml::Vocabulary::Svg && occurrence.name == "style") checkStyle(occurrence);
        return;
    }
}

void Checker::checkValue(Occurrence const& occurrence, Xml::Property const& property) {
    if (property.isList() && occurrence.value.size() > longestList) {
        ++counts.tooLong;
        return;
    }
    Xml::Judgement found;
    Xml::Verdict verdict = cache.find(property, occurrence.value, [&] {
        toUtf16(occurrence.value, text);
        found = judge(property, text);
        return found.verdict;
    });
    // CSS has no case; the value types read attributes, which have one.
    if (verdict == Xml::Verdict::Refused && occurrence.isDeclaration &&
        judge(property, Core::String(text).toLower()).verdict != Xml::Verdict::Refused)
        verdict = Xml::Verdict::PassedOver;
    switch (verdict) {
    case Xml::Verdict::Checked: ++counts.checked; return;
    case Xml::Verdict::PassedOver: ++counts.passedOver; return;
    case Xml::Verdict::NotCovered: ++counts.noType; return;
    case Xml::Verdict::Refused: break;
    }
    if (!occurrence.tag.isWhole(occurrence.number)) {
        ++counts.unread;
        return;
    }
    if (counts.refused++ >= maxFindings) return;
    Finding finding;
    finding.part = found.part;
    finding.problem = found.problem;
    for (Xml::AttributeType const* const type : found.types) {
        finding.types.emplace_back(type->name);
        if (finding.hints.variant.empty() && finding.hints.nearest.empty())
            finding.hints = hintsFor(*type, found.part.empty() ? text : toUtf16(found.part));
    }
    if (found.types.size() > 1) finding.hints.accepted.clear(); // those of one type are not all
    refuse(occurrence, std::move(finding));
}

void Checker::checkStyle(Occurrence const& occurrence) {
    style = occurrence.value;
    Xml::blankComments(style);
    for (Xml::Declaration const& declaration : Xml::splitStyle(style)) {
        ++counts.declarations;
        std::string const name = Xml::toLower(declaration.property); // CSS has no case
        check({occurrence.tag, occurrence.vocabulary, occurrence.element, occurrence.number, name, declaration.value,
               declaration.offset, true});
    }
}

void Checker::refuse(Occurrence const& occurrence, Finding finding) {
    RawTag& tag = occurrence.tag.raw();
    finding.place =
        occurrence.isDeclaration ? tag.inValue(occurrence.number, occurrence.offset) : tag.attribute(occurrence.number);
    finding.element = tag.elementName();
    if (finding.element.empty()) finding.element = occurrence.element;
    finding.attribute = occurrence.name;
    finding.text = occurrence.value;
    report(finding);
}

std::string Finding::message() const {
    std::string line = attribute + "=" + inQuotes(shown(text)) + " on " + shown(element);
    if (!problem.empty()) return line + " " + problem;
    line += part.empty() ? " is no " : ": " + inQuotes(shown(part)) + " is no ";
    line += joinWith(types, "or");
    if (!hints.variant.empty()) line += "; " + inQuotes(hints.variant) + " is";
    if (!hints.accepted.empty()) line += "; accepted: " + joinWith(hints.accepted, "and");
    if (!hints.nearest.empty()) line += "; did you mean " + inQuotes(hints.nearest) + "?";
    return line;
}

} // namespace Command
