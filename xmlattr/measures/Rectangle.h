// The clip rectangle of XSL-FO and CSS 2.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/drawing/RectF.h"

namespace Xml {

// "rect(" four lengths ")" with commas between them, exact in case; blanks may stand around each
// length, none before "rect(" or after ")". Held in pixels, infinite where those are too
// many for a float, as Length::pxSize gives them. A failed parse changes nothing; there is no printer.
template <> struct XMLATTR_API AttributeTraits<Drawing::RectF> {
    static bool parse(Drawing::RectF& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"rect(LENGTH, LENGTH, LENGTH, LENGTH)"}, {u"rect(1pt, 2pt, 3pt, 4pt)"}};
    static void parts(Drawing::RectF const& value, Parts& out);
};

} // namespace Xml
