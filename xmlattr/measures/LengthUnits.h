// The units of XSL-FO lengths, for those who read or print them in pieces.
#pragma once

#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/Units.h"

namespace Xml {

inline constexpr UnitRow<Length::Unit> lengthUnitRows[] = {
    {u"pt", Length::Pt, PixelRatio::pt, {72, 96}},
    {u"px", Length::Px, PixelRatio::px, {1, 1}},
    {u"cm", Length::Cm, PixelRatio::cm, {2.54f, 96}},
    {u"mm", Length::Mm, PixelRatio::mm, {25.4f, 96}},
    {u"in", Length::In, PixelRatio::in, {1, 96}},
    {u"em", Length::Em, PixelRatio::em, {1536, 96}},
    {u"ex", Length::Ex, PixelRatio::ex, {768, 96}},
    {u"pc", Length::Pc, PixelRatio::pc, {12 * 72, 96}}, // Intended: no inverse, see Length.h
};

// Prints a length behind what a text holds already. Throws UnreacheableCodeException for a unit that is none.
void appendLength(std::u16string& out, Length const& length);

} // namespace Xml
