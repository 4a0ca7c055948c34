#include "checking/Finding.h"

#include "text/Text.h"

#include <algorithm>

namespace Command {

namespace {

constexpr FaultKind kinds[] = {
    {Fault::BadValue, "bad-value", Severity::Error,
     "The text is not legal on the attribute, and the value type that reads it refuses it. Nor is it \"inherit\" or\n"
     "an expression of XSL-FO, which the formatter works out by itself. The message tells what is legal, or what to\n"
     "write where that can be guessed. `xmlattr show TYPE TEXT` tries a text on a value type.\n"},
    {Fault::BadWord, "bad-word", Severity::Warning,
     "The text is not legal on the attribute by its recommendation. No value type reads the attribute: what becomes\n"
     "of it depends on the formatter.\n"},
    {Fault::Misread, "misread", Severity::Warning,
     "The text is legal, but the value type holds something else than it means: in \"M0 0a.5.5 0 0 1 1 1\" it takes\n"
     "\".5.5\" for one number. Or the type refuses the text, but reads another text with the same meaning. The\n"
     "message tells what is held, and a text with the same meaning that is read as it is written.\n"},
    {Fault::Lenient, "lenient", Severity::Warning,
     "The text is not legal on the attribute, but the value type takes it nevertheless: margin=\"10\" is 1000%, say.\n"
     "The message tells what is held; other formatters may refuse the text or read it otherwise.\n"},
    {Fault::Negative, "negative", Severity::Warning,
     "The recommendation forbids negative values of the attribute, and the text has one that the value type takes.\n"},
    {Fault::NewerValue, "newer-value", Severity::Warning,
     "The text is a value of a recommendation that came after XSL-FO 1.1 and SVG 1.1, such as SVG 2 or CSS 3. It is\n"
     "no typing error, but the formatter may not read it.\n"},
    {Fault::UnknownAttribute, "unknown-attribute", Severity::Warning,
     "The vocabulary has no attribute, or no property, of this name, and no newer recommendation that is known has\n"
     "one; or it stands there with the prefix of the element, where attributes have none. Attributes of other\n"
     "namespaces, data-*, aria-* and event handlers are never reported.\n"},
    {Fault::UnknownElement, "unknown-element", Severity::Warning,
     "The vocabulary has no element of this name; or its namespace is nearly that of XSL-FO, SVG, XLink or XSLT, so\n"
     "that nothing in it is checked.\n"},
    {Fault::MisplacedAttribute, "misplaced-attribute", Severity::Warning,
     "The vocabulary has the attribute, but not on this element, where it has no effect. In XSL-FO inherited\n"
     "properties may stand on every element. Reported with --strict only.\n"},
    {Fault::DuplicateId, "duplicate-id", Severity::Warning, "Another element of the document has the same id.\n"},
    {Fault::DanglingReference, "dangling-reference", Severity::Warning,
     "The attribute refers to an id of the same document that no element has, or to a result that no filter primitive\n"
     "before it in the same filter has.\n"},
    {Fault::PassedOver, "passed-over", Severity::Note,
     "The text is legal, but no value type reads it: \"inherit\", an expression of XSL-FO, a word of an attribute\n"
     "without a value type. The formatter works it out by itself. Told with --show passed-over.\n"},
    {Fault::NotCovered, "not-covered", Severity::Note,
     "Nothing judges the attribute: it belongs to another vocabulary, is a template of a stylesheet, too long, cut by\n"
     "an entity that is not read, or unknown to the catalogue. Told with --show not-covered; those that are unknown\n"
     "also with --show unknown.\n"},
};

// What a message shows of a long text: about the range that matters.
std::string around(std::string const& text, std::size_t offset, std::size_t length) {
    constexpr std::size_t longest = 60, context = 12;
    if (text.size() <= longest) return printable(text);
    auto const isInside = [&](std::size_t at) { return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; };
    std::size_t first = offset > context ? offset - context : 0;
    while (first > 0 && isInside(first)) --first;
    std::size_t last = std::min(text.size(), offset + std::min(length, longest - context) + context);
    while (last < text.size() && isInside(last)) ++last;
    return (first > 0 ? "..." : "") + printable(std::string_view(text).substr(first, last - first)) +
           (last < text.size() ? "..." : "");
}

// A value, in quotation marks where it would not be seen where it begins or ends.
std::string shown(std::string const& value) {
    bool const hasEnds = !value.starts_with(' ') && !value.ends_with(' ');
    return hasEnds ? printable(value) : inQuotes(printable(value));
}

} // namespace

std::span<FaultKind const> faultKinds() {
    return kinds;
}

FaultKind const& kindOf(Fault fault) {
    return *std::ranges::find(kinds, fault, &FaultKind::fault);
}

std::string_view wordOf(Severity severity) {
    switch (severity) {
    case Severity::Error: return "error";
    case Severity::Warning: return "warning";
    case Severity::Note: break;
    }
    return "note";
}

std::string Finding::listOfParts() const {
    std::string list = inQuotes(printable(part));
    for (std::string const& other : otherParts)
        list += (&other == &otherParts.back() ? " and " : ", ") + inQuotes(printable(other));
    return list;
}

// What becomes of a value of a newer recommendation.
std::string Finding::rejection() const {
    bool const isTyped = entry && (entry->type() || !entry->longhands.empty());
    if (isTyped) return ", which the formatter does not read";
    return entry ? std::string(" and not ").append(Xml::Catalogue::recommendation(entry->vocabulary)) : "";
}

std::string Finding::message() const {
    std::string const where = " on " + printable(element);
    switch (fault) {
    case Fault::UnknownElement:
        return printable(element) + " " + problem +
               (replacement.empty() ? "" : "; did you mean " + inQuotes(replacement) + "?");
    case Fault::UnknownAttribute:
        return printable(attribute) + where + " " +
               (!problem.empty()                         ? problem
                : notation == Xml::Notation::Declaration ? "is no known property"
                                                         : "is no known attribute") +
               (replacement.empty() ? "" : "; did you mean " + inQuotes(replacement) + "?");
    case Fault::MisplacedAttribute:
        return printable(attribute) + where + " has no effect: the element does not have it";
    case Fault::DuplicateId:
        return attribute + "=" + inQuotes(printable(text)) + where + " is the id of another element";
    case Fault::DanglingReference:
        return attribute + where + " refers to " + inQuotes(printable(text)) + ", " +
               (problem.empty() ? "which no element has as its id" : problem);
    case Fault::PassedOver:
        return attribute + "=" + inQuotes(printable(text)) + where + " is legal, but no value type reads it";
    case Fault::NotCovered:
        return printable(attribute) + "=" + inQuotes(printable(text)) + where + " is not covered: " + problem;
    case Fault::BadValue:
    case Fault::BadWord:
    case Fault::Misread:
    case Fault::Lenient:
    case Fault::Negative:
    case Fault::NewerValue: break;
    }
    std::string line = attribute + "=" + inQuotes(around(text, offset, length)) + where;
    if (!part.empty() && part != text) line += ": " + listOfParts();
    bool const needsExpected =
        problem.empty() && (fault == Fault::BadValue || fault == Fault::BadWord || fault == Fault::Lenient);
    bool const isSame = fault == Fault::Negative || (fault != Fault::Misread && held == (part.empty() ? text : part));
    bool const showsHeld = !held.empty() && !isSame;
    bool const isPredicate = problem.starts_with("is ") || problem.starts_with("has ");
    if (fault == Fault::NewerValue)
        line += " is " + newer + (isTaken ? "" : rejection());
    else if (!problem.empty())
        line += (isPredicate ? " " : ": ") + problem;
    else if (fault == Fault::Negative)
        line += " is negative";
    else if (fault != Fault::Misread && (fault != Fault::Lenient || !showsHeld))
        line += otherParts.empty() ? " is not legal" : " are not legal";
    if (showsHeld) {
        bool const isFirst = problem.empty() && (line.ends_with('"') || line.ends_with(element));
        bool const isApart = !problem.empty() && !isPredicate;
        line += (isFirst ? " is read as " : isApart ? "; it is read as " : ", and is read as ") + shown(held);
    } else if (fault == Fault::Misread) {
        if (problem.empty()) line += " is read otherwise";
    } else if (isTaken) {
        line += ", but the formatter takes it";
    }
    if (!replacement.empty())
        line += "; write " + inQuotes(around(replacement, offset, replacement.size() + length - text.size()));
    else if (needsExpected && !expected.empty())
        line += "; expected " + expected;
    return line;
}

std::array<std::string_view, 4> Finding::identity() const {
    return {kindOf(fault).id, element, attribute, text};
}

} // namespace Command
