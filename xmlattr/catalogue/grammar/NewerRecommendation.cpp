#include "xmlattr/catalogue/grammar/NewerRecommendation.h"

#include "xmlattr/catalogue/grammar/NewerValues.h"
#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

namespace Xml {

namespace {

template <class Unit> constexpr std::basic_string_view<Unit> takeFirst(std::basic_string_view<Unit>& words) {
    std::basic_string_view<Unit> const word = words.substr(0, words.find(Unit{' '}));
    words.remove_prefix(std::min(word.size() + 1, words.size()));
    return word;
}

// The words of all lists, each with the number of its list.
template <auto const& lists>
constexpr auto rowsOf = [] {
    constexpr std::size_t count = [] {
        std::size_t words = 0;
        for (auto const& list : lists)
            for (auto rest = list.words; !rest.empty(); ++words) takeFirst(rest);
        return words;
    }();
    using Unit = typename decltype(lists[0].words)::value_type;
    std::array<Core::WordRow<std::size_t, Unit>, count> rows{};
    std::size_t next = 0;
    for (std::size_t i = 0; i < std::size(lists); ++i)
        for (auto rest = lists[i].words; !rest.empty();) rows[next++] = {takeFirst(rest), i};
    return rows;
}();

// The recommendation that has the word; empty when none has.
template <auto const& lists> std::string_view find(std::u16string_view word) {
    auto const list = Core::WordTable<rowsOf<lists>, Core::Case::Any>::find(word);
    return list ? lists[*list].recommendation : std::string_view();
}

bool belongsToWord(char16_t unit) {
    return Core::isLetter(unit) || Core::isDigit(unit) || unit == u'-' || unit == u'_' || unit >= 0x80;
}

class Scanner {
public:
    Scanner(Dialect dialect, std::u16string_view text) : isSvg(dialect != Dialect::Fo), text(text) {}

    std::string_view find() {
        while (index < text.size()) {
            char16_t const unit = text[index];
            std::string_view found;
            if (unit == u'"' || unit == u'\'') {
                index = std::min(text.find(unit, index + 1), text.size() - 1) + 1;
            } else if (unit == u'#') {
                ++index;
                found = color(takeWord());
            } else if (Core::isDigit(unit)) {
                found = number();
            } else if (belongsToWord(unit)) {
                found = word(takeWord());
            } else {
                if (unit == u')') isTransform = false;
                ++index;
            }
            if (!found.empty()) return found;
        }
        return {};
    }

private:
    std::u16string_view takeWord() {
        std::size_t const first = index;
        while (index < text.size() && belongsToWord(text[index])) ++index;
        return text.substr(first, index - first);
    }

    static std::string_view color(std::u16string_view digits) {
        bool const hasAlpha = (digits.size() == 4 || digits.size() == 8) &&
                              std::ranges::all_of(digits, [](char16_t unit) { return Core::hexDigit(unit) >= 0; });
        return hasAlpha ? "CSS 4" : "";
    }

    std::string_view number() {
        while (index < text.size() && (Core::isDigit(text[index]) || text[index] == u'.')) ++index;
        bool const isPercentage = index < text.size() && text[index] == u'%';
        std::u16string_view const unit = takeWord();
        bool const isExponent = unit.size() > 1 && Core::toLower(unit[0]) == u'e' && !Core::isLetter(unit[1]);
        if (isTransform && (isPercentage || (!unit.empty() && Core::isLetter(unit[0]) && !isExponent))) return "CSS 3";
        return Xml::find<newerUnits>(unit);
    }

    std::string_view word(std::u16string_view word) {
        if (index == text.size() || text[index] != u'(')
            return word == u"currentcolor" ? "CSS 4" : Xml::find<newerWords>(word);
        if (equalsWord(word, "url", true)) {
            index = std::min(text.find(u')', index), text.size());
            return {};
        }
        if (equalsWord(word, "rgb", true)) return components();
        isTransform = isSvg && !Xml::find<olderTransforms>(word).empty();
        std::string_view const found = Xml::find<newerFunctions>(word);
        bool const isColor = word == u"rgba" || word == u"hsl" || word == u"hsla" || word == u"hwb";
        if (isColor && !hasComponents()) return {};
        return found.empty() && isSvg ? Xml::find<newerSvgFunctions>(word) : found;
    }

    // Up to the end of the call, or to another one in it.
    std::u16string_view arguments() const {
        std::u16string_view const rest = text.substr(index + 1);
        return rest.substr(0, rest.find_first_of(u"()"));
    }

    // Three, and perhaps an alpha; a call among them may give several.
    bool hasComponents() const {
        std::u16string_view const given = arguments();
        std::size_t const count = splitValues(given, u",/").size(), end = index + 1 + given.size();
        return count == 3 || count == 4 || (end < text.size() && text[end] == u'(');
    }

    // rgb() with blanks instead of commas, or with a fourth part.
    std::string_view components() const {
        std::u16string_view const arguments = this->arguments();
        auto const commas = std::ranges::count(arguments, u',');
        bool const hasBlanks = commas == 0 && splitValues(trimXmlSpace(arguments)).size() >= 3;
        bool const hasAlpha = commas == 3 && hasComponents() && splitValues(arguments, u",").size() != 3;
        return hasBlanks || hasAlpha || arguments.find(u'/') != std::u16string_view::npos ? "CSS 4" : "";
    }

    bool isSvg;
    std::u16string_view text;
    std::size_t index = 0;
    bool isTransform = false;
};

} // namespace

std::string_view newerRecommendation(Dialect dialect, std::string_view attribute, std::u16string_view text) {
    Meaning meaning;
    auto const row = dialect == Dialect::Fo ? std::nullopt : Core::WordTable<rowsOf<newerValues>>::find(attribute);
    if (row && readMeaning(meaning, newerValues[*row].grammar, dialect, text)) return newerValues[*row].recommendation;
    bool const isPath = attribute == "d" || attribute == "path"; // whose letters are no units
    if (isPath) return {};
    return Scanner(dialect, text).find();
}

} // namespace Xml
