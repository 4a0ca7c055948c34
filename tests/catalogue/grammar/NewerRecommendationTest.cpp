#include "xmlattr/catalogue/grammar/NewerRecommendation.h"

#include "xmlattr/core/String.h"

#include <gtest/gtest.h>

namespace Xml {
namespace {

TEST(NewerRecommendation, NamesIt) {
    struct Row {
        std::u16string_view text;
        char const *svg, *fo;
    };
    for (Row const& row : {
             Row{u"context-stroke", "SVG 2", "SVG 2"},
             Row{u"auto-start-reverse", "SVG 2", "SVG 2"},
             Row{u"rgba(0,0,0,.5)", "CSS 3", "CSS 3"},
             Row{u"hsl(120 50% 50%)", "CSS 3", "CSS 3"},
             Row{u"lab(50% 0 0)", "CSS 4", "CSS 4"},
             Row{u"#ff00ff80", "CSS 4", "CSS 4"},
             Row{u"#F0F8", "CSS 4", "CSS 4"},
             Row{u"rgb(0 0 0 / 50%)", "CSS 4", "CSS 4"},
             Row{u"rgb(1 2 3)", "CSS 4", "CSS 4"},
             Row{u"rgb(1,2,3,.5)", "CSS 4", "CSS 4"},
             Row{u"currentcolor", "CSS 4", "CSS 4"},
             Row{u"1.5rem", "CSS 3", "CSS 3"},
             Row{u"10px 50vw", "CSS 3", "CSS 3"},
             Row{u"4Q", "CSS 3", "CSS 3"},
             Row{u"'' 4Q", "CSS 3", "CSS 3"},
             Row{u".25turn", "CSS 3", "CSS 3"},
             Row{u"calc(100% - 2px)", "CSS 3", "CSS 3"},
             Row{u"var(--accent, red)", "CSS 3", "CSS 3"},
             Row{u"unset", "CSS 3", "CSS 3"},
             Row{u"revert", "CSS 4", "CSS 4"},
             Row{u"clamp(1px, 2px, 3px)", "CSS 4", "CSS 4"},
             Row{u"max(1px, 2px)", "CSS 4", ""},
             Row{u"rotate(45deg)", "CSS 3", ""},
             Row{u"translate(10px)", "CSS 3", ""},
             // Mistakes in the recommendations of old.
             Row{u"rotate(4e1)", "", ""},
             Row{u"rgb(1,2)", "", ""},
             Row{u"rgb(1,2,x)", "", ""},
             Row{u"#ff00f", "", ""},
             Row{u"#gggg", "", ""},
             Row{u"currentColour", "", ""},
             Row{u"12q1", "", ""},
             Row{u"1remm", "", ""},
             Row{u"url(rgba(x).png)", "", ""},
             Row{u"a 'calc(1px)' \"unset", "", ""},
             Row{u"context", "", ""},
             Row{u"", "", ""},
         }) {
        EXPECT_EQ(newerRecommendation(Dialect::SvgAttribute, "in", row.text), row.svg)
            << Core::String(row.text).toUtf8();
        EXPECT_EQ(newerRecommendation(Dialect::Fo, "in", row.text), row.fo) << Core::String(row.text).toUtf8();
    }
}

TEST(NewerRecommendation, KnowsTheValuesOfAnAttribute) {
    struct Row {
        char const* attribute;
        std::u16string_view text;
        char const* newer;
    };
    for (Row const& row : {
             Row{"d", u"none", "SVG 2"},
             Row{"width", u"auto", "SVG 2"},
             Row{"rx", u"auto", "SVG 2"},
             Row{"x", u"auto", ""},
             Row{"id", u"9-circle", "SVG 2"},
             Row{"id", u"9 circles", ""},
             Row{"pointer-events", u"bounding-box", "SVG 2"},
             Row{"refX", u"left", "SVG 2"},
             Row{"refX", u"top", ""},
             Row{"refY", u"top", "SVG 2"},
             Row{"dominant-baseline", u"text-bottom", "CSS 3"},
             Row{"dominant-baseline", u"bottom", ""},
             Row{"alignment-baseline", u"text-top", "CSS 3"},
             Row{"alignment-baseline", u"bottom", "CSS 3"},
             Row{"baseline-shift", u"top", "CSS 3"},
             Row{"fill", u"transparent", "CSS 3"},
             Row{"color", u"currentColor", "CSS 3"},
             Row{"cursor", u"url(x) 4 4, pointer", "CSS 3"},
             Row{"cursor", u"url(x) 4, pointer", ""},
             Row{"font-variant", u"small-caps tabular-nums", "CSS 3"},
             Row{"font-variant", u"small-caps tabular", ""},
             Row{"transform", u"none", "CSS 3"},
             Row{"image-rendering", u"pixelated", "CSS 3"},
             Row{"image-rendering", u"crisp-edges", "CSS 3"},
             Row{"operator", u"lighter", "CSS 3"},
             Row{"overflow", u"clip", "CSS 3"},
             Row{"overflow", u"hidden auto", "CSS 3"},
             Row{"overflow", u"auto clip hidden", ""},
             Row{"text-decoration", u"underline dotted red", "CSS 3"},
             Row{"text-decoration", u"red dotted", "CSS 3"},
             Row{"text-decoration", u"underline doted", ""},
             Row{"opacity", u"50%", "CSS 4"},
             Row{"font-stretch", u"50%", "CSS 4"},
             Row{"font-style", u"oblique 10deg", "CSS 4"},
             Row{"font-weight", u"450", "CSS 4"},
             Row{"font-weight", u"4500", ""},
             Row{"word-spacing", u"50%", "CSS 4"},
             Row{"kerning", u"50%", ""},
         }) {
        EXPECT_EQ(newerRecommendation(Dialect::SvgAttribute, row.attribute, row.text), row.newer)
            << row.attribute << ": " << Core::String(row.text).toUtf8();
        EXPECT_EQ(newerRecommendation(Dialect::Fo, row.attribute, row.text), "") << row.attribute << " of XSL-FO";
    }
    EXPECT_EQ(newerRecommendation(Dialect::SvgStyle, "overflow", u"CLIP"), "CSS 3");
}

} // namespace
} // namespace Xml
