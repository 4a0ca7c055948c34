#include "xmlattr/attributes/ParseUtil.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(ParseUtil, SkipsWhiteSpaceAndTellsWhether) {
    Core::String const text = u" \t\u00A0x";
    int index = 0;
    EXPECT_TRUE(ParseUtil::skipWhiteSpace(text, index));
    EXPECT_EQ(index, 3);
    EXPECT_FALSE(ParseUtil::skipWhiteSpace(text, index));
    EXPECT_TRUE(ParseUtil::skipNonWhiteSpace(text, index));
    EXPECT_FALSE(ParseUtil::skipNonWhiteSpace(text, index));
    index = 9;
    EXPECT_FALSE(ParseUtil::skipWhiteSpace(text, index));
    EXPECT_EQ(ParseUtil::extractWord(text, index), u"");
    EXPECT_EQ(index, 9) << "an index past the end stays";
}

TEST(ParseUtil, TakesTokensUpToWhiteSpace) {
    Core::String const text = u"  abc def";
    int index = 0;
    EXPECT_EQ(ParseUtil::extractWord(text, index), u"abc");
    EXPECT_EQ(index, 5);
    EXPECT_EQ(ParseUtil::extractWord(text, index), u"def");
    EXPECT_EQ(index, 9);
    EXPECT_EQ(ParseUtil::extractWord(text, index), u"");
}

TEST(ParseUtil, CallsEndAtTheFirstParenthesis) {
    struct Row {
        char16_t const* text;
        char16_t const* token;
        int index;
    };
    for (Row const& row : {Row{u"rotate(45 10 10) scale(2)", u"rotate(45 10 10)", 16}, Row{u"f(g(x))", u"f(g(x)", 6},
                           Row{u"url(#a", u"url(#a", 6}, Row{u" (a) b", u"(a)", 4}, Row{u"f (a)", u"f", 1}}) {
        SCOPED_TRACE(narrow(row.text));
        int index = 0;
        EXPECT_EQ(ParseUtil::extractWordOrFunction(row.text, index), row.token);
        EXPECT_EQ(index, row.index);
    }
}

TEST(ParseUtil, ComparesUnitByUnit) {
    EXPECT_TRUE(equalsText(u"auto", u"auto"));
    for (char16_t const* text : {u"Auto", u"aut", u"auto ", u""})
        EXPECT_FALSE(equalsText(text, u"auto")) << narrow(text);
}

} // namespace
} // namespace Xml
