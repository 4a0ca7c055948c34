#include "xml/RawTag.h"
#include "xml/Encoding.h"

#include <gtest/gtest.h>

#include <string>

namespace Command {

inline void PrintTo(Place const& place, std::ostream* out) {
    *out << place.line << ':' << place.column;
}

namespace {

TEST(RawTag, NumbersAttributesWithoutNamespaces) {
    RawTag tag(U"<fo:b xmlns:fo = 'x'\n  a=\"1 > 2\"\r\n\tb = '/'\rc='é' xmlns='y' d=''/>", {7, 5});
    EXPECT_EQ(tag.elementName(), "fo:b");
    EXPECT_EQ(tag.attribute(0), (Place{8, 3}));
    EXPECT_EQ(tag.attribute(1), (Place{9, 2})) << "a tab is one column, CR LF one line";
    EXPECT_EQ(tag.attribute(2), (Place{10, 1})) << "so is a lone CR";
    EXPECT_EQ(tag.attribute(3), (Place{10, 17})) << "columns are code points";
    EXPECT_EQ(tag.attribute(4), (Place{7, 5})) << "an attribute by default is where its tag is";
    EXPECT_EQ(RawTag(U"&entity;", {3, 4}).attribute(0), (Place{3, 4}));
}

TEST(RawTag, FindsOffsetsInTheValue) {
    RawTag tag(U"<a s='&lt;&#233;é\U0001F600\r\nz&own;y'/>", {1, 1});
    struct Row {
        std::size_t offset;
        Place place;
    };
    // The value is "<éé", a letter of four bytes, a blank, "z" and what the entity holds.
    for (Row const& row : {Row{0, {1, 7}}, Row{1, {1, 11}}, Row{3, {1, 17}}, Row{5, {1, 18}}, Row{9, {1, 19}},
                           Row{10, {2, 1}}, Row{11, {2, 2}}, Row{12, {1, 4}}, Row{3, {1, 17}}})
        EXPECT_EQ(tag.inValue(0, row.offset), row.place) << row.offset;
}

TEST(RawTag, QuotesTheSource) {
    RawTag tag(U"<a\r\n s='f: &lt;é; g: h'\n b='&own;'/>", {1, 1});
    struct Row {
        Excerpt excerpt;
        char const *before, *part, *after;
        Place begin, end;
    };
    for (Row const& row : {Row{tag.excerptOfElement(), "<", "a", "", {1, 2}, {1, 3}},
                           Row{tag.excerptOfName(0), " ", "s", "='f: &lt;é; g: h'", {2, 2}, {2, 3}},
                           Row{tag.excerptOfValue(0), " s='", "f: &lt;é; g: h", "'", {2, 5}, {2, 19}},
                           Row{tag.excerptInValue(0, 3, 3), " s='f: ", "&lt;é", "; g: h'", {2, 8}, {2, 13}},
                           Row{tag.excerptOfValue(1), " b='", "&own;", "'/>", {3, 5}, {3, 10}},
                           Row{tag.excerptInValue(1, 1, 1), "", "", "", {1, 1}, {1, 1}},
                           Row{tag.excerptOfValue(2), "", "", "", {1, 1}, {1, 1}}}) {
        EXPECT_EQ(row.excerpt.before + "|" + row.excerpt.part + "|" + row.excerpt.after,
                  std::string(row.before) + "|" + row.part + "|" + row.after);
        EXPECT_EQ(row.excerpt.begin, row.begin);
        EXPECT_EQ(row.excerpt.end, row.end);
    }
    std::u32string const fill(200, U'x');
    Excerpt const cut = RawTag(U"<a b='" + fill + U"' c='' d='" + fill + U"'/>", {1, 1}).excerptOfName(1);
    EXPECT_EQ(cut.before.size(), 120);
    EXPECT_EQ(cut.after.size(), 120);
}

TEST(RawTag, DecodesEachEncoding) {
    using namespace std::string_view_literals;
    EXPECT_EQ(decode("<\xC3\xA9\xF0\x9F\x98\x80", ByteEncoding::Utf8), U"<é\U0001F600");
    EXPECT_EQ(decode("\0<\xD8\x3D\xDE\0"sv, ByteEncoding::Utf16Big), U"<\U0001F600");
    EXPECT_EQ(decode("<\0\x3D\xD8\0\xDE"sv, ByteEncoding::Utf16Little), U"<\U0001F600");
    EXPECT_EQ(decode("<\xE9\x80", ByteEncoding::Latin1), U"<é\u0080");
    EXPECT_EQ(decode("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A"
                     "\x9B\x9C\x9E\x9F\xE9",
                     ByteEncoding::Windows1252),
              U"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸé");
    int open = 0;
    for (int byte = 0; byte < 256; ++byte) open += windows1252(static_cast<unsigned char>(byte)) < 0;
    EXPECT_EQ(open, 5);
}

TEST(RawTag, TellsWhichEntitiesATextNeeds) {
    RawTag const tag(U"<a b='1&lt;&#10;' c='&k;&k;' d='&k;&o;' e='&ko;' f=''/>", {1, 1});
    std::string known;
    for (std::size_t i = 0; i < 6; ++i) known += tag.refersOnlyTo(i, {"k"}) ? 'y' : 'n';
    EXPECT_EQ(known, "yynnyn") << "of an attribute that is not in the tag nothing is known";
}

} // namespace
} // namespace Command
