// The view box of SVG.
#pragma once

#include "xmlattr/measures/SLengthOrPercent.h"

namespace Xml {

// At first from 0% to 100% of each side.
struct XMLATTR_API ViewBox {
    SLengthOrPercent x{0.0f}, y{0.0f}, width{1.0f}, height{1.0f};

    constexpr ViewBox() = default;
    constexpr ViewBox(SLengthOrPercent const& newX, SLengthOrPercent const& newY, SLengthOrPercent const& newWidth,
                      SLengthOrPercent const& newHeight)
        : x(newX), y(newY), width(newWidth), height(newHeight) {}

    constexpr bool operator==(ViewBox const&) const = default;
};

static_assert(sizeof(ViewBox) == 64);

// Four words as SLength::parseSLengthOrPercent reads them; what follows is ignored. False when one
// of them is bad or missing; then the value is untouched. There is no printer.
// Intended: commas do not separate, unlike in SVG 1.1: "0,0,100,100" is one word and refused.
template <> struct XMLATTR_API AttributeTraits<ViewBox> {
    static bool parse(ViewBox& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"four SVG lengths separated by white space"},
                                          .examples = {u"0 0 100 100", u"0 0 50% 1e3pt"},
                                          .readsList = true};
    static void parts(ViewBox const& value, Parts& out);
};

} // namespace Xml
