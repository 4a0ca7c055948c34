// The shadow of a box (CSS Backgrounds).
#pragma once

#include "xmlattr/color/ColorParse.h"
#include "xmlattr/measures/Length.h"

#include <utility>

namespace Xml {

// Offsets, blur radius and colour, separated by single blanks: up to three lengths, which fill dx, dy
// and blur in that order, and one colour anywhere among them. What the text leaves out is 0px and
// no colour. Prints all four; without a colour the text ends with the blank before it.
class XMLATTR_API BoxShadow {
public:
    BoxShadow() = default;
    BoxShadow(Length const& newDx, Length const& newDy, Length const& newBlurRadius, SmartPtr<Drawing::Color> newColor)
        : dx(newDx), dy(newDy), blurRadius(newBlurRadius), color(std::move(newColor)) {}

    Length getDx() const { return dx; }
    Length getDy() const { return dy; }
    Length getBlurRadius() const { return blurRadius; }
    SmartPtr<Drawing::Color> getColor() const { return color; }

    // Intended: colours are equal when they are one object, so two shadows that were parsed from
    // the same text are unequal if it has a colour.
    bool operator==(BoxShadow const&) const = default;

    // Fills in what the text gives and leaves the rest as it is. Intended: a part that is neither a
    // length nor a colour ends the text but refuses nothing, and so does a blank before the first part or a
    // second one after a part; false for the empty text only.
    bool readFromString(Core::String const& text);

private:
    friend struct AttributeTraits<BoxShadow>;
    bool read(std::u16string_view text);

    Length dx, dy, blurRadius;
    SmartPtr<Drawing::Color> color;
};

template <> struct XMLATTR_API AttributeTraits<BoxShadow> {
    static bool parse(BoxShadow& value, std::u16string_view text);
    static Core::String print(BoxShadow const& value);
    static constexpr Description describe{{u"up to three lengths and a colour"}, {u"1px 2px 3px red"}, false};
    static void words(Words& out);
    static void parts(BoxShadow const& value, Parts& out);
};

} // namespace Xml
