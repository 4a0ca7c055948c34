// The colour of XSL-FO and SVG attributes: a colour object, or null for no colour.
#pragma once

#include "xmlattr/attributes/TXmlAttribute.h"
#include "xmlattr/drawing/Color.h"

namespace Xml {

using Core::SmartPtr;

// The beginning of a text, exact in case and untrimmed, decides its form:
//
//   rgb-icc(r,g,b,#profile,c1[,c2,c3[,c4]])   Drawing::ICCColor with an RGB fallback
//   spot-color(name[,tint[,alternate]])       Drawing::SpotColor
//   rgb(r,g,b)                                Drawing::RGBColor
//   cmyk(c,m,y,k)                             Drawing::CMYKColor
//   #rgb, #rrggbb                             Drawing::RGBColor
//
// and every other text is a name in any case: a colour keyword of SVG 1.1, a system colour, or
// "transparent" or "none", which are null. What stands between the beginning and the "(" and what
// follows the ")" is ignored.
//
// A text that is refused leaves the value as it was. Two kinds of text are logged as a warning: an
// rgb-icc without its "(", its fallback, its profile or any component, which is refused; and a spot
// colour that has no alternate and is unknown to Drawing::SpotColorMapper, which is accepted as black.
//
// Prints the function of the colour's class, never a name.
// Intended: comparing takes the object, not the colour. Since every parse makes a new object, only
// null equals a text.
template <> struct XMLATTR_API AttributeTraits<SmartPtr<Drawing::Color>> {
    static bool parse(SmartPtr<Drawing::Color>& value, std::u16string_view text);
    static Core::String print(SmartPtr<Drawing::Color> const& value);
    static constexpr Description describe{
        .forms = {u"a colour name", u"#rgb", u"#rrggbb", u"rgb()", u"cmyk()", u"rgb-icc()", u"spot-color()", u"none"},
        .examples = {u"rgb(1,2,3)", u"rgb-icc(1,2,3,#CMYK,0.1,0.2,0.3,0.4)", u"cmyk(0.1,20%,30,0)",
                     u"spot-color(Gold,0.5,rgb(1,2,3))"},
        .listsWords = false};
    static void words(Words& out);
    static void parts(SmartPtr<Drawing::Color> const& value, Parts& out);
};

// The readers of the single forms. Each takes the whole text, whatever it begins with, and stores
// the colour in the target; false leaves the target as it was.
class XMLATTR_API ColorParse {
public:
    // The attribute that takes the colour.
    using Target = TXmlAttribute<SmartPtr<Drawing::Color>>;

    // "#" and three or six hexadecimal digits of either case.
    static bool parseHexaColor(Core::String const& text, Target* target);

    // Each component is an integer, of which the low 8 bits count, or a percentage of 256 held
    // within 0 to 255; the two may be mixed.
    static bool parseRGB(Core::String const& text, Target* target);

    // Each component is a percentage or else a fraction; as soon as one of the four numbers exceeds
    // 1, all that are no percentages are parts of 255. Nothing is held in range.
    static bool parseCMYKString(Core::String text, Target* target);

    // The fallback's components are integers or percentages of 255, of which the low 8 bits count.
    // One, three or four components follow the profile; of two, the first counts.
    static bool parseICCColor(Core::String const& text, Target* target);

    // The tint is 1 when it is left out, and 0 when nothing stands between its commas; the alternate is
    // rgb(...) or cmyk(...). Without one, the Drawing::SpotColorMapper is asked for the name.
    static bool parseSpotColor(Core::String const& text, Target* target);

    // A colour keyword, a system colour, "transparent" or "none", in any case.
    static bool parseColorName(Core::String const& text, Target* target);

    // Empty for null, for a colour of another class, for an ICC colour without a space or with other
    // than 1, 3 or 4 components, and for a spot colour whose function is not exponential with an RGB or CMYK end.
    static Core::String getColorAsString(SmartPtr<Drawing::Color> color);
};

} // namespace Xml
