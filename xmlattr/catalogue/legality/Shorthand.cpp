#include "xmlattr/catalogue/legality/Shorthand.h"

#include "xmlattr/catalogue/legality/Expression.h"
#include "xmlattr/catalogue/legality/Words.h"

#include "xmlattr/core/Text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace Xml {

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

constexpr Rule fontRule{"font", SIZE_MAX, "font-style font-variant font-weight", ""};
constexpr std::string_view systemFonts = "caption icon menu message-box small-caption status-bar";

using Longhands = std::vector<Property const*>;

// A rule for one vocabulary, with what it names looked up.
struct Shorthand {
    CatalogueEntry const* entry = nullptr;
    Rule const* rule = nullptr; // null when no value type reads a part
    Longhands longhands;
    std::vector<std::string_view> words;
    Longhands size, height; // of a font
};

Longhands longhandsOf(CatalogueEntry const& entry, std::string_view names) {
    Longhands longhands;
    for (std::string_view const name : splitWords(names))
        if (Property const* const property = findProperty(entry.vocabulary, "*", name)) longhands.push_back(property);
    return longhands;
}

Shorthand const& shorthandOf(CatalogueEntry const& entry) {
    static std::vector<Shorthand> const shorthands = [] {
        std::vector<Shorthand> all;
        for (CatalogueEntry const& row : Catalogue::entries()) {
            if (row.kind != AttributeKind::Shorthand) continue;
            Shorthand& added = all.emplace_back();
            added.entry = &row;
            added.size = longhandsOf(row, "font-size");
            added.height = longhandsOf(row, "line-height");
            auto const* const rule = row.attribute == fontRule.attribute
                                         ? &fontRule
                                         : std::ranges::find(rules, row.attribute, &Rule::attribute);
            if (rule == std::end(rules)) continue;
            added.rule = rule;
            added.longhands = longhandsOf(row, rule->longhands);
            added.words = splitWords(rule == &fontRule ? systemFonts : rule->words);
        }
        return all;
    }();
    return *std::ranges::find(shorthands, &entry, &Shorthand::entry);
}

// A number is a weight only in hundreds, else a size, though the type reads any as a weight.
bool mayBeStyle(std::u16string_view part) {
    return !Core::isDigit(part[0]) || (part.size() == 3 && part.ends_with(u"00"));
}

class Judge {
public:
    explicit Judge(Shorthand const& shorthand) : shorthand(shorthand) {}

    Judgement byRule(std::vector<std::u16string_view> const& parts) {
        if (parts.size() > shorthand.rule->mostParts)
            return {Verdict::Refused, {}, {}, "has more than " + std::to_string(shorthand.rule->mostParts) + " parts"};
        for (std::u16string_view const part : parts)
            if (!isOneOf(shorthand.longhands, part) && !isWord(part)) return refusal(part);
        return accepted();
    }

    // [style, variant and weight in any order] size[/line-height] family
    Judgement font(std::vector<std::u16string_view> const& parts) {
        if (parts.size() == 1 && (isWord(parts[0]) || isCopy(parts[0]))) return {Verdict::PassedOver, {}, {}, {}};
        std::size_t i = 0;
        while (i < parts.size() && mayBeStyle(parts[i]) && isOneOf(shorthand.longhands, parts[i])) ++i;
        if (i == parts.size()) return {Verdict::Refused, {}, {}, "has no font size"};
        if (!isOneOf(shorthand.size, parts[i])) return refusal(parts[i]);
        if (++i + 1 < parts.size() && parts[i] == u"/") {
            bool const isHeight = shorthand.height.empty() || isOneOf(shorthand.height, parts[i + 1]);
            if (!isHeight) return refusal(parts[i + 1]);
            i += 2;
        }
        if (i >= parts.size()) return {Verdict::Refused, {}, {}, "has no font family"};
        return accepted();
    }

private:
    bool isWord(std::u16string_view part) const {
        bool const ignoresCase = shorthand.entry->vocabulary == Vocabulary::Svg;
        return std::ranges::any_of(shorthand.words,
                                   [&](std::string_view word) { return equalsWord(part, word, ignoresCase); });
    }

    // What a type reads is its value, though another property could take it for an expression.
    bool isOneOf(Longhands const& longhands, std::u16string_view part) {
        bool hasPassed = false;
        tried.clear();
        for (Property const* const property : longhands) {
            // A URL can be any text; among other values only these two forms are one.
            bool const isAnyText = property->entry->valueType == "Url" && longhands.size() > 1;
            if (isAnyText && !part.starts_with(u"url(") && part != u"none") continue;
            Verdict const verdict = property->judge(part);
            if (verdict == Verdict::Checked) return hasChecked = true;
            hasPassed |= verdict == Verdict::PassedOver;
            tried.push_back(property->type);
        }
        return hasPassed;
    }

    Judgement refusal(std::u16string_view part) const {
        return {Verdict::Refused, Core::String(part).toUtf8(), tried, {}};
    }

    Judgement accepted() const { return {hasChecked ? Verdict::Checked : Verdict::PassedOver, {}, {}, {}}; }

    Shorthand const& shorthand;
    std::vector<AttributeType const*> tried;
    bool hasChecked = false;
};

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

std::vector<std::u16string_view> splitParts(std::u16string_view text) {
    std::vector<std::u16string_view> parts;
    bool joins = false;
    for (std::u16string_view const value : splitValues(text)) {
        if (!parts.empty() && (joins || isOperator(value)))
            parts.back() = {parts.back().data(), value.data() + value.size()};
        else
            parts.push_back(value);
        joins = isOperator(value);
    }
    return parts;
}

Judgement judgeShorthand(CatalogueEntry const& entry, std::u16string_view text) {
    if (equalsWord(Core::trim(text), "inherit", entry.vocabulary == Vocabulary::Svg))
        return {Verdict::PassedOver, {}, {}, {}};
    Shorthand const& shorthand = shorthandOf(entry);
    if (!shorthand.rule) return {Verdict::NotCovered, {}, {}, {}};
    bool const isFont = shorthand.rule == &fontRule;
    std::u16string const spaced = isFont ? spacedSlashes(text) : std::u16string();
    auto const parts = splitParts(isFont ? spaced : text);
    if (parts.empty()) return {Verdict::Refused, {}, {}, "is empty"};
    return isFont ? Judge(shorthand).font(parts) : Judge(shorthand).byRule(parts);
}

} // namespace Xml
