#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/catalogue/grammar/GrammarCompiler.h"
#include "xmlattr/core/String.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace Xml {
namespace {

// The values of a text, as "Length 12 pt"; "illegal" when it is none by the grammar.
std::string read(Grammar const& grammar, Dialect dialect, std::u16string_view text) {
    constexpr char const* kinds[] = {"word", "number",    "length", "percentage", "angle",
                                     "time", "frequency", "color",  "uri",        "text"};
    Meaning meaning;
    if (!readMeaning(meaning, grammar, dialect, text)) return "illegal";
    std::string result;
    auto const utf8 = [](std::u16string_view part) { return Core::String(part).toUtf8(); };
    for (Item const& item : meaning.values()) {
        char value[64] = {};
        result.append(result.empty() ? "" : "; ").append(kinds[static_cast<int>(item.kind)]).append(" ");
        switch (item.kind) {
        case ItemKind::Word:
        case ItemKind::Uri:
        case ItemKind::Text: result += utf8(item.text); break;
        case ItemKind::Color:
            (void)std::snprintf(value, sizeof value, "%06x", static_cast<unsigned>(item.rgb));
            result += value;
            break;
        case ItemKind::Number:
        case ItemKind::Length:
        case ItemKind::Percentage:
        case ItemKind::Angle:
        case ItemKind::Time:
        case ItemKind::Frequency:
            (void)std::snprintf(value, sizeof value, "%g", static_cast<double>(item.number));
            result.append(value).append(utf8(item.unit));
            break;
        }
    }
    return result;
}

struct Row {
    std::u16string_view text;
    char const *fo, *attribute, *style;
};

void expectMeans(Grammar const& grammar, std::initializer_list<Row> rows) {
    for (Row const& row : rows) {
        std::string const trace = Core::String(row.text).toUtf8();
        EXPECT_EQ(read(grammar, Dialect::Fo, row.text), row.fo) << trace << " in XSL-FO";
        EXPECT_EQ(read(grammar, Dialect::SvgAttribute, row.text), row.attribute) << trace << " in an attribute of SVG";
        EXPECT_EQ(read(grammar, Dialect::SvgStyle, row.text), row.style) << trace << " in a style of SVG";
    }
}

TEST(Meaning, ReadsNumbersAsEachVocabularyWritesThem) {
    expectMeans("<number>"_grammar,
                {
                    {u" 1.5\n", "number 1.5", "number 1.5", "number 1.5"},
                    {u"-.5", "number -0.5", "number -0.5", "number -0.5"},
                    {u"+007", "number 7", "number 7", "number 7"},
                    {u"1e-3", "illegal", "number 0.001", "illegal"},
                    {u"5.", "illegal", "illegal", "illegal"},
                    {u"--1", "illegal", "illegal", "illegal"},
                    {u"1,5", "illegal", "illegal", "illegal"},
                    {u"1.5.5", "illegal", "illegal", "illegal"},
                    {u"\u00A01", "illegal", "illegal", "illegal"},
                    {u"1e999", "illegal", "number 3.40282e+38", "illegal"},
                    {u"16777217.0000001", "number 1.67772e+07", "number 1.67772e+07", "number 1.67772e+07"},
                });
    expectMeans("<integer>"_grammar, {
                                         {u"-12", "number -12", "number -12", "number -12"},
                                         {u"12.0", "illegal", "illegal", "illegal"},
                                         {u"1e2", "illegal", "illegal", "illegal"},
                                     });
}

TEST(Meaning, ReadsUnitsAsEachVocabularyWritesThem) {
    expectMeans("auto | <length> | <percentage> | <angle>"_grammar,
                {
                    {u"12pt", "length 12pt", "length 12pt", "length 12pt"},
                    {u"1e2mm", "illegal", "length 100mm", "illegal"},
                    {u"2em", "length 2em", "length 2em", "length 2em"},
                    {u"0", "length 0", "length 0", "length 0"},
                    {u"10", "illegal", "length 10", "length 10"},
                    {u"10PT", "illegal", "illegal", "length 10PT"},
                    {u"10 pt", "illegal", "illegal", "illegal"},
                    {u"10ptx", "illegal", "illegal", "illegal"},
                    {u"10pt12pt", "illegal", "illegal", "illegal"},
                    {u"6p", "illegal", "illegal", "illegal"},
                    {u"50%", "percentage 50%", "percentage 50%", "percentage 50%"},
                    {u"50 %", "illegal", "illegal", "illegal"},
                    {u"90deg", "angle 90deg", "angle 90deg", "angle 90deg"},
                    {u"Auto", "illegal", "illegal", "word Auto"},
                    {u"auto", "word auto", "word auto", "word auto"},
                    {u"automatic", "illegal", "illegal", "illegal"},
                });
    expectMeans("<time> | <frequency> | <clock-value>"_grammar,
                {
                    {u"20ms", "time 20ms", "time 20ms", "time 20ms"},
                    {u"3khz", "frequency 3khz", "frequency 3khz", "frequency 3khz"},
                    {u"1:02:03.5", "time 3723.5", "time 3723.5", "time 3723.5"},
                    {u"02:33", "time 153", "time 153", "time 153"},
                    {u"1.5h", "time 5400", "time 5400", "time 5400"},
                    {u"1:60", "illegal", "illegal", "illegal"},
                    {u"1:2", "illegal", "illegal", "illegal"},
                });
}

TEST(Meaning, ReadsColors) {
    expectMeans("transparent | <color>"_grammar,
                {
                    {u"#f0a", "color ff00aa", "color ff00aa", "color ff00aa"},
                    {u"#F0a1b2", "color f0a1b2", "color f0a1b2", "color f0a1b2"},
                    {u"#ff00", "illegal", "illegal", "illegal"},
                    {u"#ggg", "illegal", "illegal", "illegal"},
                    {u"DarkOrange", "color ff8c00", "color ff8c00", "color ff8c00"},
                    {u"dark orange", "illegal", "illegal", "illegal"},
                    {u"transparent", "word transparent", "word transparent", "word transparent"},
                    {u"rgb(300,-1,0)", "color ff0000", "color ff0000", "color ff0000"},
                    {u"rgb( 1 , 2 , 3 )", "color 010203", "color 010203", "color 010203"},
                    {u"rgb(50%,0%,100%)", "color 8000ff", "color 8000ff", "color 8000ff"},
                    {u"rgb(50%,0,100%)", "illegal", "illegal", "illegal"},
                    {u"rgb(1.4,2,3)", "color 010203", "illegal", "illegal"},
                    {u"RGB(1,2,3)", "illegal", "color 010203", "color 010203"},
                    {u"rgb(1,2)", "illegal", "illegal", "illegal"},
                    {u"rgb(1,2,3", "illegal", "illegal", "illegal"},
                    {u"rgb(1 2 3)", "illegal", "illegal", "illegal"},
                    {u"rgb(1,2,3)x", "illegal", "illegal", "illegal"},
                    {u"ButtonFace", "word ButtonFace", "word ButtonFace", "word ButtonFace"},
                    {u"system-color(ButtonFace)", "word system-color(ButtonFace)", "illegal", "illegal"},
                    {u"rgb-icc(1,2,3,#CMYK,0,0,0,1)", "color 010203", "illegal", "illegal"},
                    {u"rgb-icc(1,2,3)", "illegal", "illegal", "illegal"},
                    {u"rgb-icc(1,2,3", "illegal", "illegal", "illegal"},
                    {u"rgb-named-color(1,2,3,p,c)", "color 010203", "illegal", "illegal"},
                    {u"rgb-named-color(1,2,3,p,c,d)", "illegal", "illegal", "illegal"},
                    {u"rgb-icc(1,2,3,4)", "illegal", "illegal", "illegal"},
                    {u"system-color(1)", "illegal", "illegal", "illegal"},
                    {u"rgb-named-color(1,2,3,profile,'a')", "color 010203", "illegal", "illegal"},
                });
    EXPECT_EQ(read("<paint>"_grammar, Dialect::SvgAttribute, u"url(#a) red icc-color(p, 1 2)"),
              "uri #a; color ff0000; text p; number 1; number 2");
}

TEST(Meaning, ReadsReferencesAndNames) {
    struct TextRow {
        Grammar grammar;
        std::u16string_view text;
        char const* meaning;
    };
    for (TextRow const& row : {
             TextRow{"<uri>"_grammar, u"url(a(1).png)", "uri a(1).png"},
             TextRow{"<uri>"_grammar, u"url( 'a b.png' )", "uri a b.png"},
             TextRow{"<uri>"_grammar, u"url(a b)", "illegal"},
             TextRow{"<uri>"_grammar, u"url(a", "illegal"},
             TextRow{"<uri>"_grammar, u"url('a)", "illegal"},
             TextRow{"<uri>"_grammar, u"a.png", "illegal"},
             TextRow{"<uri> | <reference>"_grammar, u"a.png", "uri a.png"},
             TextRow{"<uri> | <reference>"_grammar, u"url(a", "illegal"},
             TextRow{"<uri> | <reference>"_grammar, u"zzz qqq", "illegal"},
             TextRow{"<uri> | <reference>"_grammar, u"data:a;base64,AB\n  CD", "uri data:a;base64,AB\n  CD"},
             TextRow{"<uri>+"_grammar, u"url(a) url(b)", "uri a; uri b"},
             TextRow{"<iri>"_grammar, u" any text ", "uri any text"},
             TextRow{"<string> | a"_grammar, u"'.'", "text ."},
             TextRow{"<string>"_grammar, u"'a\"", "illegal"},
             TextRow{"<id>"_grammar, u"_a-1.b\u00E9", "text _a-1.b\u00C3\u00A9"},
             TextRow{"<id>"_grammar, u"1a", "illegal"},
             TextRow{"<name>"_grammar, u"a:b", "illegal"},
             TextRow{"<language>"_grammar, u"zh-Hant-TW", "text zh-Hant-TW"},
             TextRow{"<language>"_grammar, u"en_GB", "illegal"},
             TextRow{"<language>"_grammar, u"en-", "illegal"},
             TextRow{"<country>"_grammar, u"GB", "text GB"},
             TextRow{"<script>"_grammar, u"Latn", "text Latn"},
             TextRow{"<script>"_grammar, u"latin", "illegal"},
             TextRow{"<character>"_grammar, u" ", "text  "},
             TextRow{"<character>"_grammar, u"", "illegal"},
             TextRow{"<character>"_grammar, u"ab", "illegal"},
             TextRow{"<character>"_grammar, u"\U0001F600", "text \xF0\x9F\x98\x80"},
             TextRow{"<family-name>#"_grammar, u"Arial, 'A, B' , MS Gothic", "text Arial; text A, B; text MS Gothic"},
             TextRow{"<family-name>#"_grammar, u"Arial,,B", "illegal"},
             TextRow{"<family-name>#"_grammar, u"'Arial", "illegal"},
             TextRow{"<empty> | a"_grammar, u" ", "text "},
             TextRow{"none | <path-data>"_grammar, u" M0 0 ", "text M0 0"},
             TextRow{"<path-data>"_grammar, u"garbage", "illegal"},
             TextRow{"<points>"_grammar, u"0 0", "text 0 0"},
             TextRow{"<transform-list>"_grammar, u"scale(2)", "text scale(2)"},
         }) {
        std::string expected = row.meaning;
        if (row.text.starts_with(u"_a")) expected = "text " + Core::String(row.text).toUtf8();
        EXPECT_EQ(read(row.grammar, Dialect::Fo, row.text), expected)
            << row.grammar.text() << ": " << Core::String(row.text).toUtf8();
    }
}

// The numbers of a list touch where nothing could join them.
TEST(Meaning, SeparatesListsAsSvgDoes) {
    struct ListRow {
        Grammar grammar;
        std::u16string_view text;
        char const* meaning;
    };
    for (ListRow const& row : {
             ListRow{"<number>~"_grammar, u"1,2 3 , 4", "number 1; number 2; number 3; number 4"},
             ListRow{"<number>~"_grammar, u".5.5-1e-2+3", "number 0.5; number 0.5; number -0.01; number 3"},
             ListRow{"<number>~"_grammar, u"1,,2", "illegal"},
             ListRow{"<number>~"_grammar, u"1a", "illegal"},
             ListRow{"<number>~"_grammar, u"1 2,", "illegal"},
             ListRow{"<number>~{1,2}"_grammar, u"1-1", "number 1; number -1"},
             ListRow{"<number>~{1,2}"_grammar, u"1 2 3", "illegal"},
             ListRow{"<length>~ | none"_grammar, u"1px 2em,3", "length 1px; length 2em; length 3"},
             ListRow{"<length>~"_grammar, u"1px-2px", "illegal"},
             ListRow{"<length> <length>"_grammar, u"1-1", "illegal"},
             ListRow{"<view-box>"_grammar, u"-5-5,10 20", "number -5; number -5; number 10; number 20"},
             ListRow{"<view-box>"_grammar, u"0 0 -1 1", "illegal"},
         })
        EXPECT_EQ(read(row.grammar, Dialect::SvgAttribute, row.text), row.meaning)
            << row.grammar.text() << ": " << Core::String(row.text).toUtf8();
}

TEST(Meaning, ReadsShorthands) {
    constexpr Grammar font = "[ <font-style> || [ normal | small-caps ] || <font-weight> ]? [ <font-size> ] "
                             "[ / [ normal | <number [0,]> | <length [0,]> ] ]? <family-name># | caption"_grammar;
    EXPECT_EQ(read(font, Dialect::Fo, u"bold italic 12pt/14pt Times New, serif"),
              "word bold; word italic; length 12pt; length 14pt; text Times New; text serif");
    EXPECT_EQ(read(font, Dialect::Fo, u"large serif"), "word large; text serif");
    EXPECT_EQ(read(font, Dialect::Fo, u"caption"), "word caption");
    EXPECT_EQ(read(font, Dialect::Fo, u"bold 12pt"), "illegal");
    EXPECT_EQ(read(font, Dialect::Fo, u"12 Times"), "illegal");
    constexpr Grammar border = "<border-width> || <border-style> || [ <color> | transparent ]"_grammar;
    EXPECT_EQ(read(border, Dialect::Fo, u"solid 1pt rgb(1, 2, 3)"), "word solid; length 1pt; color 010203");
    EXPECT_EQ(read(border, Dialect::Fo, u"1pt solid solid"), "illegal");
    EXPECT_EQ(read("auto | <clip-shape>"_grammar, Dialect::Fo, u"rect(1pt, auto, 0, 2px)"),
              "length 1pt; word auto; length 0; length 2px");
    EXPECT_EQ(read("auto | <clip-shape>"_grammar, Dialect::Fo, u"rect(1pt auto 0)"), "illegal");
}

} // namespace
} // namespace Xml
