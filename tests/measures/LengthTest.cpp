#include "xmlattr/measures/Length.h"

#include "Support.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/measures/Rectangle.h"
#include "xmlattr/measures/SLength.h"
#include "xmlattr/measures/Units.h"

#include <cmath>

namespace Xml {
namespace {

TEST(Length, ReadsANumberWithItsUnit) {
    struct Row {
        char16_t const* text;
        float size;
        Length::Unit unit;
    };
    for (Row const& row :
         {Row{u"12pt", 12, Length::Pt}, Row{u"+1.5in", 1.5f, Length::In}, Row{u".5mm", 0.5f, Length::Mm},
          Row{u"-3pc", -3, Length::Pc}, Row{u"0", 0, Length::Pt}, Row{u"1e2px", 100, Length::Px},
          Row{u"2 cm", 2, Length::Cm}, Row{u"1em", 1, Length::Em}, Row{u"5%ex", 5, Length::Ex}}) {
        auto const length = parsed<Length>(row.text);
        ASSERT_TRUE(length) << narrow(row.text);
        EXPECT_TRUE(*length == Length(row.size, row.unit)) << narrow(row.text);
    }
    for (char16_t const* text : {u"", u"5", u"12", u"0.0", u"00", u" 12pt", u"12pt ", u"12PT", u"pt", u"12%", u"12ab",
                                 u"+pt", u"1e39pt", u"12", u"(1)pt"}) {
        TXmlAttribute<Length> attribute(Length(7, Length::Cm));
        EXPECT_FALSE(attribute.parseValue(text)) << narrow(text);
        EXPECT_TRUE(attribute == Length(7, Length::Cm)) << narrow(text);
    }
    EXPECT_EQ(printed<Length>(u"0"), "0pt");
    EXPECT_EQ(printed<Length>(u"0.33333in"), "0.333in");
}

TEST(Length, PlainNumbersAreReadLikeAllOthers) {
    std::u16string_view const numbers[] = {u"",
                                           u"0",
                                           u"-0",
                                           u"+12",
                                           u"12.5",
                                           u".5",
                                           u"5.",
                                           u"-",
                                           u"1e2",
                                           u"1e",
                                           u"1 ",
                                           u" 1",
                                           u"9007199254740993",
                                           u"0.00000000000000000000001",
                                           u"1e39"};
    for (std::u16string_view const number : numbers)
        for (std::u16string_view const suffix : {u"", u"%", u"pt", u"ex", u"px", u"e2", u"e+", u"x%", u"x.", u"%%",
                                                 u"5%", u"x", u" ", u"  ", u"e22", u"\u00A0", u"ptpt"}) {
            Core::String const text = Core::String(number) + suffix;
            SCOPED_TRACE(narrow(text));
            Length fast(7, Length::Cm), reference = fast;
            EXPECT_EQ(AttributeTraits<Length>::parse(fast, text),
                      AttributeTraits<Length>::parseReference(reference, text));
            EXPECT_TRUE(fast == reference);
            SLength fastSvg(7, SLength::Cm), referenceSvg = fastSvg;
            EXPECT_EQ(AttributeTraits<SLength>::parse(fastSvg, text),
                      AttributeTraits<SLength>::parseReference(referenceSvg, text));
            EXPECT_TRUE(fastSvg == referenceSvg);
        }
}

TEST(Length, ConvertsAtNinetySixPixelsToTheInch) {
    struct Row {
        Length length;
        float pixels;
    };
    for (Row const& row :
         {Row{{1, Length::In}, 96}, Row{{72, Length::Pt}, 96}, Row{{1, Length::Pc}, 16}, Row{{16, Length::Em}, 1},
          Row{{8, Length::Ex}, 1}, Row{{2.54f, Length::Cm}, 96}, Row{{25.4f, Length::Mm}, 96}, Row{{3, Length::Px}, 3}})
        EXPECT_EQ(row.length.pxSize(), row.pixels) << row.length.getUnit();
    EXPECT_EQ(Length::pxSizeToUnitSize(96, Length::Pt), 72);
    EXPECT_EQ(Length::pxSizeToUnitSize(16, Length::Pc), 144) << "pica multiplies both ways";
    EXPECT_EQ(Length(3e38f, Length::In).pxSize(), INFINITY) << "rounded as every float is";
    EXPECT_EQ(Length::pxSizeToUnitSize(-3e38f, Length::Em), -INFINITY);
    EXPECT_EQ(SLength(3e38f, SLength::Pc).pxSize(), INFINITY);
    Length const bad(1, static_cast<Length::Unit>(8));
    EXPECT_THROW(bad.pxSize(), Core::UnreacheableCodeException);
    EXPECT_THROW(Length::getValueAsString(bad), Core::UnreacheableCodeException);
}

TEST(Length, AddsInTheUnitOfTheLeftOperand) {
    EXPECT_TRUE(Length(1, Length::In) + Length(72, Length::Pt) == Length(2, Length::In));
    EXPECT_TRUE(Length(72, Length::Pt) - Length(1, Length::In) == Length(0, Length::Pt));
    EXPECT_TRUE(Length(1, Length::Pc) + Length(0, Length::Pc) == Length(144, Length::Pc));
    Length sum(1, Length::Px);
    EXPECT_EQ(&(sum += Length(1, Length::In)), &sum);
    EXPECT_TRUE((sum -= Length(1, Length::Px)) == Length(96, Length::Px));
}

TEST(DLength, OneLengthStandsForBoth) {
    EXPECT_EQ(printed<DLength>(u" 1pt\t2mm "), "1pt 2mm");
    EXPECT_EQ(printed<DLength>(u"1pt"), "1pt 1pt");
    TXmlAttribute<DLength> attribute(DLength({7, Length::Cm}, {8, Length::Cm}));
    for (char16_t const* text : {u"", u" ", u"x", u"x 1pt", u"1pt 2pt 3pt", u"1pt,2pt"}) {
        EXPECT_FALSE(attribute.parseValue(text)) << narrow(text);
        EXPECT_EQ(narrow(attribute.getValueAsString()), "7cm 8cm") << narrow(text);
    }
    EXPECT_FALSE(attribute.parseValue(u"1pt x"));
    EXPECT_EQ(narrow(attribute.getValueAsString()), "1pt 8cm") << "the first one has been read";
}

TEST(SLength, DropsWhatIsNoUnit) {
    struct Row {
        char16_t const* text;
        float size;
        SLength::Unit unit;
    };
    for (Row const& row :
         {Row{u"10", 10, SLength::UserUnit}, Row{u"10px", 10, SLength::UserUnit}, Row{u"12ab", 12, SLength::UserUnit},
          Row{u"12a", 1, SLength::UserUnit}, Row{u"50%", 0.5f, SLength::Percent}, Row{u"3pc", 3, SLength::Pc},
          Row{u" 7", 7, SLength::UserUnit}, Row{u" 7 mm", 7, SLength::Mm}, Row{u"200. %", 2, SLength::Percent},
          Row{u"7PT", 7, SLength::UserUnit}, Row{u"-.5in", -0.5f, SLength::In}}) {
        auto const length = parsed<SLength>(row.text);
        ASSERT_TRUE(length) << narrow(row.text);
        EXPECT_TRUE(*length == SLength(row.size, row.unit)) << narrow(row.text);
    }
    for (char16_t const* text : {u"", u"%", u"1x", u"5 ", u"x", u"abc", u"5.", u"1e39", u"1,5"}) {
        TXmlAttribute<SLength> attribute(SLength(7, SLength::Cm));
        EXPECT_FALSE(attribute.parseValue(text)) << narrow(text);
        EXPECT_TRUE(attribute == SLength(7, SLength::Cm)) << narrow(text);
    }
    EXPECT_EQ(printed<SLength>(u"5"), "");
}

TEST(SLength, ConvertsAllButTheReservedUnit) {
    EXPECT_EQ(SLength(3, SLength::Pc).pxSize(), 48);
    EXPECT_EQ(SLength(0.5f, SLength::Percent).pxSize(), 0.5f);
    EXPECT_EQ(SLength(5, SLength::UserUnit).pxSize(), 5);
    for (int unit : {2, 10, -1})
        EXPECT_THROW(SLength(1, static_cast<SLength::Unit>(unit)).pxSize(), Core::UnreacheableCodeException);
    EXPECT_TRUE(!SLength(0, SLength::In));
    EXPECT_FALSE(!SLength(1, SLength::In));
}

TEST(SNullableLength, IsPresentAfterAParse) {
    TXmlAttribute<SNullableLength> attribute;
    EXPECT_FALSE(attribute.parseValue(u"x"));
    EXPECT_TRUE(attribute->isNull());
    EXPECT_TRUE(attribute.parseValue(u"5"));
    EXPECT_FALSE(attribute->isNull());
    EXPECT_FALSE(attribute.parseValue(u"x"));
    EXPECT_FALSE(attribute->isNull());
}

TEST(Length, TellsItsUnitsInItsSyntax) {
    std::u16string_view const syntax = AttributeTraits<Length>::describe.forms[0];
    for (auto const& row : unitRows) EXPECT_NE(syntax.find(row.word), std::u16string_view::npos) << narrow(row.word);
}

TEST(SLengthList, TakesAnySeparators) {
    auto const list = parsed<Core::Vector<SLength>>(u" 1, 2,,3 4%,");
    ASSERT_TRUE(list);
    EXPECT_EQ(*list, (Core::Vector<SLength>{{1, SLength::UserUnit},
                                            {2, SLength::UserUnit},
                                            {3, SLength::UserUnit},
                                            {static_cast<float>(4 / 100.0), SLength::Percent}}));
    TXmlAttribute<Core::Vector<SLength>> attribute(*list);
    EXPECT_FALSE(attribute.parseValue(u"1,x"));
    EXPECT_EQ(attribute->size(), 4u);
    EXPECT_TRUE(attribute.parseValue(u"none") && attribute->empty());
    EXPECT_FALSE(attribute.parseValue(u"None"));
    EXPECT_TRUE(attribute.parseValue(u" , ") && attribute->empty());
}

TEST(Rectangle, TakesFourLengths) {
    EXPECT_TRUE(parsed<Drawing::RectF>(u"rect(0, 0, 1in, 2in)") == Drawing::RectF(0, 0, 96, 192));
    EXPECT_TRUE(parsed<Drawing::RectF>(u"rect(,1px,, 2px ,3px,4px,)") == Drawing::RectF(1, 2, 3, 4));
    for (char16_t const* text : {u"rect(0,0,1in)", u"rect(0,0,1,1)", u" rect(0,0,0,0)", u"rect(0,0,0,0) ", u"rect(",
                                 u"rect()", u"Rect(0,0,0,0)", u"rect(0,0,0,0,0)", u"rect(0,0,0, )", u"rect(0 0 0 0)"})
        EXPECT_FALSE(parsed<Drawing::RectF>(text)) << narrow(text);
}

} // namespace
} // namespace Xml
