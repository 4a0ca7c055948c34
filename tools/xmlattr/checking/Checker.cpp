#include "checking/Checker.h"

#include "text/Text.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/Elements.h"
#include "xmlattr/catalogue/Names.h"
#include "xmlattr/catalogue/legality/Advice.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"
#include "xmlattr/catalogue/text/Words.h"

#include <iterator>
#include <utility>
#include <vector>

namespace Command {

namespace {

// The values of a list take up to twenty times the memory of its text.
constexpr std::size_t longestList = 4 << 20;

// Why an attribute is not covered, in words.
constexpr std::string_view wordOf(Uncovered why) {
    switch (why) {
    case Uncovered::Foreign: return "of another vocabulary";
    case Uncovered::Template: return "a template of a stylesheet";
    case Uncovered::TooLong: return "too long";
    case Uncovered::Unread: return "with an entity that is not read";
    case Uncovered::Unknown: break;
    }
    return "unknown";
}

Fault faultOf(Xml::CatalogueEntry const& entry, Xml::Judgement const& judgement) {
    if (judgement.verdict == Xml::Verdict::Misread) return Fault::Misread;
    if (!judgement.newer.empty()) return Fault::NewerValue;
    if (judgement.verdict == Xml::Verdict::Lenient) return judgement.isNegative ? Fault::Negative : Fault::Lenient;
    bool const isTyped = entry.type() || !entry.longhands.empty();
    return isTyped ? Fault::BadValue : judgement.isNegative ? Fault::Negative : Fault::BadWord;
}

// What is known of the name of an element that the vocabulary, and those after it, do not have.
std::optional<Xml::NameFact> unknownElement(Xml::Vocabulary vocabulary, std::string_view element) {
    if (Xml::Elements::isKnown(vocabulary, element)) return std::nullopt;
    Xml::NameFact const fact = Xml::Names::ofElement(vocabulary, element);
    return fact.standing == Xml::NameStanding::Unknown ? std::optional(fact) : std::nullopt;
}

std::optional<Xml::Animation> animationOf(XmlElement const& element) {
    if (!element.name.starts_with("animate") && element.name != "set") return std::nullopt;
    Xml::Animation animation{element.name};
    for (auto const& [space, name, value] : element.attributes) {
        if (!space.empty()) continue;
        if (name == "attributeName") animation.attributeName = value;
        if (name == "attributeType") animation.attributeType = value;
        if (name == "type") animation.type = value;
        if (name == "additive") animation.additive = value;
    }
    return animation;
}

// The values of an animation, trimmed: one, or in "values" several with semicolons between them and perhaps at the end.
std::vector<std::string_view> animatedValues(std::string_view attribute, std::string_view text) {
    std::vector<std::string_view> values;
    for (;;) {
        std::size_t const end = attribute == "values" ? text.find(';') : std::string_view::npos;
        values.push_back(Xml::trimXmlSpace(text.substr(0, end)));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    if (values.size() > 1 && values.back().empty()) values.pop_back();
    return values;
}

} // namespace

Counts& Counts::operator+=(Counts const& other) {
    constexpr std::uint64_t Counts::*all[] = {
        &Counts::files,      &Counts::failedFiles, &Counts::attributes, &Counts::declarations, &Counts::read,
        &Counts::passedOver, &Counts::freeText,    &Counts::misread,    &Counts::lenient,      &Counts::refused,
        &Counts::foreign,    &Counts::templates,   &Counts::tooLong,    &Counts::unread,       &Counts::unknown,
        &Counts::errors,     &Counts::warnings,    &Counts::notes,      &Counts::ignored,      &Counts::known};
    static_assert(sizeof(Counts) == std::size(all) * sizeof(std::uint64_t), "each is added");
    for (std::uint64_t Counts::*const count : all) this->*count += other.*count;
    return *this;
}

std::uint64_t& Counts::of(Severity severity) {
    switch (severity) {
    case Severity::Error: return errors;
    case Severity::Warning: return warnings;
    case Severity::Note: break;
    }
    return notes;
}

std::uint64_t Counts::leaveOut(Counts const& others) {
    errors -= others.errors;
    warnings -= others.warnings;
    notes -= others.notes;
    return others.findings();
}

// An attribute of a tag, a declaration in one, or what an xsl:attribute holds.
struct Checker::Occurrence {
    Tag* tag; // null for an xsl:attribute
    Xml::Vocabulary vocabulary;
    std::string_view element; // empty when it is not known
    std::size_t number;       // of the attribute in its tag
    std::string_view name, value;
    std::optional<std::size_t> offset{}; // in the attribute's value; none where all of it is meant
    // Where the value begins there: after the offset, when a name stands before it.
    std::size_t valueOffset = 0;
    Xml::Notation notation = Xml::Notation::Attribute;
    bool isAnimated = false; // so that the row is that of another attribute
    // Without a tag: where the text stands, and the element as the document names it.
    Place place{};
    std::string_view named{};

