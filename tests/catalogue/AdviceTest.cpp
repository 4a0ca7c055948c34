#include "xmlattr/catalogue/legality/Advice.h"
#include "Support.h"

#include <algorithm>

namespace Xml {
namespace {

constexpr Vocabulary Fo = Vocabulary::Fo, Svg = Vocabulary::Svg;

struct Row {
    Vocabulary vocabulary;
    char const *element, *attribute;
    char16_t const* text;
    Verdict verdict;
    char const *held, *replacement;
    bool isExact = false;
};

void expectAdvice(std::initializer_list<Row> rows) {
    for (Row const& row : rows) {
        CatalogueEntry const* const entry = Catalogue::find(row.vocabulary, row.element, row.attribute);
        ASSERT_NE(entry, nullptr) << row.attribute;
        std::u16string const text = row.text;
        Judgement const judgement = judge(*entry, text);
        SCOPED_TRACE(std::string(row.attribute) + "=" + narrow(row.text));
        EXPECT_EQ(judgement.verdict, row.verdict);
        if (!isFault(judgement.verdict)) continue;
        Advice const advice = advise(*entry, text, Notation::Attribute, judgement);
        EXPECT_EQ(Core::String(advice.held).toUtf8(), row.held);
        EXPECT_EQ(Core::String(advice.replacement).toUtf8(), row.replacement);
        EXPECT_EQ(advice.isExact, row.isExact);
        if (advice.replacement.empty()) continue;
        EXPECT_EQ(std::u16string(text).replace(advice.offset, advice.length, advice.inserted()), advice.replacement);
        Verdict const after = judge(*entry, advice.replacement).verdict;
        bool const mayBePassedOver = advice.isExact || (!entry->type() && entry->longhands.empty());
        EXPECT_TRUE(after == Verdict::Read || (mayBePassedOver && after == Verdict::PassedOver));
    }
}

TEST(Advice, WritesWhatIsMisreadAnotherWay) {
    using enum Verdict;
    expectAdvice({
        {Svg, "path", "d", u"M0 0a.5.5 0 1 1 1 1", Misread, "0", "M0 0a.5 .5 0 1 1 1 1", true},
        {Svg, "path", "d", u"m1,1l2-3", Read, "", ""},
        {Svg, "path", "d", u"M1e39 0", Misread, "0", ""},
        {Svg, "path", "d", u"\n M0 0l.5.5 ", Misread, "0", "\n M0 0l.5 .5 ", true},
        {Svg, "g", "transform", u"translate(-1-1)", Misread, "no transform", "translate(-1 -1)", true},
        {Svg, "polygon", "points", u"0,0 1-1", Read, "", ""},
        {Svg, "polygon", "points", u"25e-2,1e99", Misread, "2", ""},
        {Svg, "svg", "viewBox", u" 0,0,9,9", Misread, "", " 0 0 9 9", true},
        {Svg, "rect", "fill", u"rgb(300,-1,0)", Misread, "rgb(44,255,0)", "rgb(255,0,0)", true},
        {Svg, "rect", "fill", u"url('#u')", Misread, "url(#u')", "url(#u)", true},
        {Svg, "rect", "fill", u"url('#u ')", Misread, "url(#u)", ""},
        {Svg, "rect", "stroke", u"url( #u )", Read, "", ""},
        {Fo, "block", "space-before", u"0.0", Misread, "", "0", true},
        {Fo, "block", "background-color", u"rgb(10%,20%,30%)", Read, "", ""},
        {Fo, "block", "hyphenate", u"true ", Misread, "", "true", true},
        {Fo, "external-graphic", "src", u" a.png", Misread, "url( a.png)", "a.png", true},
    });
}

TEST(Advice, GuessesOnlyWhatIsLegalAndRead) {
    using enum Verdict;
    expectAdvice({
        {Fo, "block", "margin", u"10", Lenient, "1000%", "10pt"},
        {Svg, "rect", "opacity", u"50%", Lenient, "0.5", ""},
        {Svg, "rect", "fill", u"URL(#MyGrad)", Refused, "", "url(#MyGrad)", true},
        {Fo, "block", "color", u"RGB-ICC(1,2,3,#MyProfile,.5)", Refused, "", "rgb-icc(1,2,3,#MyProfile,.5)", true},
        {Fo, "block", "color", u"rgb-icc(300,0,0,#CMYK,0,0,0,1)", Misread, "rgb-icc(44,0,0,#CMYK,0, 0, 0, 1)", ""},
        {Fo, "external-graphic", "src", u"url()", Misread, "\"\"", ""},
        {Fo, "external-graphic", "source-document", u"url(a) url(b)", Misread, "\"a) url(b\"", ""},
        {Fo, "block-container", "clip", u"rect(1pt, 2pt, 3pt, 4pt", Refused, "", "rect(1pt, 2pt, 3pt, 4pt)"},
        {Fo, "block", "text-shadow", u"1pt 2pt red blu", Lenient, "1pt 2pt 0 rgb(255,0,0)", ""},
        {Svg, "rect", "width", u"1 cm", Lenient, "1cm", "1cm", true},
        {Fo, "block", "font-size", u"10", Lenient, "1000%", "10pt"},
        {Fo, "block", "hyphenate", u"treu", Lenient, "", "true"},
        {Fo, "block", "text-align", u"jusitfy", Lenient, "jusitfy", "justify"},
        {Fo, "block", "space-before", u"1,5pt", Refused, "", "1.5pt", true},
        {Fo, "block", "space-before", u"1.5.5pt", Refused, "", ""},
        {Fo, "block", "start-indent", u"- 5pt", PassedOver, "", ""},
        {Fo, "block", "start-indent", u"--5pt", Refused, "", ""},
        {Fo, "block", "background-image", u"none none", Lenient, "url(none none)", ""},
        {Fo, "block", "pitch", u"120 Hz", Refused, "", "120Hz", true},
        {Fo, "block", "color", u"rgb(1,2,3,4)", Refused, "", "#010203"},
        {Fo, "block", "border-color", u"rgb(300,0,0)", Misread, "rgb(44,0,0)", "#ff0000", true},
        {Fo, "block", "padding", u"max(1pt,2pt)", PassedOver, "", ""},
        {Svg, "rect", "width", u"10.20.30", Refused, "", ""},
        {Svg, "animate", "keyTimes", u"0,1", Refused, "", "0.1"},
        {Fo, "block", "space-before", u"12 PT", Refused, "", "12pt", true},
        {Fo, "block", "space-before", u"2 inches", Refused, "", "2in"},
        {Fo, "block", "border", u"1pt solid rde", Refused, "", "1pt solid red"},
        {Fo, "block", "color", u"light blue", Refused, "", "lightblue"},
        {Fo, "block", "writing-mode", u"lr_tb", Refused, "", ""},
        {Fo, "block", "white-space", u"prre", Refused, "", "pre"},
        {Svg, "feBlend", "mode", u"Multiply", Refused, "", "multiply", true},
        // Words that have one right case, though no value type reads some of them.
        {Svg, "marker", "orient", u"Auto", Refused, "", "auto", true},
        {Svg, "rect", "fill", u"currentcolor", Refused, "", "currentColor", true},
        {Svg, "rect", "fill", u"URL(#None)", Refused, "", "url(#None)", true},
        {Svg, "svg", "preserveAspectRatio", u"xmidymid MEET", Lenient, "xMid YMid", "xMidYMid meet", true},
        // Numbers that XSL-FO and SVG write otherwise.
        {Fo, "block", "start-indent", u"12.pt", Lenient, "12pt", "12pt", true},
        {Fo, "block", "start-indent", u"10e-16pt", Lenient, "0pt", "0.000000000000001pt", true},
        {Svg, "rect", "x", u"10.", Lenient, "1", "10", true},
        {Fo, "block", "space-before", u"10.", Refused, "", "10pt"},
        // Nothing is put together, and no word is made of another.
        {Fo, "block", "orphans", u"20 20", Refused, "", ""},
        {Fo, "block", "color", u"gray blue", Refused, "", ""},
        {Svg, "rect", "width", u"17,4 %", Refused, "", "17.4%", true},
        {Svg, "polygon", "points", u"a b c", Refused, "", ""},
        {Svg, "g", "transform", u"rotat(45)", Lenient, "nothing", "rotate(45)"},
        // One part after the other.
        {Fo, "block", "border", u"1PT SOLID red", Refused, "", "1pt solid red", true},
        {Fo, "block", "border", u"1PT sold RED", Refused, "", "1pt solid RED"},
        {Fo, "block", "border", u"1PT sold rrrr", Refused, "", ""},
        // That comma may separate thousands.
        {Fo, "block", "space-before", u"1,500pt", Refused, "", "1.500pt"},
        {Fo, "block", "space-before", u"1,500,0pt", Refused, "", ""},
    });
}

TEST(Advice, GuessesNothingOfLongTexts) {
    CatalogueEntry const& entry = *Catalogue::find(Svg, "rect", "width");
    for (std::size_t const size : {64u, 65u}) {
        std::u16string const text = std::u16string(size - 3, u'0') + u" cm";
        Advice const advice = advise(entry, text, Notation::Attribute, judge(entry, text));
        EXPECT_EQ(advice.replacement, size == 64 ? std::u16string(61, u'0') + u"cm" : u"") << size;
    }
}

TEST(Advice, WritesNewerColorsAsTheyAreRead) {
    struct Case {
        char16_t const* text;
        char const* replacement;
        bool isExact;
    };
    for (Case const& row : {Case{u"#abc8", "#aabbcc", false},
                            Case{u"#aabbccFF", "#aabbcc", true},
                            Case{u"#aabbcc0", "", false},
                            Case{u"rgb(10% 20% 30%)", "#1a334d", true},
                            Case{u"rgb(0 127.6 255 / 1)", "#0080ff", true},
                            Case{u"rgba(1,2,3,100%)", "#010203", true},
                            Case{u"RGBA(1, 2, 3, .5)", "#010203", false},
                            Case{u"rgba(1,2,3,1.5)", "#010203", false},
                            Case{u"rgb(1.5,2,3)", "#020203", true},
                            Case{u"hsl(120deg 100% 25%)", "#008000", true},
                            Case{u"hsla(-240,100%,25%,50%)", "#008000", false},
                            Case{u"hsl(.5turn 50% 50% / 100%)", "#40bfbf", true},
                            Case{u"hwb(90 50% 100%)", "#555555", true},
                            Case{u"hwb(0 20% 40%)", "#993333", true},
                            Case{u"rebeccapurple", "#663399", true},
                            Case{u"rgb(1 2 3 4)", "", false},
                            Case{u"rgb(1 2% 3)", "", false},
                            Case{u"hsl(1px 2% 3%)", "", false},
                            Case{u"hsl(1 2 3)", "", false},
                            Case{u"rgb(1,,2,3)", "", false},
                            Case{u"rgb(1 2,3)", "", false},
                            Case{u"rgb(1 2 3,)", "", false},
                            Case{u"lab(1 2 3)", "", false}}) {
        CatalogueEntry const& entry = *Catalogue::find(Svg, "path", "stroke");
        Advice const advice = advise(entry, row.text, Notation::Attribute, judge(entry, row.text));
        EXPECT_EQ(Core::String(advice.replacement).toUtf8(), row.replacement) << narrow(row.text);
        EXPECT_EQ(advice.isExact, row.isExact) << narrow(row.text);
    }
}

TEST(Judge, TellsNegativeAndNewerValues) {
    struct Case {
        Vocabulary vocabulary;
        char const *element, *attribute;
        char16_t const* text;
        bool isNegative;
        char const* newer;
    };
    for (Case const& row :
         {Case{Fo, "block", "font-size", u"-10pt", true, ""}, Case{Svg, "rect", "width", u"-1", true, ""},
          Case{Svg, "svg", "viewBox", u"0 0 -1 1", true, ""}, Case{Svg, "line", "stroke-dasharray", u"1 -1", true, ""},
          Case{Svg, "path", "fill", u"context-fill", false, "SVG 2"},
          Case{Svg, "path", "fill", u"#11223344", false, "CSS 4"},
          Case{Fo, "block", "font-size", u"2rem", false, "CSS 3"}, Case{Fo, "block", "font-size", u"2rex10", false, ""},
          Case{Svg, "path", "fill", u"hsl(1,2)", false, ""}, Case{Svg, "path", "fill", u"rgb(1,,2,3)", false, ""},
          Case{Svg, "path", "fill", u"hsl(var(--c))", false, "CSS 3"}, Case{Svg, "path", "d", u"M0 0q", false, ""}}) {
        Judgement const judgement = judge(row.vocabulary, row.element, row.attribute, row.text);
        EXPECT_TRUE(isFault(judgement.verdict)) << row.attribute << narrow(row.text);
        EXPECT_EQ(judgement.isNegative, row.isNegative) << row.attribute << narrow(row.text);
        EXPECT_EQ(judgement.newer, row.newer) << row.attribute << narrow(row.text);
    }
}

TEST(Variants, DifferInWhatAuthorsOverlook) {
    struct Case {
        char16_t const *text, *variant;
    };
    for (Case const& row :
         {Case{u" Auto ", u"auto"}, Case{u"'serif'", u"serif"}, Case{u"1,5 CM", u"1.5cm"}, Case{u"12", u"12pt"},
          Case{u"no wrap", u"nowrap"}, Case{u"abc", u"#abc"}, Case{u"90 degrees", u"90deg"}, Case{u"1e1pt", u"10pt"}})
        EXPECT_TRUE(std::ranges::count(variantsOf(row.text), row.variant) > 0) << narrow(row.text);
}

TEST(NearestWord, IsOneOrTwoLettersAway) {
    std::u16string_view const words[] = {u"even-page", u"odd-page", u"page", u"green", u"grey"};
    EXPECT_EQ(nearestWord(u"pages", words), u"page");
    EXPECT_EQ(nearestWord(u"evenpage", words), u"even-page");
    EXPECT_EQ(nearestWord(u"gren", words), u"green");
    EXPECT_EQ(nearestWord(u"pa", words), u"");
    EXPECT_EQ(nearestWord(u"pa ge", words), u"") << "that is no word";
}

} // namespace
} // namespace Xml
