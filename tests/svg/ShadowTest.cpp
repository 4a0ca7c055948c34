#include "Support.h"
#include "xmlattr/svg/BoxShadow.h"
#include "xmlattr/svg/STextDecoration.h"
#include "xmlattr/svg/STextShadow.h"

namespace Xml {
namespace {

TEST(BoxShadow, ReadsPartsUntilOneIsStrange) {
    struct Row {
        char16_t const* text;
        char const* printed;
    };
    for (Row const& row :
         {Row{u"2pt 3pt", "2pt 3pt 0px "}, Row{u"2pt 3pt 4pt 5pt", "2pt 3pt 4pt "},
          Row{u"red blue 2pt", "0px 0px 0px rgb(255,0,0)"}, Row{u"2pt red 3pt 0", "2pt 3pt 0pt rgb(255,0,0)"},
          Row{u"1pt 2pt 3pt #123", "1pt 2pt 3pt rgb(17,34,51)"}, Row{u"none 1in", "1in 0px 0px "},
          Row{u"none red 1in", "0px 0px 0px "}, Row{u"1pt rgb(1, 2,3)", "1pt 0px 0px "},
          Row{u"1pt  2pt", "1pt 0px 0px "}, Row{u" 1pt", "0px 0px 0px "}, Row{u" ", "0px 0px 0px "},
          Row{u"1pt ", "1pt 0px 0px "}, Row{u"1pt\t2pt", "0px 0px 0px "}, Row{u"?", "0px 0px 0px "},
          Row{u"", "refused"}})
        EXPECT_EQ(printed<BoxShadow>(row.text), row.printed) << narrow(row.text);
}

TEST(BoxShadow, ComparesLengthsAndColorObjects) {
    TXmlAttribute<BoxShadow> plain, red;
    ASSERT_TRUE(plain.parseValue(u"2pt 3pt") && red.parseValue(u"2pt 3pt red"));
    EXPECT_TRUE(plain.isEqual(u"2pt none 3pt"));
    EXPECT_FALSE(plain.isEqual(u"2pt 4pt"));
    EXPECT_FALSE(red.isEqual(u"2pt 3pt red"));
    BoxShadow const shadow = red;
    EXPECT_TRUE(red == shadow);
    EXPECT_TRUE(shadow == BoxShadow(Length(2, Length::Pt), Length(3, Length::Pt), Length(), shadow.getColor()));
    EXPECT_FALSE(red.parseValue(u""));
    EXPECT_TRUE(red == shadow);
    ASSERT_TRUE(red.parseValue(u"1pt"));
    EXPECT_TRUE(red->getDx() == Length(1, Length::Pt) && red->getDy() == Length() && !red->getColor())
        << "a parse begins with a fresh shadow";
    BoxShadow filled = shadow;
    EXPECT_TRUE(filled.readFromString(u"7pt"));
    EXPECT_TRUE(filled.getDx() == Length(7, Length::Pt) && filled.getDy() == shadow.getDy() &&
                filled.getColor() == shadow.getColor());
    EXPECT_TRUE(filled.readFromString(u"none") && !filled.getColor()) << "none takes the colour away";
}

TEST(STextShadow, ReadsSvgLengthsAndAPaint) {
    auto const shadow = parsed<STextShadow>(u"2 url(#a) 50% 4px 5");
    ASSERT_TRUE(shadow);
    EXPECT_TRUE(shadow->getDx() == SLength(2, SLength::UserUnit) &&
                shadow->getDy() == SLength(0.5f, SLength::Percent) &&
                shadow->getBlurRadius() == SLength(4, SLength::UserUnit));
    EXPECT_EQ(shadow->getColor().getUrl(), u"#a");
    EXPECT_FALSE(shadow->getColor().isNull());
    EXPECT_TRUE(parsed<STextShadow>(u"2 red?")->getColor().isNull());
    EXPECT_FALSE(parsed<STextShadow>(u"none")->getColor().isNull());
    EXPECT_FALSE(parsed<STextShadow>(u""));
    EXPECT_EQ(printed<STextShadow>(u"2 red"), "");

    TXmlAttribute<STextShadow> attribute(*shadow);
    EXPECT_TRUE(attribute.isEqual(u"url(#a) 2 50% 4"));
    EXPECT_FALSE(attribute.isEqual(u"url(#b) 2 50% 4"));
    EXPECT_TRUE(*parsed<STextShadow>(u"none 3") == *parsed<STextShadow>(u"3")) << "absence is not compared";
    SmartPtr<Drawing::Color> const black = new Drawing::RGBColor(0, 0, 0);
    STextShadow filled = *shadow;
    EXPECT_TRUE(filled.readFromString(u"7 red") && filled.getDx() == SLength(7, SLength::UserUnit) &&
                filled.getDy() == shadow->getDy() && filled.getColor().getColor());
    EXPECT_FALSE(filled.readFromString(u""));
    STextShadow const made(SLength(), SLength(), SLength(), black);
    EXPECT_TRUE(made.getColor().getColor() == black && made.getColor().isNull() && made != STextShadow());
}

TEST(STextDecoration, ReadsKeywordsBetweenCommas) {
    struct Row {
        char16_t const* text;
        int flags; // underline 1, overline 2, line-through 4; -1: refused
    };
    for (Row const& row : {Row{u"underline", 1},
                           Row{u"overline,line-through", 6},
                           Row{u"\tunderline,\n line-through", 5},
                           Row{u"line-through,overline,underline,overline", 7},
                           Row{u"underline,", 1},
                           Row{u" none", 0},
                           Row{u"x none", 0},
                           Row{u"underline,nonesuch", 0},
                           Row{u"nonenone", -1},
                           Row{u"none", -1},
                           Row{u"none,underline", -1},
                           Row{u"", -1},
                           Row{u" ", -1},
                           Row{u",", -1},
                           Row{u"underline, ", -1},
                           Row{u"underline,,overline", -1},
                           Row{u"Underline", -1},
                           Row{u"underline ,overline", -1},
                           Row{u"underline overline", -1},
                           Row{u"line through", -1}}) {
        SCOPED_TRACE(narrow(row.text));
        TXmlAttribute<STextDecoration> attribute(STextDecoration(true, true, false));
        EXPECT_EQ(attribute.parseValue(row.text), row.flags >= 0);
        int const flags = row.flags < 0 ? 3 : row.flags;
        EXPECT_TRUE(attribute == STextDecoration(flags & 1, flags & 2, flags & 4));
        EXPECT_EQ(attribute->isUnderline() + attribute->isOverline() * 2 + attribute->isLineThrough() * 4, flags);
        EXPECT_EQ(attribute->isNone(), flags == 0);
        EXPECT_EQ(attribute.getValueAsString(), u"");
    }
}

} // namespace
} // namespace Xml