    bool isDeclaration() const { return notation == Xml::Notation::Declaration && !isAnimated; }
    bool isWhole() const { return !tag || tag->isWhole(number); }

    // Whether the element is known and does not have the attribute, which is a known one.
    bool isMisplaced() const {
        return !isDeclaration() && Xml::Elements::isKnown(vocabulary, element) &&
               !Xml::Elements::has(vocabulary, element, name) &&
               (vocabulary == Xml::Vocabulary::Fo || !Xml::Names::isNewerOn(element, name));
    }
};

void Checker::startElement(XmlElement const& element, Tag& tag) {
    if (element.depth == 0) isPlainSvg = element.space.empty() && element.name == "svg";
    stylesheet.startElement(element, tag);
    counts.attributes += element.attributes.size();
    auto vocabulary = Xml::Catalogue::vocabularyOf(element.space);
    if (!vocabulary && isPlainSvg && element.space.empty()) vocabulary = Xml::Vocabulary::Svg;
    references.startElement(element, vocabulary, tag, [this](ReferenceFault const& fault) { find(fault); });
    if (!vocabulary) {
        std::string problem = problemOf(element.space);
        if (!problem.empty() && isReported(Fault::UnknownElement)) {
            Finding finding;
            finding.fault = Fault::UnknownElement;
            finding.problem = std::move(problem);
            finding.place = tag.raw().place();
            finding.source = tag.raw().excerptOfElement();
            finding.element = nameInDocument(element.name, tag);
            report(finding);
        }
        for (std::size_t i = 0; i < element.attributes.size(); ++i) {
            ++counts.foreign;
            showNotCovered({&tag, {}, element.name, i, element.attributes[i].name, element.attributes[i].value},
                           Uncovered::Foreign);
        }
        if (std::optional<MadeElement> const made = elementMadeBy(element)) checkMade(*made, element, tag);
        return;
    }
    if (std::optional<Xml::NameFact> const fact = unknownElement(*vocabulary, element.name))
        findUnknown(*fact, *vocabulary, nameInDocument(element.name, tag), tag.raw().place(),
                    tag.raw().excerptOfElement());
    bool const isSvg = *vocabulary == Xml::Vocabulary::Svg;
    std::optional<std::size_t> const missing = isSvg ? filterResults.startElement(element) : std::nullopt;
    if (missing && !element.namespaces.hasXslt() && tag.isWhole(*missing) && isReported(Fault::DanglingReference)) {
        Finding finding;
        finding.fault = Fault::DanglingReference;
        finding.attribute = element.attributes[*missing].name;
        finding.problem = "which no filter primitive before it has as its result";
        find({&tag, *vocabulary, element.name, *missing, element.attributes[*missing].name,
              element.attributes[*missing].value},
             std::move(finding));
    }
    animation = isSvg ? animationOf(element) : std::nullopt;
    bool const isInStylesheet = element.namespaces.hasXslt();
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        XmlAttributeText const& attribute = element.attributes[i];
        Occurrence occurrence{&tag, *vocabulary, element.name, i, attribute.name, attribute.value};
        if (isInStylesheet && isTemplate(attribute.value)) {
            ++counts.templates;
            showNotCovered(occurrence, Uncovered::Template);
            continue;
        }
        std::string plain; // a template without expressions
        if (isInStylesheet && attribute.value.find_first_of("{}") != std::string_view::npos) {
            plain = templateText(attribute.value);
            occurrence.value = plain;
        }
        if (attribute.space == xmlNamespace || attribute.space == xlinkNamespace) {
            prefixed.assign(attribute.space == xmlNamespace ? "xml:" : "xlink:").append(attribute.name);
            occurrence.name = prefixed;
        } else if (!attribute.space.empty() && attribute.space == element.space) {
            ++counts.unknown;
            findPrefixed(occurrence, {});
            continue;
        } else if (!attribute.space.empty()) {
            ++counts.foreign;
            if (std::string problem = problemOf(attribute.space); !problem.empty())
                findPrefixed(occurrence, std::move(problem));
            showNotCovered(occurrence, Uncovered::Foreign);
            continue;
        }
        check(occurrence);
    }
}

void Checker::checkMade(MadeElement const& made, XmlElement const& element, Tag& tag) {
    std::optional<Xml::NameFact> const fact = unknownElement(made.vocabulary, made.local);
    if (fact && tag.isWhole(made.number))
        findUnknown(*fact, made.vocabulary, std::string(element.attributes[made.number].value),
                    tag.raw().attribute(made.number), tag.raw().excerptOfValue(made.number));
}

void Checker::findUnknown(Xml::NameFact const& fact, Xml::Vocabulary vocabulary, std::string const& element,
                          Place place, Excerpt source) {
    if (!isReported(Fault::UnknownElement)) return;
    Finding finding;
    finding.fault = Fault::UnknownElement;
    finding.problem = std::string("is not an element of ").append(Xml::Catalogue::recommendation(vocabulary));
    finding.place = place;
    finding.source = std::move(source);
    finding.element = element;
    if (!fact.text.empty()) finding.replacement = element.substr(0, element.find(':') + 1).append(fact.text);
    report(finding);
}

std::string Checker::problemOf(std::string_view space) {
    constexpr std::size_t most = 64; // of namespaces that are remembered
    if (space.empty() || foreignSpaces.contains(space) || foreignSpaces.size() == most) return {};
    foreignSpaces.emplace(space);
    Xml::NameFact const fact = Xml::Names::ofNamespace(space);
    if (fact.standing != Xml::NameStanding::Unknown) return {};
    return "is in the namespace " + inQuotes(printable(space)) + ", of which nothing is checked; did you mean " +
           inQuotes(std::string(fact.text)) + "?";
}

// Attributes of a vocabulary have no namespace, and those of another one may have a wrong one.
void Checker::findPrefixed(Occurrence const& occurrence, std::string problem) {
    if (!isReported(Fault::UnknownAttribute)) return;
    Finding finding;
    finding.fault = Fault::UnknownAttribute;
    finding.attribute = occurrence.tag->raw().excerptOfName(occurrence.number).part;
    if (problem.empty()) finding.replacement = occurrence.name;
    finding.problem = std::move(problem);
    find(occurrence, std::move(finding));
}

bool Checker::wantsText(XmlElement const& element) {
    return stylesheet.isMade(element);
}

void Checker::text(XmlText const& text) {
    std::optional<MadeAttribute> const& made = stylesheet.made();
    if (!made || !text.isWhole) return;
    animation.reset();
    ++counts.attributes;
    Occurrence occurrence{.tag = nullptr,
                          .vocabulary = made->vocabulary,
                          .element = made->element,
                          .number = 0,
                          .name = made->attribute,
                          .value = text.text,
                          .place = text.place,
                          .named = made->named};
    if (made->hasTextTemplates && isTemplate(text.text)) {
        ++counts.templates;
        return showNotCovered(occurrence, Uncovered::Template);
    }
    std::string plain;
    if (made->hasTextTemplates) {
        plain = templateText(text.text);
        occurrence.value = plain;
    }
    check(occurrence);
}

void Checker::finish() {
    references.finish([this](ReferenceFault const& fault) { find(fault); });
}

void Checker::check(Occurrence const& occurrence) {
    auto const lookUp = occurrence.isDeclaration() ? Xml::findProperty : Xml::Catalogue::find;
    Xml::CatalogueEntry const* const entry = lookUp(occurrence.vocabulary, occurrence.element, occurrence.name);
    if (!entry) {
        ++counts.unknown;
        return checkName(occurrence);
    }
    if (options.isStrict && occurrence.isMisplaced()) findMisplaced(occurrence);
    if (occurrence.vocabulary == Xml::Vocabulary::Svg && occurrence.name == "style") checkStyle(occurrence);
    auto const animated = animation ? Xml::findAnimated(*animation, occurrence.name) : std::nullopt;
    animated ? checkAnimated(occurrence, *animated) : checkValue(occurrence, *entry);
}

void Checker::findMisplaced(Occurrence const& occurrence) {
    if (!isReported(Fault::MisplacedAttribute)) return;
    Finding finding;
    finding.fault = Fault::MisplacedAttribute;
    finding.attribute = occurrence.name;
    find(occurrence, std::move(finding));
}

void Checker::checkName(Occurrence const& occurrence) {
    Xml::NameFact const fact = occurrence.isDeclaration()
                                   ? Xml::Names::ofProperty(occurrence.name)
                                   : Xml::Names::ofAttribute(occurrence.vocabulary, occurrence.name);
    if (options.isStrict && fact.standing == Xml::NameStanding::Known && occurrence.isMisplaced())
        return findMisplaced(occurrence);
    // What a stylesheet makes outside of every element may belong to another vocabulary.
    bool const isElsewhere = occurrence.element.empty();
    if (fact.standing != Xml::NameStanding::Unknown || isElsewhere)
        return showNotCovered(occurrence, Uncovered::Unknown);
    if (!isReported(Fault::UnknownAttribute)) return;
    Finding finding;
    finding.fault = Fault::UnknownAttribute;
    finding.attribute = occurrence.name;
    finding.replacement = fact.text;
    find(occurrence, std::move(finding));
}

void Checker::checkValue(Occurrence const& occurrence, Xml::CatalogueEntry const& entry) {
    if (occurrence.value.size() > longestList && entry.type() && entry.type()->readsList()) {
        ++counts.tooLong;
        return showNotCovered(occurrence, Uncovered::TooLong);
    }
    if (entry.grammar.text() == "<text>") {
        ++counts.freeText;
        return;
    }
    std::optional<Xml::Judgement> judgement;
    Xml::Verdict const verdict = cache->find(entry, occurrence.notation, occurrence.value, [&] {
        toUtf16(occurrence.value, utf16);
        judgement = Xml::judge(entry, utf16, occurrence.notation);
        return judgement->verdict;
    });
    if (count(occurrence, verdict)) find(occurrence, entry, *judgement);
}

// The attribute is counted once, as its first value that is a fault; each of these is reported.
void Checker::checkAnimated(Occurrence const& occurrence, Xml::AnimatedValue const& animated) {
    if (occurrence.value.size() > longestList) {
        ++counts.tooLong;
        return showNotCovered(occurrence, Uncovered::TooLong);
    }
    std::optional<Xml::Verdict> verdict;
    for (std::string_view const value : animatedValues(occurrence.name, occurrence.value)) {
        Occurrence piece = occurrence;
        piece.value = value;
        piece.valueOffset = static_cast<std::size_t>(value.data() - occurrence.value.data());
        piece.offset = piece.valueOffset;
        piece.notation = animated.notation;
        piece.isAnimated = true;
        toUtf16(value, utf16);
        Xml::Judgement const judgement = Xml::judge(animated, utf16);
        if (!verdict || !Xml::isFault(*verdict)) verdict = judgement.verdict;
        if (Xml::isFault(judgement.verdict) && occurrence.isWhole()) find(piece, animated.rows.front(), judgement);
    }
    count(occurrence, *verdict);
}

bool Checker::count(Occurrence const& occurrence, Xml::Verdict verdict) {
    if (Xml::isFault(verdict) && !occurrence.isWhole()) {
        ++counts.unread;
        showNotCovered(occurrence, Uncovered::Unread);
        return false;
    }
    switch (verdict) {
    case Xml::Verdict::Read: ++counts.read; return false;
    case Xml::Verdict::PassedOver:
        ++counts.passedOver;
        showPassedOver(occurrence);
        return false;
    case Xml::Verdict::FreeText: ++counts.freeText; return false;
    case Xml::Verdict::NotCovered:
        ++counts.unknown;
        showNotCovered(occurrence, Uncovered::Unknown);
        return false;
    case Xml::Verdict::Misread: ++counts.misread; return true;
    case Xml::Verdict::Lenient: ++counts.lenient; return true;
    case Xml::Verdict::Refused: ++counts.refused; return true;
    }
    return false;
}

void Checker::find(Occurrence const& occurrence, Xml::CatalogueEntry const& entry, Xml::Judgement const& judgement) {
    Fault const fault = faultOf(entry, judgement);
    if (!isReported(fault)) return;
    Xml::Advice const advice = Xml::advise(entry, utf16, occurrence.notation, judgement);
    Finding finding;
    finding.fault = fault;
    finding.attribute = occurrence.isAnimated ? occurrence.name : entry.attribute;
    finding.part = toUtf8(judgement.part);
    for (std::u16string_view const part : judgement.otherParts) finding.otherParts.push_back(toUtf8(part));
    finding.problem = judgement.problem;
    bool const isMissing = judgement.part.data() && judgement.part.empty();
    if (isMissing && finding.problem.starts_with("expected")) finding.problem += " at the end";
    finding.newer = judgement.newer;
    finding.held = toUtf8(advice.held);
    finding.isTaken = judgement.verdict != Xml::Verdict::Refused;
    finding.expected = advice.expected;
    finding.replacement = toUtf8(advice.replacement);
    // A comma in an animation may be meant for a semicolon.
    bool const hasComma = occurrence.isAnimated && occurrence.value.find(',') != std::string_view::npos;
    finding.isExact = advice.isExact && !hasComma;
    std::u16string_view const judged = utf16;
    finding.offset = toUtf8(judged.substr(0, advice.offset)).size();
    finding.length = toUtf8(judged.substr(advice.offset, advice.length)).size();
    finding.entry = &entry;
    find(occurrence, std::move(finding));
}

void Checker::checkStyle(Occurrence const& occurrence) {
    style = occurrence.value;
    Xml::blankComments(style);
    for (Xml::Declaration const& declaration : Xml::splitStyle(style)) {
        ++counts.declarations;
        Occurrence piece = occurrence;
        piece.offset = declaration.offset;
        if (!declaration.fault.empty()) {
            piece.value = declaration.text;
            piece.valueOffset = declaration.offset;
            findFault(piece, declaration.fault);
            continue;
        }
        piece.name = declaration.property;
        piece.value = declaration.value;
        piece.valueOffset = static_cast<std::size_t>(declaration.value.data() - style.data());
        piece.notation = Xml::Notation::Declaration;
        check(piece);
    }
}

void Checker::findFault(Occurrence const& piece, std::string_view fault) {
    if (!piece.isWhole()) {
        ++counts.unread;
        return showNotCovered(piece, Uncovered::Unread);
    }
    ++counts.refused;
    if (!isReported(Fault::BadWord)) return;
    Finding finding;
    finding.fault = Fault::BadWord;
    finding.attribute = piece.name;
    finding.problem = std::string("is no declaration: ").append(fault);
    find(piece, std::move(finding));
}

void Checker::showPassedOver(Occurrence const& occurrence) {
    if (!options.showsPassedOver || !isReported(Fault::PassedOver)) return;
    Finding finding;
    finding.fault = Fault::PassedOver;
    finding.attribute = occurrence.name;
    find(occurrence, std::move(finding));
}

void Checker::showNotCovered(Occurrence const& occurrence, Uncovered why) {
    bool const isShown = options.showsNotCovered || (options.showsUnknown && why == Uncovered::Unknown);
    if (!isShown || !isReported(Fault::NotCovered)) return;
    Finding finding;
    finding.fault = Fault::NotCovered;
    finding.attribute = occurrence.name;
    finding.problem = wordOf(why);
    find(occurrence, std::move(finding));
}

bool Checker::isReported(Fault fault) {
    bool const isReported = counts.findings() < options.maxFindings;
    ++counts.of(kindOf(fault).severity);
    return isReported;
}

void Checker::find(Occurrence const& occurrence, Finding finding) {
    finding.place = occurrence.place;
    finding.element = occurrence.named;
    if (occurrence.tag) {
        RawTag& tag = occurrence.tag->raw();
        finding.place =
            occurrence.offset ? tag.inValue(occurrence.number, *occurrence.offset) : tag.attribute(occurrence.number);
        finding.element = nameInDocument(occurrence.element, *occurrence.tag);
        bool const isName = finding.fault == Fault::UnknownAttribute || finding.fault == Fault::MisplacedAttribute;
        if (occurrence.offset) {
            finding.source =
                isName ? tag.excerptInValue(occurrence.number, *occurrence.offset, occurrence.name.size())
                       : tag.excerptInValue(occurrence.number, occurrence.valueOffset, occurrence.value.size());
        } else {
            finding.source = isName ? tag.excerptOfName(occurrence.number) : tag.excerptOfValue(occurrence.number);
        }
    }
    finding.notation = occurrence.notation;
    finding.text = occurrence.value;
    finding.number = occurrence.number;
    finding.textOffset = occurrence.valueOffset;
    report(finding);
}

void Checker::find(ReferenceFault const& fault) {
    Finding finding;
    finding.fault = fault.kind == ReferenceFault::DuplicateId ? Fault::DuplicateId : Fault::DanglingReference;
    if (!isReported(finding.fault)) return;
    finding.place = fault.place;
    finding.element = fault.element;
    finding.attribute = fault.attribute;
    finding.text = fault.text;
    report(finding);
}

} // namespace Command
