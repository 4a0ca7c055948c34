// Reading and writing numbers, independent of the locale. Reading neither throws nor allocates.
#pragma once

#include "xmlattr/core/String.h"

namespace Core {

// Numbers from texts and back.
class XMLATTR_API Format {
public:
    // Reads the whole text as a number: [sign] digits [. digits] [e [sign] digits] with at least
    // one digit in the mantissa ("5." and ".5" count), then at most one "%", which is ignored;
    // white space at both ends is skipped. The result is correctly rounded; a number too small for
    // a float reads as 0. The empty text reads as 0. False for everything else ("inf", "nan",
    // hexadecimal, white space alone, a number too large for a float); then `value` is untouched.
    static bool parseFloat(std::u16string_view text, float& value) noexcept;

    // The longest number at the start of the text after white space: "45deg" is 45. 0 when there
    // is none; a number too large for a float gives the largest one of its sign.
    static float parseFloat(std::u16string_view text) noexcept;

    // Reads the whole text as [sign] decimal digits and at most one "%", white space at both ends
    // skipped. False for everything else (the empty text, a fraction, a number that is no int);
    // then `value` is untouched.
    static bool parseInt(std::u16string_view text, int& value) noexcept;

    // The longest integer at the start of the text after white space, 0 when there is none; too
    // large a number gives the nearest int.
    static int parseInt(std::u16string_view text) noexcept;

    // Reads the whole text as hexadecimal digits of either case after an optional "0x". False for
    // everything else (no digit, a sign, white space, a number that is no int); then `value` is
    // untouched.
    static bool parseHexInt(std::u16string_view text, int& value) noexcept;

    // At most three decimals, correctly rounded, without trailing zeros, never "-0": the pattern
    // "0.###". The suffix follows.
    static String toMeasure(double value, std::u16string_view suffix = {});

    // The shortest text that reads back as the value: the pattern of a bare "{0}". A double that
    // equals a float prints as that float.
    static String toShortest(float value);
    static String toShortest(double value);
    static String toShortest(int value);
};

} // namespace Core
