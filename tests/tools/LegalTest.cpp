#include "checking/Hints.h"
#include "text/Text.h"
#include "xmlattr/catalogue/legality/AlsoLegal.h"
#include "xmlattr/catalogue/legality/Expression.h"
#include "xmlattr/catalogue/legality/Property.h"
#include "xmlattr/catalogue/legality/Shorthand.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"

#include <gtest/gtest.h>

#include <iterator>

namespace Command {
namespace {

using Xml::Vocabulary;

TEST(AlsoLegal, MatchesWordsAndKindsOfValues) {
    struct Row {
        Vocabulary vocabulary;
        char const *also, *legal, *refused;
    };
    // Texts between bars; "x" and "y" are what the type accepts.
    for (Row const& row : {
             Row{Vocabulary::Fo, "start end", "start|end", "Start|star||start end"},
             Row{Vocabulary::Svg, "currentColor", "currentColor|CURRENTCOLOR", "current"},
             Row{Vocabulary::Fo, "<number>", "1|-1.5|+.5|1e3|1.", "|.|1pt|1 2|1e"},
             Row{Vocabulary::Fo, "<integer>", "1|-12", "1.5|1e3|x1"},
             Row{Vocabulary::Fo, "<percentage>", "5%|-.5%", "5|%|5 %"},
             Row{Vocabulary::Svg, "<angle>", "5|5deg|-1.5rad|400grad", "deg|5turn|5 deg"},
             Row{Vocabulary::Svg, "<color>", "#abc|#ABCDEF|RGB( 1 , 2 ,3)|rgb(1%,2%, 3%)|X",
                 "#ab|#abcdeg|rgb(1,2)|rgb(1,2%,3)|rgb(1,2,3,4)|rgb(a,b,c)|rgb(|z"},
             Row{Vocabulary::Svg, "<language>", "|de|zh-Hant-TW|x-klingon1", "de-|toolongalanguage|d1|de_AT"},
             Row{Vocabulary::Svg, "<number>{4}", "0 0 10 10|0,0,10,10|0 , 0 10-5", "0 0 10|0 0 10 10 1|0 0 a b"},
             Row{Vocabulary::Svg, "<number>{2,}", "1 2|1,2 3,4|10-20", "1|1 a"},
             Row{Vocabulary::Svg, "all <list>", "all|x all|all, x, y", "x z|all z|x"},
             Row{Vocabulary::Svg, "auto icc()", "icc(a, 1)|x icc(a)|auto icc( a )", "z icc(a)|icc|icc(a|icc(a) x"},
         }) {
        Xml::CatalogueEntry entry{row.vocabulary, "*", "a", Xml::AttributeKind::Typed, "T", row.also, "", false, ""};
        auto const accepts = [](std::u16string_view text) { return text == u"x" || text == u"y"; };
        for (bool const isLegal : {true, false}) {
            std::string_view texts = isLegal ? row.legal : row.refused;
            for (std::size_t end = 0; end != texts.npos; texts.remove_prefix(end + 1)) {
                end = texts.find('|');
                EXPECT_EQ(Xml::isAlsoLegal(entry, toUtf16(texts.substr(0, end)), accepts), isLegal)
                    << row.also << ": " << texts.substr(0, end);
                if (end == texts.npos) break;
            }
        }
    }
}

TEST(Expression, IsMoreThanAValue) {
    for (char16_t const* const text :
         {u"1em + 2pt", u"5 mod 3 * 7.5pt", u"(5cm * 1cm) div 2cm", u"abs(-30cm + .3cm)", u"from-parent( font-size )",
          u"inherited-property-value()", u"2.5cm -3pt", u"max(1pt,min(2pt, 3%))", u"- (1pt)", u"label-end() - 1pt",
          u"rgb-icc(0, 0, 0, 'profile', 1)", u"1pt+1pt", u"from-parent(space-before.optimum)",
          u"inherited-property-value( keep-together.within-line ) div 2"})
        EXPECT_TRUE(Xml::isExpression(text)) << toUtf8(text);
    for (char16_t const* const text : {u"", u"12pt", u"-1pt", u"12 q", u"1em + ", u"1em 2pt", u"+", u"(1pt", u"1pt)",
                                       u"round()", u"round(1,2)", u"rgb(1,2)", u"from-parrent(color)", u"even-page",
                                       u"5modx 3", u"'a' 'b'", u"'a", u"from-parent(.a)", u"from-parent(a.b c)"})
        EXPECT_FALSE(Xml::isExpression(text)) << toUtf8(text);
    EXPECT_FALSE(Xml::isExpression(std::u16string(1'000'000, u'('))) << "nesting has a limit";
    EXPECT_TRUE(Xml::isCopy(u" from-parent(break-before) "));
    EXPECT_TRUE(Xml::isCopy(u"from-parent(keep-together.within-page)"));
    EXPECT_FALSE(Xml::isCopy(u"from-parent() + 1"));
    EXPECT_FALSE(Xml::isCopy(u"round(1)")) << "no keyword comes from there";
}

TEST(Shorthand, SplitsBetweenBlanksAndKeepsExpressions) {
    struct Row {
        char16_t const* text;
        std::vector<std::u16string_view> parts;
    };
    for (Row const& row : {Row{u" 1pt  solid rgb(1, 2, 3)", {u"1pt", u"solid", u"rgb(1, 2, 3)"}},
                           Row{u"3mm + 1mm 3mm", {u"3mm + 1mm", u"3mm"}}, Row{u"1 div 2 mod 3", {u"1 div 2 mod 3"}},
                           Row{u"12pt 'a b' (c", {u"12pt", u"'a b'", u"(c"}}, Row{u" ", {}}})
        EXPECT_EQ(Xml::splitParts(row.text), row.parts) << toUtf8(row.text);
}

TEST(Shorthand, LetsTheTypesOfItsPartsRead) {
    struct Row {
        Vocabulary vocabulary;
        char const* attribute;
        char16_t const* text;
        Xml::Verdict verdict;
        char const* wrong; // the refused part, or what is wrong with the whole
    };
    using enum Xml::Verdict;
    for (Row const& row : {
             Row{Vocabulary::Fo, "border", u"red 1pt + 1pt dashed", Checked, ""},
             Row{Vocabulary::Fo, "border", u"1q solid red", Refused, "1q"},
             Row{Vocabulary::Fo, "border", u"inherit", PassedOver, ""},
             Row{Vocabulary::Fo, "border", u"from-parent(border)", PassedOver, ""},
             Row{Vocabulary::Fo, "border", u" ", Refused, "is empty"},
             Row{Vocabulary::Fo, "background", u"url(a b.png) no-repeat fixed center", Checked, ""},
             Row{Vocabulary::Fo, "background", u"puce", Refused, "puce"},
             Row{Vocabulary::Fo, "margin", u"auto 1pt 2pt 3pt", Checked, ""},
             Row{Vocabulary::Fo, "margin", u"1pt 2pt 3pt 4pt 5pt", Refused, "has more than 4 parts"},
             Row{Vocabulary::Fo, "vertical-align", u"middle", PassedOver, ""},
             Row{Vocabulary::Fo, "position", u"fixed", Checked, ""},
             Row{Vocabulary::Fo, "size", u"21cm 29.7cm", Checked, ""},
             Row{Vocabulary::Fo, "white-space", u"pre", NotCovered, ""},
             Row{Vocabulary::Fo, "font", u"italic bold 12pt/14pt 'A', serif", Checked, ""},
             Row{Vocabulary::Fo, "font", u"12pt / 120% serif", Checked, ""},
             Row{Vocabulary::Fo, "font", u"caption", PassedOver, ""},
             Row{Vocabulary::Fo, "font", u"bold huge serif", Refused, "huge"},
             Row{Vocabulary::Fo, "font", u"12pt/high serif", Refused, "high"},
             Row{Vocabulary::Fo, "font", u"12pt", Refused, "has no font family"},
             Row{Vocabulary::Fo, "font", u"bold", Refused, "has no font size"},
             Row{Vocabulary::Svg, "font", u"12/14 serif", Checked, ""},
             Row{Vocabulary::Svg, "marker", u"url(#a)", Checked, ""},
         }) {
        Xml::Judgement const verdict =
            Xml::judgeShorthand(*Xml::Catalogue::find(row.vocabulary, "*", row.attribute), row.text);
        EXPECT_EQ(verdict.verdict, row.verdict) << row.attribute << ": " << toUtf8(row.text);
        EXPECT_EQ(verdict.part + verdict.problem, row.wrong) << row.attribute << ": " << toUtf8(row.text);
    }
}

TEST(StyleAttribute, SplitsDeclarations) {
    std::string text = "fill : red;;/* a; */stroke:url(a;b) ! important; font:'x;/*y' 3px;junk;;x:;"
                       "Y:url( 'a)/*;' ) /* ) */ !Important;z:url(//a/*b);w:1/**/2/*";
    Xml::blankComments(text);
    auto const declarations = Xml::splitStyle(text);
    struct Row {
        char const *property, *value;
    };
    Row const rows[] = {{"fill", "red"},         {"stroke", "url(a;b)"}, {"font", "'x;/*y' 3px"}, {"x", ""},
                        {"Y", "url( 'a)/*;' )"}, {"z", "url(//a/*b)"},   {"w", "1    2"}};
    ASSERT_EQ(declarations.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(declarations[i].property, rows[i].property);
        EXPECT_EQ(declarations[i].value, rows[i].value);
        EXPECT_EQ(text.substr(declarations[i].offset, 1), std::string_view(rows[i].property).substr(0, 1));
    }
    for (std::string open : {"", "/*", "a:/*", "'", "a:'", "a:(", ";", "/", "a:url(", "a:url( '", "a:!"}) {
        Xml::blankComments(open);
        Xml::splitStyle(open);
    }
}

TEST(Hints, SuggestWhatIsNear) {
    std::vector<std::u16string_view> const words = {u"even-page", u"odd-page", u"page"};
    EXPECT_EQ(nearestWord(u"pages", words), u"page");
    EXPECT_EQ(nearestWord(u"evenpage", words), u"even-page");
    EXPECT_EQ(nearestWord(u"pa", words), u"") << "two of four letters are not under half";
    struct Row {
        char const *type, *variant, *nearest;
        char16_t const* text;
    };
    for (Row const& row :
         {Row{"Length", "12pt", "", u" 12 PT"}, Row{"Length", "12pt", "", u"12"}, Row{"Length", "1.5pt", "", u"1,5pt"},
          Row{"Break", "page", "", u"Page"}, Row{"BorderWidth", "", "thick", u"thickk"},
          Row{"SmartPtr<Drawing::Color>", "", "purple", u"pruple"}, Row{"Length", "", "", u"purple"},
          Row{"SmartPtr<Drawing::Color>", "", "green", u"gren"}}) {
        Hints const hints = hintsFor(*Xml::findAttributeType(row.type), row.text);
        EXPECT_EQ(hints.variant, row.variant) << toUtf8(row.text);
        EXPECT_EQ(hints.nearest, row.nearest) << toUtf8(row.text);
    }
}

} // namespace
} // namespace Command
