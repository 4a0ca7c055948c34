// The spacing of the units on a chart axis.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include <cstdint>

namespace Xml {

// "auto", "days", "months" or "years" in any case, or a number other than 0. There is no printer.
class XMLATTR_API AxisUnits {
public:
    // The words, or that a number says it.
    enum Type : std::int32_t { Auto = 0, Days = 1, Months = 2, Years = 3, Numeric = 4 };

    constexpr AxisUnits() = default;
    constexpr AxisUnits(Type newType) : type(newType) {}
    constexpr AxisUnits(float newNumber) : type(Numeric), number(newNumber) {}

    constexpr Type getType() const { return type; }
    // 0 unless the type is Numeric.
    constexpr float getNumericVal() const { return number; }

    // A NaN is equal to nothing.
    constexpr bool operator==(AxisUnits const&) const = default;

private:
    Type type = Auto;
    float number = 0;
};

static_assert(sizeof(AxisUnits) == 8);

template <> struct Keywords<AxisUnits::Type> {
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AxisUnits::Type> rows[] = {{u"auto", AxisUnits::Auto},
                                                           {u"days", AxisUnits::Days},
                                                           {u"months", AxisUnits::Months},
                                                           {u"years", AxisUnits::Years}};
};

template <> struct XMLATTR_API AttributeTraits<AxisUnits> {
    // Intended: 0 is refused, as no spacing at all; a negative number is not. A text that is refused
    // changes nothing.
    static bool parse(AxisUnits& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"a number other than 0"}, {u"1.5"}};
    static void words(Words& out);
    static void parts(AxisUnits const& value, Parts& out);
};

} // namespace Xml
