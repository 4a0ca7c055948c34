// The shadow of SVG text.
#pragma once

#include "xmlattr/color/SColor.h"
#include "xmlattr/measures/SLength.h"

#include <utility>

namespace Xml {

// Like BoxShadow, but with SVG lengths and an SVG paint. What the text leaves out is 0 user units
// and an absent paint. There is no printer.
class XMLATTR_API STextShadow {
public:
    STextShadow() = default;
    // Intended: the paint counts as absent, whatever the colour; see SNullableColor.
    STextShadow(SLength const& newDx, SLength const& newDy, SLength const& newBlurRadius,
                SmartPtr<Drawing::Color> newColor)
        : dx(newDx), dy(newDy), blurRadius(newBlurRadius), color(std::move(newColor)) {}

    SLength getDx() const { return dx; }
    SLength getDy() const { return dy; }
    SLength getBlurRadius() const { return blurRadius; }
    SNullableColor getColor() const { return color; }

    // Takes the paints alone, not whether they are absent.
    bool operator==(STextShadow const&) const = default;

    // Fills in what the text gives and leaves the rest as it is. Intended: a part that is neither a
    // length nor a paint ends the text but refuses nothing, and so does a blank before the first part or a
    // second one after a part; false for the empty text only.
    bool readFromString(Core::String const& text);

private:
    friend struct AttributeTraits<STextShadow>;
    bool read(std::u16string_view text);

    SLength dx, dy, blurRadius;
    SNullableColor color;
};

template <> struct XMLATTR_API AttributeTraits<STextShadow> {
    static bool parse(STextShadow& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"up to three SVG lengths and a paint"}, {u"1 2 3 red"}, false};
    static void words(Words& out);
    static void parts(STextShadow const& value, Parts& out);
};

} // namespace Xml
