#include "Shorthand.h"

#include "Expression.h"
#include "Text.h"

#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Command {

namespace {

// Each part is a value of one of the longhands, or one of the words, which no value type reads.
struct Rule {
    std::string_view attribute;
    std::size_t mostParts;
    std::string_view longhands;
    std::string_view words;
};

constexpr Rule rules[] = {
    {"background", 6, "background-color background-image background-repeat background-position-horizontal",
     "scroll fixed"},
    {"background-position", 2, "background-position-horizontal", ""},
    {"border", 3, "border-top-width border-top-style border-top-color", ""},
    {"border-bottom", 3, "border-bottom-width border-bottom-style border-bottom-color", ""},
    {"border-color", 4, "border-top-color", ""},
    {"border-left", 3, "border-left-width border-left-style border-left-color", ""},
    {"border-right", 3, "border-right-width border-right-style border-right-color", ""},
    {"border-style", 4, "border-top-style", ""},
    {"border-top", 3, "border-top-width border-top-style border-top-color", ""},
    {"border-width", 4, "border-top-width", ""},
    {"cue", 2, "cue-before", ""},
    {"margin", 4, "margin-top", ""},
    {"marker", 1, "marker-start", ""},
    {"padding", 4, "padding-top", ""},
    {"position", 1, "absolute-position relative-position", ""},
    {"size", 2, "page-width", "landscape portrait"},
    {"vertical-align", 1, "baseline-shift", "top text-top middle bottom text-bottom"},
};

constexpr Rule fontRule{"font", SIZE_MAX, "font-style font-variant font-weight font-size line-height", ""};
constexpr std::string_view systemFonts = "caption icon menu message-box small-caption status-bar";

bool isWordOf(std::string_view words, std::u16string_view text, bool ignoreCase) {
    return std::ranges::any_of(splitWords(words),
                               [&](std::string_view word) { return equalsWord(text, word, ignoreCase); });
}

// A number is a weight only in hundreds, else a size, though the type reads any as a weight.
bool mayBeStyle(std::u16string_view part) {
    return !Core::isDigit(part[0]) || (part.size() == 3 && part.ends_with(u"00"));
}

class Judge {
public:
    explicit Judge(Xml::CatalogueEntry const& entry) : entry(entry) {}

    ShorthandVerdict byRule(Rule const& rule, std::vector<std::u16string> const& parts) {
        if (parts.size() > rule.mostParts)
            return {Verdict::Refused, {}, {}, "has more than " + std::to_string(rule.mostParts) + " parts"};
        for (std::u16string const& part : parts)
            if (!isOneOf(rule.longhands, part) && !isWordOf(rule.words, part, ignoresCase())) return refusal(part);
        return accepted();
    }

    // [style, variant and weight in any order] size[/line-height] family
    ShorthandVerdict font(std::vector<std::u16string> const& parts) {
        bool const isWhole = parts.size() == 1 && (isWordOf(systemFonts, parts[0], ignoresCase()) || isCopy(parts[0]));
        if (isWhole) return {Verdict::PassedOver, {}, {}, {}};
        std::size_t i = 0;
        while (i < parts.size() && mayBeStyle(parts[i]) && isOneOf("font-style font-variant font-weight", parts[i]))
            ++i;
        if (i == parts.size()) return {Verdict::Refused, {}, {}, "has no font size"};
        if (!isOneOf("font-size", parts[i])) return refusal(parts[i]);
        if (++i + 1 < parts.size() && parts[i] == u"/") {
            if (!isOneOf("line-height", parts[i + 1])) return refusal(parts[i + 1]);
            i += 2;
        }
        if (i >= parts.size()) return {Verdict::Refused, {}, {}, "has no font family"};
        return accepted();
    }

private:
    bool ignoresCase() const { return entry.vocabulary == Xml::Vocabulary::Svg; }

    // What a type reads is its value, though another property could take it for an expression.
    bool isOneOf(std::string_view longhands, std::u16string_view part) {
        bool hasPassed = false;
        tried.clear();
        for (std::string_view const name : splitWords(longhands)) {
            Property const* const property = findProperty(entry.vocabulary, "*", name);
            if (!property) return true; // this vocabulary does not have it
            // A URL can be any text; among other values only these two forms are one.
            bool const isAnyText = property->entry->valueType == "Url" && longhands.find(' ') != longhands.npos;
            if (isAnyText && !part.starts_with(u"url(") && part != u"none") continue;
            Verdict const verdict = property->judge(part);
            if (verdict == Verdict::Checked) return hasChecked = true;
            hasPassed |= verdict == Verdict::PassedOver;
            tried.push_back(property->type);
        }
        return hasPassed;
    }

    ShorthandVerdict refusal(std::u16string_view part) const { return {Verdict::Refused, toUtf8(part), tried, {}}; }

    ShorthandVerdict accepted() const { return {hasChecked ? Verdict::Checked : Verdict::PassedOver, {}, {}, {}}; }

    Xml::CatalogueEntry const& entry;
    std::vector<ValueType const*> tried;
    bool hasChecked = false;
};

bool hasTypes(Xml::CatalogueEntry const& entry, Rule const& rule) {
    return std::ranges::all_of(splitWords(rule.longhands), [&](std::string_view name) {
        Property const* const property = findProperty(entry.vocabulary, "*", name);
        return !property || property->type;
    });
}

// "12pt/14pt" as three parts.
std::u16string spacedSlashes(std::u16string_view text) {
    std::u16string spaced;
    for (char16_t const unit : text) unit == u'/' ? spaced.append(u" / ") : spaced.append(1, unit);
    return spaced;
}

bool isOperator(std::u16string_view part) {
    return part == u"+" || part == u"-" || part == u"*" || part == u"div" || part == u"mod";
}

} // namespace

std::vector<std::u16string> splitParts(std::u16string_view text) {
    std::vector<std::u16string> parts;
    bool joins = false;
    for (std::u16string_view const value : splitValues(text)) {
        if (!parts.empty() && (joins || isOperator(value)))
            parts.back().append(u" ").append(value);
        else
            parts.emplace_back(value);
        joins = isOperator(value);
    }
    return parts;
}

ShorthandVerdict judgeShorthand(Xml::CatalogueEntry const& entry, std::u16string_view text) {
    if (equalsWord(Core::trim(text), "inherit", entry.vocabulary == Xml::Vocabulary::Svg))
        return {Verdict::PassedOver, {}, {}, {}};
    bool const isFont = entry.attribute == fontRule.attribute;
    Rule const* const rule = isFont ? &fontRule : std::ranges::find(rules, entry.attribute, &Rule::attribute);
    if (rule == std::end(rules)) return {Verdict::TypeMissing, {}, {}, "no part that a value type reads"};
    if (!hasTypes(entry, *rule)) return {Verdict::TypeMissing, {}, {}, {}};
    std::vector<std::u16string> const parts = splitParts(isFont ? spacedSlashes(text) : std::u16string(text));
    if (parts.empty()) return {Verdict::Refused, {}, {}, "is empty"};
    return isFont ? Judge(entry).font(parts) : Judge(entry).byRule(*rule, parts);
}

} // namespace Command
