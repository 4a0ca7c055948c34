// What the lists of SVG attributes are made of: white space, separators and numbers as the recommendation has them.
#pragma once

#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"

#include <cstdint>
#include <limits>
#include <string_view>

namespace Xml {

// A number as it stands in the text.
struct SvgNumber {
    char16_t const* begin = nullptr;
    char16_t const* end = nullptr;
    float value = 0; // infinite when it is too large for a float
};

// Whether a number may end with its point. It may in the grammars of path data, points and transforms, and nowhere
// else in SVG 1.1.
enum class FinalPoint : std::uint8_t { Legal, Illegal };

// A position in a text, and the first thing that is wrong with it.
class SvgScanner {
public:
    explicit SvgScanner(std::u16string_view text) : at(text.data()), first(at), last(at + text.size()) {}

    char16_t const* at;

    char16_t const* begin() const { return first; }
    char16_t const* end() const { return last; }
    bool atEnd() const { return at == last; }
    bool isAt(char16_t unit) const { return at != last && *at == unit; }

    void skipSpace() {
        while (at != last && Core::isXmlSpace(*at)) ++at;
    }

    // White space with at most one comma in it. True when there was a comma, which something has to follow.
    bool skipSeparator() {
        skipSpace();
        if (!isAt(u',')) return false;
        ++at;
        skipSpace();
        return true;
    }

    bool isAtNumber() const { return at != last && (Core::isDigit(*at) || *at == u'-' || *at == u'+' || *at == u'.'); }

    // Takes the longest number; fails when there is none. Where the fast path stops, only an exponent can follow.
    bool takeNumber(SvgNumber& number, FinalPoint finalPoint = FinalPoint::Legal) {
        number.begin = at;
        char16_t const* const after = Core::scanPlain(at, last, number.value);
        if (!after || (after != last && Core::toLower(*after) == u'e')) return takeDecimal(number, finalPoint);
        number.end = at = after;
        return true;
    }

    // Says what is wrong with what stands at the position: a word, a comma, or a number and whatever else follows it.
    bool fail(std::string_view what) {
        auto const isMark = [](char16_t unit) {
            return Core::isXmlSpace(unit) || unit == u',' || unit == u'(' || unit == u')';
        };
        if (at == last) return fail(what, at);
        char16_t const* after = at + 1;
        if (!isMark(*at))
            while (after != last && !isMark(*after) && Core::isLetter(*after) == Core::isLetter(*at)) ++after;
        return fail(what, after);
    }

    // The same where the part that is wrong is known to end at `after`.
    bool fail(std::string_view what, char16_t const* after) {
        problem = what;
        problemEnd = after;
        return false;
    }

    std::string_view problem; // empty: nothing is wrong so far; else it is about `at` to `problemEnd`
    char16_t const* problemEnd = nullptr;

private:
    bool takeDecimal(SvgNumber& number, FinalPoint finalPoint) {
        Core::Decimal const decimal = Core::scanDecimal({at, static_cast<std::size_t>(last - at)});
        if (!decimal.end) return fail("expected a number");
        if (finalPoint == FinalPoint::Illegal) {
            std::u16string_view const text(at, static_cast<std::size_t>(decimal.end - at));
            std::size_t const afterPoint = text.find(u'.') + 1; // 0 when there is no point
            if (afterPoint != 0 && (afterPoint == text.size() || !Core::isDigit(text[afterPoint])))
                return fail("expected a digit after the decimal point", decimal.end);
        }
        if (!Core::toFloat(decimal, number.value)) {
            constexpr float infinity = std::numeric_limits<float>::infinity();
            number.value = decimal.negative ? -infinity : infinity;
        }
        number.end = at = decimal.end;
        return true;
    }

    char16_t const* first;
    char16_t const* last;
};

} // namespace Xml
