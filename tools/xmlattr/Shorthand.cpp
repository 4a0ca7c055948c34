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

constexpr std::string_view systemFonts = "caption icon menu message-box small-caption status-bar";

bool isWordOf(std::string_view words, std::u16string_view text, bool ignoreCase) {
    return std::ranges::any_of(splitWords(words),
                               [&](std::string_view word) { return equalsWord(text, word, ignoreCase); });
}

class Judge {
public:
    explicit Judge(Xml::CatalogueEntry const& entry) : entry(entry) {}

    ShorthandVerdict byRule(Rule const& rule, std::vector<std::u16string> const& parts) {
        if (parts.size() > rule.mostParts)
            return {Verdict::Refused, {}, {}, "has more than " + std::to_string(rule.mostParts) + " parts"};
        for (std::u16string const& part : parts)
            if (!isOneOf(rule.longhands, part) && !pass(isWordOf(rule.words, part, ignoresCase())))
                return refusal(part);
        return accepted();
    }

    // [style, variant and weight in any order] size[/line-height] family
    ShorthandVerdict font(std::vector<std::u16string> const& parts) {
        if (parts.size() == 1 && isWordOf(systemFonts, parts[0], ignoresCase()))
            return {Verdict::PassedOver, {}, {}, {}};
        std::size_t i = 0;
        while (i < parts.size() && isOneOf("font-style font-variant font-weight", parts[i])) ++i;
        if (i == parts.size()) return {Verdict::Refused, {}, {}, "has no font size"};

        std::u16string_view size = parts[i], height;
        if (std::size_t const slash = size.find(u'/'); slash != size.npos) {
            height = size.substr(slash + 1);
            size = size.substr(0, slash);
        }
        bool const isOpen = parts[i].ends_with(u'/');
        ++i;
        if (height.empty() && i < parts.size() && (isOpen || parts[i].starts_with(u'/'))) {
            height = std::u16string_view(parts[i]).substr(isOpen ? 0 : 1);
            if (height.empty() && ++i < parts.size()) height = parts[i];
            ++i;
        }
        if (!isOneOf("font-size", size)) return refusal(size);
        if (!height.empty() && !isOneOf("line-height", height)) return refusal(height);
        if (i >= parts.size()) return {Verdict::Refused, {}, {}, "has no font family"};
        return accepted();
    }

private:
    bool ignoresCase() const { return entry.vocabulary == Xml::Vocabulary::Svg; }

    bool pass(bool isLegal) {
        hasPassed |= isLegal;
        return isLegal;
    }

    bool isOneOf(std::string_view longhands, std::u16string_view part) {
        tried.clear();
        bool isMissing = false;
        for (std::string_view const name : splitWords(longhands)) {
            Property const* const property = findProperty(entry.vocabulary, "*", name);
            if (!property) return pass(true); // a property that this vocabulary does not have
            // A URL can be any text; among other values only these two forms are one.
            bool const isAnyText = property->entry->valueType == "Url" && longhands.find(' ') != longhands.npos;
            if (isAnyText && !part.starts_with(u"url(") && part != u"none") continue;
            switch (property->judge(part)) {
            case Verdict::Checked: return hasChecked = true;
            case Verdict::PassedOver: return pass(true);
            case Verdict::TypeMissing: isMissing = true; break;
            case Verdict::Refused: tried.push_back(property->type); break;
            }
        }
        hasMissing |= isMissing;
        return isMissing;
    }

    ShorthandVerdict refusal(std::u16string_view part) const { return {Verdict::Refused, toUtf8(part), tried, {}}; }

    ShorthandVerdict accepted() const {
        return {hasChecked ? Verdict::Checked : hasMissing ? Verdict::TypeMissing : Verdict::PassedOver, {}, {}, {}};
    }

    Xml::CatalogueEntry const& entry;
    std::vector<ValueType const*> tried;
    bool hasChecked = false, hasPassed = false, hasMissing = false;
};

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
    text = Core::trim(text);
    bool const isSvg = entry.vocabulary == Xml::Vocabulary::Svg;
    if (equalsWord(text, "inherit", isSvg) ||
        (!isSvg && isCall(text) && entry.attribute.find("color") == std::string_view::npos))
        return {Verdict::PassedOver, {}, {}, {}};
    std::vector<std::u16string> const parts = splitParts(text);
    if (parts.empty()) return {Verdict::Refused, {}, {}, "is empty"};
    if (entry.attribute == "font") return Judge(entry).font(parts);
    for (Rule const& rule : rules)
        if (rule.attribute == entry.attribute) return Judge(entry).byRule(rule, parts);
    return {Verdict::TypeMissing, {}, {}, "no part that a value type reads"};
}

} // namespace Command
