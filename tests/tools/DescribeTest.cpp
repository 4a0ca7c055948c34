#include "text/Text.h"
#include "xmlattr/catalogue/types/AttributeTypes.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

TEST(Show, TakesValuesApart) {
    struct Row {
        char const* type;
        char16_t const* text;
        char const* parts; // "name value", divided by bars
    };
    for (Row const& row : {Row{"Length", u"36pt", "pixels 48"},
                           Row{"DLength", u"1px 2px", "pixels 1|pixels 2"},
                           Row{"SLength", u"1.5pc", "size 1.5pc|pixels 24"},
                           Row{"SLength", u"5%", "size 5%"},
                           Row{"LengthOrPercent", u"50%", "fraction 0.5"},
                           Row{"LengthOrPercentAuto", u"auto", "automatic yes"},
                           Row{"BackgroundSize", u"auto", ""},
                           Row{"BackgroundSize", u"50%", "fraction 0.5"},
                           Row{"PageDimension", u"auto", "kind auto"},
                           Row{"PageDimension", u"indefinite", "kind indefinite"},
                           Row{"PageDimension", u"3px", "pixels 3"},
                           Row{"SSpacing", u"normal", "kind normal"},
                           Row{"SSpacing", u"3", "size 3|pixels 3"},
                           Row{"SBaselineShift", u"baseline", "kind baseline"},
                           Row{"SBaselineShift", u"super", "kind super"},
                           Row{"SBaselineShift", u"25%", "fraction 0.25"},
                           Row{"FloatOrPercent", u"25%", "number 0.25"},
                           Row{"FontSize", u"smaller", "relative smaller"},
                           Row{"Drawing::RectF", u"rect(1px, 2px, 3px, 4px)", "top 1|right 2|bottom 3|left 4"},
                           Row{"SmartPtr<Drawing::Color>", u"none", "kind no colour"},
                           Row{"SmartPtr<Drawing::Color>", u"#010203", "kind RGB|rgb 1 2 3"},
                           Row{"SmartPtr<Drawing::Color>", u"cmyk(0,0,0,1)", "kind CMYK|cmyk 0 0 0 1"},
                           Row{"SColor", u"url(#a)", "reference #a"},
                           Row{"SColor", u"red", "kind RGB|rgb 255 0 0"},
                           Row{"STextDecoration", u"underline, line-through", "line underline|line line-through"},
                           Row{"Core::Vector<Transform>", u"scale(2) skewX(3)", "items 2|scale 2 2|skewX 3"},
                           Row{"Core::Vector<PathDataCommand>", u"M1,2h3Z", "items 3|move 1,2|across, rel. 3|close "},
                           Row{"Core::Vector<Point>", u"1,2 3,4", "items 2|point 1,2|point 3,4"},
                           Row{"ViewBox", u"0 0 5 50%", "corner 0 0|size 5 50%"},
                           Row{"SPreserveAspectRatio", u"xMidYMax slice", "fit slice xMid YMax"},
                           Row{"Language", u"en-us", "tag en-US|language english"},
                           Row{"InitialPageNumber", u"multiple-of(4)", "kind multiple|multiple 4"},
                           Row{"ForcePageCount", u"end-on-even", "kind end-on-even"},
                           Row{"DisplayCondition", u"use_content()", "conditions 0"},
                           Row{"DisplayCondition", u"is-after(a) and match(b)", "conditions 2"},
                           Row{"AxisUnits", u"months", "units months"},
                           Row{"Value", u"12", "kind number|value 12"},
                           Row{"Break", u"page", "number 3"}}) {
        Xml::Shown const shown = Xml::findAttributeType(row.type)->show(row.text, nullptr);
        std::string parts;
        for (Xml::Part const& part : shown.parts) parts += (parts.empty() ? "" : "|") + part.name + " " + part.value;
        EXPECT_TRUE(shown.accepted) << row.type << ": " << toUtf8(row.text);
        EXPECT_EQ(parts, row.parts) << row.type << ": " << toUtf8(row.text);
    }
}

} // namespace
} // namespace Command
