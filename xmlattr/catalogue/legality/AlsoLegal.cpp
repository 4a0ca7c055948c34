#include "xmlattr/catalogue/legality/AlsoLegal.h"

#include "xmlattr/catalogue/legality/Words.h"

#include "xmlattr/core/String.h"
#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Xml {

namespace {

// The length of the number at the start of the text, or 0.
std::size_t numberLength(std::u16string_view text) {
    std::size_t i = 0;
    auto const skipDigits = [&] {
        std::size_t const first = i;
        while (i < text.size() && Core::isDigit(text[i])) ++i;
        return i - first;
    };
    auto const isAt = [&](std::u16string_view units) {
        return i < text.size() && units.find(text[i]) != std::u16string_view::npos;
    };
    if (isAt(u"+-")) ++i;
    std::size_t digits = skipDigits();
    if (isAt(u".")) {
        ++i;
        digits += skipDigits();
    }
    if (digits == 0) return 0;
    std::size_t const mantissa = i;
    if (isAt(u"eE")) {
        ++i;
        if (isAt(u"+-")) ++i;
        if (skipDigits() == 0) i = mantissa;
    }
    return i;
}

bool isNumber(std::u16string_view text) {
    return !text.empty() && numberLength(text) == text.size();
}

bool isInteger(std::u16string_view text) {
    return isNumber(text) && text.find_first_of(u".eE") == std::u16string_view::npos;
}

bool isNumberWith(std::u16string_view text, std::u16string_view unit) {
    return text.ends_with(unit) && isNumber(text.substr(0, text.size() - unit.size()));
}

bool isAngle(std::u16string_view text) {
    return std::ranges::any_of(std::initializer_list<std::u16string_view>{u"", u"deg", u"grad", u"rad"},
                               [&](std::u16string_view unit) { return isNumberWith(text, unit); });
}

// How many numbers the text consists of, with blanks or commas between them; 0 when it has others.
std::size_t countNumbers(std::u16string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        std::size_t const length = numberLength(text);
        if (length == 0) return 0;
        ++count;
        text = Core::trimStart(text.substr(length));
        if (text.starts_with(u',')) text = Core::trimStart(text.substr(1));
    }
    return count;
}

// The shape of a language tag: letters, then parts of letters and digits, each of one to eight.
bool isLanguage(std::u16string_view text) {
    if (text.empty()) return true;
    bool isFirst = true;
    for (;;) {
        std::size_t const end = std::min(text.find(u'-'), text.size());
        auto const belongs = [&](char16_t unit) {
            char16_t const lower = Core::toLower(unit);
            return (lower >= u'a' && lower <= u'z') || (!isFirst && Core::isDigit(unit));
        };
        if (end == 0 || end > 8 || !std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), belongs))
            return false;
        if (end == text.size()) return true;
        text.remove_prefix(end + 1);
        isFirst = false;
    }
}

// rgb(...) with three integers or three percentages, # with three or six digits, and the names in
// any case, all of which the colour type knows in lower case.
bool isColor(std::u16string_view text, Accepts accepts) {
    constexpr std::u16string_view opening = u"rgb(";
    if (text.starts_with(u'#'))
        return (text.size() == 4 || text.size() == 7) && std::all_of(text.begin() + 1, text.end(), [](char16_t unit) {
                   char16_t const lower = Core::toLower(unit);
                   return Core::isDigit(unit) || (lower >= u'a' && lower <= u'f');
               });
    if (text.size() > opening.size() && Core::equalsNoCase(text.substr(0, opening.size()), opening) &&
        text.ends_with(u')')) {
        text = Core::trim(text.substr(opening.size(), text.size() - opening.size() - 1));
        bool const arePercentages = text.ends_with(u'%');
        for (int i = 0; i < 3; ++i) {
            std::size_t const end = i < 2 ? text.find(u',') : text.size();
            if (end == std::u16string_view::npos) return false;
            std::u16string_view const part = Core::trim(text.substr(0, end));
            if (!(arePercentages ? isNumberWith(part, u"%") : isInteger(part))) return false;
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        return true;
    }
    bool const isName = text.size() <= 32 && std::ranges::none_of(text, [](char16_t unit) { return unit == u'('; });
    return isName && accepts(Core::String(text).toLower());
}

bool isOneOf(std::string_view token, CatalogueEntry const& entry, std::u16string_view text, Accepts accepts) {
    if (!token.starts_with('<')) return equalsWord(text, token, entry.vocabulary == Vocabulary::Svg);
    if (token == "<number>") return isNumber(text);
    if (token == "<integer>") return isInteger(text);
    if (token == "<percentage>") return isNumberWith(text, u"%");
    if (token == "<angle>") return isAngle(text);
    if (token == "<color>") return isColor(text, accepts);
    if (token == "<uri>") return true;
    if (token == "<language>") return isLanguage(text);
    if (token == "<number>{4}") return countNumbers(text) == 4;
    if (token == "<number>{2,}") return countNumbers(text) >= 2;
    return false;
}

} // namespace

bool isAlsoLegal(CatalogueEntry const& entry, std::u16string_view text, Accepts accepts) {
    std::vector<std::string_view> const tokens = splitWords(entry.alsoLegal);
    auto const isLegalAlone = [&](std::u16string_view item) {
        return accepts(item) || std::ranges::any_of(tokens, [&](std::string_view token) {
                   return isOneOf(token, entry, item, accepts);
               });
    };
    for (std::string_view const token : tokens) {
        if (isOneOf(token, entry, text, accepts)) return true;
        if (token == "<list>") {
            auto const items = splitValues(text, true);
            if (items.size() > 1 && std::ranges::all_of(items, isLegalAlone)) return true;
        }
        if (token.ends_with("()")) {
            auto const items = splitValues(text);
            if (items.empty() || !items.back().ends_with(u')')) continue;
            std::u16string_view const call = items.back();
            if (!equalsWord(call.substr(0, call.find(u'(')), token.substr(0, token.size() - 2))) continue;
            std::u16string_view const before = Core::trim(text.substr(0, text.size() - call.size()));
            if (before.empty() || isLegalAlone(before)) return true;
        }
    }
    return false;
}

} // namespace Xml
