#include "xmlattr/catalogue/grammar/SvgTexts.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(SvgTexts, ReadTimingLists) {
    for (char16_t const* text : {u"0", u" 1.5s ", u"-2min", u"+ 10ms", u"02:30:03.5", u"30:12", u"indefinite", u"click",
                                 u"a.end", u"a.end+2s", u"a.end-2s", u"a.begin - 1.5h", u"b.repeat(2) + 1s",
                                 u"accessKey(x)", u"wallclock(2002-01-01)", u"0s; 5s ;a.click"})
        EXPECT_TRUE(readTimingList(text)) << narrow(text);
    for (char16_t const* text : {u"", u" ", u"zzz qqq", u"1.s", u"1x", u"1 s", u"1:2", u"1:02:03:04", u"0s,5s", u"0s;",
                                 u";0s", u"a.end+", u"a.end+b", u"repeat(2", u"repeat()", u"scale(2)", u"+", u"#"})
        EXPECT_FALSE(readTimingList(text)) << narrow(text);
}

TEST(SvgTexts, ReadAUnicodeRange) {
    for (char16_t const* text : {u"U+26", u"u+0-7F", u"U+0025-00FF", u"u+4??", u"U+??????", u"U+10FFFF"})
        EXPECT_TRUE(readUnicodeRange(text)) << narrow(text);
    for (char16_t const* text :
         {u"", u"zzz qqq", u"U+", u"26", u"U+-7F", u"U+7-", u"U+4?-5?", u"U+1234567", u"U+4?4", u"U+26 ", u"U+26,"})
        EXPECT_FALSE(readUnicodeRange(text)) << narrow(text);
}

} // namespace
} // namespace Xml
