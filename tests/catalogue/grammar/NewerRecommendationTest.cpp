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
             Row{u"'calc(1px)' \"unset", "", ""},
             Row{u"context", "", ""},
             Row{u"", "", ""},
         }) {
        EXPECT_EQ(newerRecommendation(Dialect::SvgAttribute, row.text), row.svg) << Core::String(row.text).toUtf8();
        EXPECT_EQ(newerRecommendation(Dialect::Fo, row.text), row.fo) << Core::String(row.text).toUtf8();
    }
}

} // namespace
} // namespace Xml
