// The length or percentage of SVG attributes, and one that may be absent.
#pragma once

#include "xmlattr/measures/MeasureOrPercent.h"
#include "xmlattr/measures/SLength.h"

namespace Xml {

// A bare number of user units, a number with a unit of SVG 1.1, or a number with "%". White space
// may follow, not precede; units are exact in case. Read by SLength::parseSLengthOrPercent, which
// leaves the value untouched when it fails. There is no printer.
// Intended: a pair of code units that names no unit is dropped ("12ab" is 12 user units), and a text of
// one or two code units that ends in neither digit nor "%" is one user unit, whatever its number.
class XMLATTR_API SLengthOrPercent : public MeasureOrPercent<SLength> {
public:
    constexpr SLengthOrPercent() = default;
    constexpr SLengthOrPercent(SLength const& newLength) : MeasureOrPercent(newLength) {}
    constexpr SLengthOrPercent(float newPercent) : MeasureOrPercent(newPercent) {}
    constexpr SLengthOrPercent(float size, SLength::Unit unit) : MeasureOrPercent(SLength(size, unit)) {}

    constexpr bool operator==(SLengthOrPercent const&) const = default;
};

static_assert(sizeof(SLengthOrPercent) == 16);

template <> struct XMLATTR_API AttributeTraits<SLengthOrPercent> {
    static bool parse(SLengthOrPercent& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SLength>::describe;
    static void parts(SLengthOrPercent const& value, Parts& out);
};

// An SLengthOrPercent or nothing. A parse that succeeds makes it present; one that fails changes
// nothing. Comparing takes the measures alone.
class XMLATTR_API SNullableLengthOrPercent : public SLengthOrPercent {
public:
    constexpr SNullableLengthOrPercent() = default;
    // Takes the part of the measure that its kind says, and 0 for the other.
    constexpr SNullableLengthOrPercent(SLengthOrPercent const& value)
        : SLengthOrPercent(value.isPercent() ? SLengthOrPercent(value.getPercent())
                                             : SLengthOrPercent(value.getLength())),
          null(false) {}

    constexpr bool isNull() const { return null; }
    constexpr void setNull(bool isNull) { null = isNull; }

private:
    bool null = true;
};

template <> struct XMLATTR_API AttributeTraits<SNullableLengthOrPercent> {
    static bool parse(SNullableLengthOrPercent& value, std::u16string_view text);
    static constexpr bool refusesComparison = true;
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SLength>::describe;
    static void parts(SNullableLengthOrPercent const& value, Parts& out);
};

} // namespace Xml
