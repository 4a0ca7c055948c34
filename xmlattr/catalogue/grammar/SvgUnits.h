// The units of lengths by SVG 1.1, section 4.2, as attributes have them: in lower case.
#pragma once

#include "xmlattr/measures/SLength.h"

#include <string_view>

namespace Xml {

struct SvgUnit {
    std::u16string_view word;
    SLength::Unit unit; // how the value type holds it: a pixel is a user unit
};

inline constexpr SvgUnit svgUnits[] = {
    {u"px", SLength::UserUnit}, {u"em", SLength::Em}, {u"ex", SLength::Ex},
    {u"in", SLength::In},       {u"cm", SLength::Cm}, {u"mm", SLength::Mm},
    {u"pt", SLength::Pt},       {u"pc", SLength::Pc}, {u"%", SLength::Percent},
};

} // namespace Xml
