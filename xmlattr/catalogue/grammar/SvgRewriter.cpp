#include "xmlattr/catalogue/grammar/SvgRewriter.h"

#include <algorithm>
#include <cmath>

namespace Xml {

namespace {

// A finite number without its exponent. The sign stays even of what is read as 0, since it may separate two numbers.
std::u16string withoutExponent(SvgNumber const& number) {
    Core::Decimal const decimal =
        Core::scanDecimal({number.begin, static_cast<std::size_t>(number.end - number.begin)});
    if (number.value == 0) return decimal.negative ? u"-0" : u"0";
    std::u16string digits;
    std::ptrdiff_t whole = -1; // so many digits before the point
    char16_t const* unit = decimal.digits;
    for (; unit != number.end && (Core::isDigit(*unit) || *unit == u'.'); ++unit) {
        if (*unit == u'.')
            whole = std::ssize(digits);
        else
            digits += *unit;
    }
    if (whole < 0) whole = std::ssize(digits);
    int exponent = 0;
    bool const isNegative = unit != number.end && unit + 1 != number.end && unit[1] == u'-';
    for (; unit != number.end; ++unit)
        if (Core::isDigit(*unit)) exponent = std::min(exponent * 10 + (*unit - u'0'), 1'000'000);
    whole += isNegative ? -exponent : exponent;
    // A float is neither 0 nor infinite for a few dozen powers of ten alone, besides those of the digits themselves.
    if (whole <= 0) digits.insert(0, static_cast<std::size_t>(1 - whole), u'0');
    whole = std::max<std::ptrdiff_t>(whole, 1);
    if (whole < std::ssize(digits))
        digits.insert(static_cast<std::size_t>(whole), 1, u'.');
    else
        digits.append(static_cast<std::size_t>(whole - std::ssize(digits)), u'0');
    if (decimal.negative) digits.insert(0, 1, u'-');
    return digits;
}

} // namespace

void SvgRewriter::mendSeparator(char16_t const* begin, char16_t const* end, bool knowsCommas) {
    char16_t const* const comma = std::find(begin, end, u',');
    if (comma == end) return;
    if (knowsCommas)
        replace(begin, comma, {});
    else
        replace(begin, comma + 1, comma + 1 == end ? u" " : u"");
}

void SvgRewriter::mendNumber(SvgNumber const& number, bool minusEnds) {
    if (!std::isfinite(number.value)) return;
    std::u16string_view const token(number.begin, static_cast<std::size_t>(number.end - number.begin));
    SLength length;
    bool const minusWithin = minusEnds && token.find(u'-', 1) != std::u16string_view::npos;
    if (!minusWithin && AttributeTraits<SLength>::parse(length, token) &&
        length == SLength(number.value, SLength::UserUnit))
        return;
    if (token.back() == u'.')
        replace(number.end - 1, number.end, {});
    else
        replace(number.begin, number.end, withoutExponent(number));
}

} // namespace Xml
