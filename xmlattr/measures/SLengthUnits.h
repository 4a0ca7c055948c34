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

// Reads a number before the last two code units of the text. Intended: a pair that is no unit, "px"
// included, is dropped and gives user units.
inline bool readWithSuffix(SLength& value, std::u16string_view text) {
    auto const* const row = findSuffix(sLengthUnitRows, text);
    float number = 0;
    if (!Core::Format::parseFloat(text.substr(0, text.size() - 2), number)) return false;
    value = SLength(number, row ? row->unit : SLength::UserUnit);
    return true;
}

} // namespace Xml
