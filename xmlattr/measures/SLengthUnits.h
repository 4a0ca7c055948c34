// The units of SVG lengths, for the two readers of them.
#pragma once

#include "xmlattr/core/Format.h"
#include "xmlattr/measures/SLength.h"
#include "xmlattr/measures/Units.h"

namespace Xml {

inline constexpr UnitRow<SLength::Unit> sLengthUnitRows[] = {
    {u"pt", SLength::Pt, PixelRatio::pt}, {u"cm", SLength::Cm, PixelRatio::cm}, {u"mm", SLength::Mm, PixelRatio::mm},
    {u"in", SLength::In, PixelRatio::in}, {u"em", SLength::Em, PixelRatio::em}, {u"ex", SLength::Ex, PixelRatio::ex},
    {u"pc", SLength::Pc, PixelRatio::pc},
};

// A number with the unit that the text ends with. Intended: a pair of code units that is no unit, "px"
// included, is dropped and gives user units.
inline SLength withSuffix(float number, std::u16string_view text) {
    auto const* const row = findSuffix<sLengthUnitRows>(text);
    return {number, row ? row->unit : SLength::UserUnit};
}

// Reads a number before the last two code units of the text.
inline bool readWithSuffix(SLength& value, std::u16string_view text) {
    float number = 0;
    if (!Core::Format::parseFloat(text.substr(0, text.size() - 2), number)) return false;
    value = withSuffix(number, text);
    return true;
}

} // namespace Xml
