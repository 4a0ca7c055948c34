#include "xmlattr/core/Exceptions.h"
#include "xmlattr/document/ForcePageCount.h"
#include "xmlattr/document/InitialPageNumber.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(InitialPageNumber, ReadsKeywordsNumbersAndMultiples) {
    struct Row {
        char16_t const* text;
        int type, number, multiple;
    };
    for (Row const& row :
         {Row{u"auto", 0, -1, -1}, Row{u"auto-odd", 1, -1, -1}, Row{u"auto-even", 2, -1, -1}, Row{u"7", 3, 7, -1},
          Row{u"0", 3, 1, -1}, Row{u"-3", 3, 1, -1}, Row{u"abc", 3, 1, -1}, Row{u"Auto", 3, 1, -1}, Row{u"", 3, 1, -1},
          Row{u"12pt", 3, 12, -1}, Row{u"multiple-of(2)", 4, -1, 2}, Row{u"multiple-of( 3 ) x)", 4, -1, 3},
          Row{u"multiple-of(-4)", 4, -1, -4}, Row{u"Multiple-of(2)", 3, 1, -1}}) {
        SCOPED_TRACE(narrow(row.text));
        TXmlAttribute<InitialPageNumber> attribute(InitialPageNumber(InitialPageNumberType::MultipleOf, 9));
        ASSERT_TRUE(attribute.parseValue(row.text));
        EXPECT_EQ(static_cast<int>(attribute->getType()), row.type);
        EXPECT_EQ(attribute->getNumber(), row.number);
        EXPECT_EQ(attribute->getMultiple(), row.multiple);
    }
    for (char16_t const* text : {u"multiple-of()", u"multiple-of( )", u"multiple-of(2", u"multiple-of(x)"}) {
        InitialPageNumber number(5);
        EXPECT_FALSE(InitialPageNumber::parse(text, number)) << narrow(text);
        EXPECT_EQ(number.getNumber(), 5);
    }
}

TEST(InitialPageNumber, AllMultiplesAreEqual) {
    TXmlAttribute<InitialPageNumber> const two(InitialPageNumber(InitialPageNumberType::MultipleOf, 2));
    EXPECT_TRUE(two.isEqual(u"multiple-of(3)"));
    EXPECT_FALSE(two.isEqual(u"auto") || two.isEqual(u"multiple-of(2"));
    EXPECT_TRUE(InitialPageNumber(3) == InitialPageNumber(3) && InitialPageNumber(3) != InitialPageNumber(4));
    EXPECT_THROW(InitialPageNumber(InitialPageNumberType::Number, 2), Core::UnreacheableCodeException);
}

TEST(InitialSheetNumber, AcceptsEveryText) {
    EXPECT_EQ(parsed<InitialSheetNumber>(u"auto"), InitialSheetNumber());
    EXPECT_EQ(parsed<InitialSheetNumber>(u"4"), InitialSheetNumber(4));
    EXPECT_EQ(parsed<InitialSheetNumber>(u"multiple-of(2)"), InitialSheetNumber(1));
    EXPECT_NE(InitialSheetNumber(1), InitialSheetNumber());
    EXPECT_EQ(InitialSheetNumber().getType(), InitialSheetNumberType::Auto);
    EXPECT_EQ(InitialSheetNumber().getNumber(), -1);
    EXPECT_EQ(InitialSheetNumber(4).getType(), InitialSheetNumberType::Number);
    EXPECT_EQ(InitialSheetNumber(4).getNumber(), 4);
}

TEST(ForcePageCount, ReadsKeywordsAndMultiples) {
    struct Row {
        char16_t const* text;
        int type, count;
    };
    for (Row const& row :
         {Row{u"auto", 0, -1}, Row{u"even", 1, -1}, Row{u"odd", 2, -1}, Row{u"end-on-even", 3, -1},
          Row{u"end-on-odd", 4, -1}, Row{u"no-force", 5, -1}, Row{u"multiple-of(4)", 6, 4},
          Row{u"end-on-multiple-of( 8 )", 7, 8}, Row{u"whatever", 0, -1}, Row{u"Even", 0, -1}, Row{u"", 0, -1}}) {
        SCOPED_TRACE(narrow(row.text));
        TXmlAttribute<ForcePageCount> attribute(ForcePageCount(ForcePageCountType::MultipleOf, 9));
        ASSERT_TRUE(attribute.parseValue(row.text));
        EXPECT_EQ(static_cast<int>(attribute->getType()), row.type);
        EXPECT_EQ(attribute->getCount(), row.count);
        EXPECT_TRUE(attribute.isEqual(row.text));
    }
    ForcePageCount const before(ForcePageCountType::MultipleOf, 9);
    ForcePageCount count = before;
    for (char16_t const* text : {u"end-on-multiple-of(x)", u"multiple-of()", u"multiple-of(2"})
        EXPECT_FALSE(ForcePageCount::parse(text, count)) << narrow(text);
    EXPECT_TRUE(ForcePageCount::parse(u"whatever", count));
    EXPECT_EQ(count, before) << "the parser itself leaves the value of an unknown word";
}

} // namespace
} // namespace Xml
