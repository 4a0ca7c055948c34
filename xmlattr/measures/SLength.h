// The length of SVG attributes, one that may be absent, and the list of them.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

#include <cstdint>

namespace Xml {

class SLengthOrPercent;

// A number of user units, a number with one of the units of SVG 1.1, or a percentage, which is held
// as its fraction. Nothing is trimmed; units are exact in case. There is no printer.
class XMLATTR_API SLength {
public:
    // The value 2 is reserved: no text gives it.
    enum Unit : std::int32_t { UserUnit = 0, Pt = 1, Cm = 3, Mm = 4, In = 5, Em = 6, Ex = 7, Pc = 8, Percent = 9 };

    constexpr SLength() = default;
    constexpr SLength(float newSize, Unit newUnit) : unit(newUnit), size(newSize) {}

    constexpr Unit getUnit() const { return unit; }
    constexpr float getSize() const { return size; }

    // Units and sizes are equal; nothing is converted.
    constexpr bool operator==(SLength const&) const = default;
    // Whether the size is 0, whatever the unit.
    constexpr bool operator!() const { return size == 0; }

    // In pixels, 96 to the inch, and infinite when that is too large for a float; a percentage gives
    // its fraction. Throws UnreacheableCodeException for an out-of-range unit.
    float pxSize() const;

    // Intended: "px" and every other pair of code units that names no unit is dropped, so that "12px"
    // and "12ab" are 12 user units and "12a" is 1. False for a text that is no length; then `out` is untouched.
    static bool parseSLength(SLength& out, Core::String const& text);
    // Reads an SLengthOrPercent: no leniency before the number.
    static bool parseSLengthOrPercent(SLengthOrPercent& out, Core::String const& text);

private:
    Unit unit = UserUnit;
    float size = 0;
};

static_assert(sizeof(SLength) == 8);

template <> struct XMLATTR_API AttributeTraits<SLength> {
    static bool parse(SLength& value, std::u16string_view text);
    // The same without the fast path for plain numbers: the reference.
    static bool parseReference(SLength& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"a number", u"a percentage", u"a number with pt, pc, cm, mm, in, em or ex"},
                                          {u"1.5", u"50%", u"12pt", u"3e-2mm"}};
    static void parts(SLength const& value, Parts& out);
};

// An SVG length or nothing. A parse that succeeds makes it present; one that fails changes nothing.
// Comparing takes the lengths alone.
class XMLATTR_API SNullableLength : public SLength {
public:
    constexpr SNullableLength() = default;
    constexpr SNullableLength(SLength const& length) : SLength(length), null(false) {}

    constexpr bool isNull() const { return null; }
    constexpr void setNull(bool isNull) { null = isNull; }

private:
    bool null = true;
};

template <> struct XMLATTR_API AttributeTraits<SNullableLength> {
    static bool parse(SNullableLength& value, std::u16string_view text);
    static constexpr bool refusesComparison = true;
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SLength>::describe;
    static void parts(SNullableLength const& value, Parts& out);
};

// Lengths between any mixture of commas and white space; "none" and the empty text are the empty
// list. One bad length refuses the whole text and leaves the list as it was.
template <> struct XMLATTR_API AttributeTraits<Core::Vector<SLength>> {
    static bool parse(Core::Vector<SLength>& value, std::u16string_view text);
    static constexpr bool refusesComparison = true;
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"none", u"SVG lengths separated by white space or commas"},
                                          .examples = {u"1,2 3pt", u"none"},
                                          .listsWords = false,
                                          .readsList = true};
    static void words(Words& out);
    static void parts(Core::Vector<SLength> const& value, Parts& out);
};

} // namespace Xml
