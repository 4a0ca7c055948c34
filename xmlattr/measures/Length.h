// The length of XSL-FO attributes, and a pair of them.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

#include <cstdint>

namespace Xml {

// A number and its unit: "px", "pt", "pc", "cm", "mm", "in", "em" or "ex", exact in case; the single
// exception is a bare "0", which is 0pt. Nothing is trimmed. Prints at most three decimals.
// One em is 1/16 and one ex 1/8 pixel: callers that need font-relative sizes resolve them first.
class XMLATTR_API Length {
public:
    // The units of a length; the numbers are shared with the formatter.
    enum Unit : std::int32_t { Px = 0, Pt = 1, Pc = 2, Cm = 3, Mm = 4, In = 5, Em = 6, Ex = 7 };

    constexpr Length() = default;
    constexpr Length(float newSize, Unit newUnit) : unit(newUnit), size(newSize) {}

    constexpr Unit getUnit() const { return unit; }
    constexpr void setUnit(Unit newUnit) { unit = newUnit; }
    constexpr float getSize() const { return size; }
    constexpr void setSize(float newSize) { size = newSize; }

    // Units and sizes are equal; nothing is converted, so 1in and 96px are unequal.
    constexpr bool operator==(Length const&) const = default;

    // In pixels, 96 to the inch; infinite when that is too large for a float. This and all that
    // converts throws UnreacheableCodeException for an out-of-range unit.
    float pxSize() const;
    // Intended: 16 pixels are 144 pica, since callers rely on pica multiplying by 12 both ways.
    static float pxSizeToUnitSize(float px, Unit unit);

    // Added and subtracted in pixels; the result has the left operand's unit.
    Length operator+(Length const& other) const;
    Length operator-(Length const& other) const;
    Length& operator+=(Length const& other) { return *this = *this + other; }
    Length& operator-=(Length const& other) { return *this = *this - other; }

    // False for a text that is no length; then `out` is untouched.
    static bool parseLength(Length& out, Core::String const& text);
    // Throws UnreacheableCodeException for an out-of-range unit.
    static Core::String getValueAsString(Length const& length);

private:
    Unit unit = Px;
    float size = 0;
};

static_assert(sizeof(Length) == 8);

template <> struct XMLATTR_API AttributeTraits<Length> {
    static bool parse(Length& value, std::u16string_view text);
    // The same without the fast path for plain numbers: the reference.
    static bool parseReference(Length& value, std::u16string_view text);
    static Core::String print(Length const& value);
    static constexpr Description describe{{u"a number with px, pt, pc, cm, mm, in, em or ex, or 0"},
                                          {u"12pt", u"-1.5e3cm", u"0"}};
    static void parts(Length const& value, Parts& out);
};

// Two lengths separated by white space; one alone stands for both. Prints both.
class XMLATTR_API DLength {
public:
    constexpr DLength() = default;
    constexpr DLength(Length const& newFirst, Length const& newSecond) : first(newFirst), second(newSecond) {}

    constexpr Length const& getFirst() const { return first; }
    constexpr Length const& getSecond() const { return second; }

    constexpr bool operator==(DLength const&) const = default;

private:
    Length first, second;
};

template <> struct XMLATTR_API AttributeTraits<DLength> {
    // Intended: when only the second of two lengths is refused, the first has its new value.
    static bool parse(DLength& value, std::u16string_view text);
    static Core::String print(DLength const& value);
    static constexpr Description describe{{u"a length", u"two lengths separated by white space"}, {u"1pt 2pt", u"3mm"}};
    static void parts(DLength const& value, Parts& out);
};

} // namespace Xml
