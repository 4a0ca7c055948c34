#include "xmlattr/color/SColor.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(SColor, ReadsReferencesAndColors) {
    struct Row {
        char16_t const* text;
        SColor::ColorType type;
        char16_t const* url;
    };
    for (Row const& row :
         {Row{u"url(#a)", SColor::Url, u"#a"}, Row{u"url(#a b)", SColor::Url, u"#a"},
          Row{u"url( #a\u00A0) red", SColor::Url, u"#a"}, Row{u"url(x.svg#a,b(c", SColor::Url, u"#a,b(c"},
          Row{u"url()#a", SColor::Url, u"#a"}, Row{u"url#b(#)", SColor::Url, u"#"}, Row{u"none", SColor::None, u""},
          Row{u"Transparent", SColor::None, u""}, Row{u"red", SColor::Color, u""}, Row{u"#123", SColor::Color, u""}}) {
        SCOPED_TRACE(narrow(row.text));
        SColor paint(u"#old");
        ASSERT_TRUE(SColor::parseSColor(paint, row.text));
        EXPECT_EQ(paint.getType(), row.type);
        EXPECT_EQ(paint.getUrl(), row.url);
        EXPECT_EQ(paint.getColor() == nullptr, row.type != SColor::Color);
    }
    for (char16_t const* text :
         {u"", u"url", u"url(a)", u"url#a", u"#url(a)", u"URL(#a)", u" url(#a)", u"currentColor"}) {
        TXmlAttribute<SColor> attribute(SColor(u"#old"));
        EXPECT_FALSE(attribute.parseValue(text)) << narrow(text);
        EXPECT_TRUE(attribute == SColor(u"#old")) << narrow(text);
    }
    EXPECT_EQ(printed<SColor>(u"url(#a)"), "");
}

TEST(SColor, ComparesColorsByObjectAndReferencesByText) {
    SmartPtr<Drawing::Color> const black = new Drawing::RGBColor(0, 0, 0);
    SColor const colored(black);
    EXPECT_TRUE(colored == SColor(colored) && colored == SColor(black));
    EXPECT_FALSE(colored == SColor(black->clone()));
    EXPECT_TRUE(SColor(u"#a") == SColor(u"#a"));
    EXPECT_FALSE(SColor(u"#a") == SColor(u"#A"));
    EXPECT_FALSE(SColor(u"") == SColor());
    EXPECT_FALSE(SColor(SmartPtr<Drawing::Color>()) == SColor()) << "a colour, though there is none";
    TXmlAttribute<SColor> attribute;
    EXPECT_TRUE(attribute.isEqual(u"none"));
    ASSERT_TRUE(attribute.parseValue(u"url(#a)"));
    EXPECT_TRUE(attribute.isEqual(u"url(x#a )"));
    ASSERT_TRUE(attribute.parseValue(u"red"));
    EXPECT_FALSE(attribute.isEqual(u"red"));
}

TEST(SNullableColor, IsPresentOnceParsed) {
    SmartPtr<Drawing::Color> const black = new Drawing::RGBColor(0, 0, 0);
    EXPECT_TRUE(SNullableColor().isNull() && SNullableColor(u"#a").isNull() && SNullableColor(black).isNull());
    EXPECT_TRUE(SNullableColor(black).getColor() == black);
    TXmlAttribute<SNullableColor> attribute;
    EXPECT_FALSE(attribute.parseValue(u"url(a)"));
    EXPECT_TRUE(attribute->isNull());
    EXPECT_TRUE(attribute.parseValue(u"url(#a)"));
    EXPECT_FALSE(attribute->isNull());
    EXPECT_FALSE(attribute.parseValue(u"nonesuch"));
    EXPECT_FALSE(attribute->isNull());
    EXPECT_FALSE(attribute.isEqual(u"url(#a)"));
    EXPECT_TRUE(attribute.isEqual(u"url(#a)", int_to_type<1>()));
    attribute->setNull(true);
    EXPECT_TRUE(attribute.isEqual(u"url(#a)", int_to_type<1>())) << "absence is not compared";
    EXPECT_EQ(attribute.getValueAsString(), u"");
}

} // namespace
} // namespace Xml
