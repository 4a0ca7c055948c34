#include "xmlattr/core/String.h"

#include "Support.h"
#include "xmlattr/core/Text.h"

namespace Core {
namespace {

TEST(String, ExactlySevenCodeUnitsAreWhiteSpace) {
    std::u16string found;
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        if (String::isSpace(static_cast<char16_t>(unit))) found += static_cast<char16_t>(unit);
    EXPECT_EQ(String(std::move(found)), u"\t\n\v\f\r \u00A0");
    EXPECT_EQ(String(u"\u00A0 a\u2003 ").trim(), u"a\u2003");
    EXPECT_EQ(String(u" a ").trimEnd(), u" a");
}

TEST(String, CaseFoldsAsciiOnly) {
    EXPECT_EQ(String(u"AbZ[\u00C4").toLower(), u"abz[\u00C4");
    EXPECT_EQ(String(u"ABC").compareNoCase(u"abc"), 0);
    EXPECT_NE(String(u"\u00C4").compareNoCase(u"\u00E4"), 0);
    EXPECT_NE(String(u"[").compareNoCase(u"{"), 0);
    EXPECT_LT(String(u"ab").compareNoCase(u"ABC"), 0);
    EXPECT_GT(String(u"b").compareNoCase(u"ABC"), 0);
    EXPECT_LT(String(u"B").compare(u"a"), 0);
}

TEST(String, SubStringsAndSearchesStayInsideTheText) {
    String const text = u"abcabc";
    EXPECT_EQ(text.find(u"bc"), 1);
    EXPECT_EQ(text.find(u"bc", 2), 4);
    EXPECT_EQ(text.find(u"bc", 99), -1);
    EXPECT_EQ(text.rFind(u"bc"), 4);
    EXPECT_EQ(text.rFind(u"x"), -1);
    EXPECT_EQ(text.subString(4), u"bc");
    EXPECT_EQ(text.subString(1, 2), u"bc");
    EXPECT_EQ(text.subString(-3, 99), u"abcabc");
    EXPECT_EQ(text.subString(99, 1), u"");
    EXPECT_EQ(text.subString(2, -1), u"");
    EXPECT_TRUE(text.startsWith(u"abc") && text.endsIn(u"abc") && !text.startsWith(u"bc"));
    EXPECT_EQ(String(u",a, b,").split(u", ").size(), 2u);
    EXPECT_TRUE(String(u" ,").split(u", ").empty());
}

TEST(String, ConvertsBetweenUtf8AndUtf16) {
    for (char const* text :
         {"", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z", "\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(String::fromUtf8(text).toUtf8(), text);
    struct Row {
        char const* bytes;
        char16_t const* text;
    };
    for (Row const& row : {Row{"a\xFFz", u"a\uFFFDz"}, Row{"\xC0\x80", u"\uFFFD\uFFFD"}, Row{"\xE2\x82z", u"\uFFFDz"},
                           Row{"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"}, Row{"\xF0\x9F\x98", u"\uFFFD"},
                           Row{"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}})
        EXPECT_EQ(String::fromUtf8(row.bytes), row.text);
    char16_t const loneSurrogates[] = {0xDC00, u'a', 0xD83D, 0};
    EXPECT_EQ(String(loneSurrogates).toUtf8(), "\xEF\xBF\xBD"
                                               "a\xEF\xBF\xBD");
}

} // namespace
} // namespace Core
