#include "xmlattr/catalogue/legality/AlsoLegal.h"

#include "xmlattr/catalogue/text/Words.h"

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
        text = trimXmlSpace(text.substr(length));
        if (text.starts_with(u',')) text = trimXmlSpace(text.substr(1));
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
bool isColor(std::u16string_view text, Accepts const& accepts) {
    constexpr std::u16string_view opening = u"rgb(";
    if (text.starts_with(u'#'))
        return (text.size() == 4 || text.size() == 7) && std::all_of(text.begin() + 1, text.end(), [](char16_t unit) {
                   char16_t const lower = Core::toLower(unit);
                   return Core::isDigit(unit) || (lower >= u'a' && lower <= u'f');
               });
    if (text.size() > opening.size() && Core::equalsNoCase(text.substr(0, opening.size()), opening) &&
        text.ends_with(u')')) {
        text = trimXmlSpace(text.substr(opening.size(), text.size() - opening.size() - 1));
        bool const arePercentages = text.ends_with(u'%');
        for (int i = 0; i < 3; ++i) {
            std::size_t const end = i < 2 ? text.find(u',') : text.size();
            if (end == std::u16string_view::npos) return false;
            std::u16string_view const part = trimXmlSpace(text.substr(0, end));
            if (!(arePercentages ? isNumberWith(part, u"%") : isInteger(part))) return false;
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        return true;
    }
    bool const isName = text.size() <= 32 && std::ranges::none_of(text, [](char16_t unit) { return unit == u'('; });
    return isName && accepts(Core::String(text).toLower());
}

class Row {
public:
    Row(std::span<LegalToken const> tokens, Vocabulary vocabulary, Accepts const& accepts)
        : tokens(tokens), ignoresCase(vocabulary == Vocabulary::Svg), accepts(accepts) {}

    bool allows(std::u16string_view text) const {
        return std::ranges::any_of(tokens, [&](LegalToken const& token) { return allows(token, text); });
    }

private:
    bool allows(LegalToken const& token, std::u16string_view text) const {
        switch (token.kind) {
        case LegalToken::Kind::Word: return equalsWord(text, token.text, ignoresCase);
        case LegalToken::Kind::Call: return endsWithCall(token.text.substr(0, token.text.find('(')), text);
        case LegalToken::Kind::List: return isList(text);
        case LegalToken::Kind::Number: return isNumber(text);
        case LegalToken::Kind::FourNumbers: return countNumbers(text) == 4;
        case LegalToken::Kind::SeveralNumbers: return countNumbers(text) >= 2;
        case LegalToken::Kind::Integer: return isInteger(text);
        case LegalToken::Kind::Percentage: return isNumberWith(text, u"%");
        case LegalToken::Kind::Angle: return isAngle(text);
        case LegalToken::Kind::Color: return isColor(text, accepts);
        case LegalToken::Kind::Uri: return true;
        case LegalToken::Kind::Language: return isLanguage(text);
        }
        return false;
    }

    // Whether the text is legal without a list or a call.
    bool isLegalAlone(std::u16string_view text) const {
        return accepts(text) || std::ranges::any_of(tokens, [&](LegalToken const& token) {
                   return token.kind != LegalToken::Kind::Call && token.kind != LegalToken::Kind::List &&
                          allows(token, text);
               });
    }

    bool isList(std::u16string_view text) const {
        auto const items = splitValues(text, u",");
        return items.size() > 1 &&
               std::ranges::all_of(items, [&](std::u16string_view item) { return isLegalAlone(item); });
    }

    bool endsWithCall(std::string_view name, std::u16string_view text) const {
        auto const items = splitValues(text);
        if (items.empty() || !items.back().ends_with(u')')) return false;
        std::u16string_view const call = items.back();
        if (!equalsWord(call.substr(0, call.find(u'(')), name)) return false;
        std::u16string_view const before = trimXmlSpace(text.substr(0, text.size() - call.size()));
        return before.empty() || isLegalAlone(before);
    }

    std::span<LegalToken const> tokens;
    bool ignoresCase;
    Accepts const& accepts;
};

} // namespace

bool isAlsoLegal(std::span<LegalToken const> tokens, Vocabulary vocabulary, std::u16string_view text,
                 Accepts const& accepts) {
    return Row(tokens, vocabulary, accepts).allows(text);
}

} // namespace Xml
