#include "Support.h"
#include "xmlattr/catalogue/legality/Animation.h"
#include "xmlattr/catalogue/legality/Expression.h"
#include "xmlattr/catalogue/legality/Judge.h"
#include "xmlattr/catalogue/legality/Shorthand.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"

#include <chrono>
#include <iterator>

namespace Xml {
namespace {

constexpr int isUnknown = -9;

TEST(Expression, GivesAKindOfValue) {
    struct Row {
        char16_t const* text;
        Expression::Kind kind;
        int power = isUnknown;
    };
    using enum Expression::Kind;
    for (Row const& row : {
             Row{u"1em + 2pt", Numeric, 1},
             Row{u"2.5cm -3pt", Numeric, 1},
             Row{u"1pt+1pt", Numeric, 1},
             Row{u"5 mod 3 * 7.5pt", Numeric, 1},
             Row{u"5pt mod 3pt", Numeric, 1},
             Row{u"5cm * 1cm", Numeric, 2},
             Row{u"(5cm * 1cm) div 2cm", Numeric, 1},
             Row{u"1 div 2cm", Numeric, -1},
             Row{u"3cm div 2cm", Numeric, 0},
             Row{u"abs(-30cm + .3cm)", Numeric, 1},
             Row{u"max(1pt,min(2pt, 3%))", Numeric, 1},
             Row{u"max(3%, 4%)", Numeric},
             Row{u"floor(1.4in div 1.0in) * 1.0in", Numeric, 1},
             Row{u"round(5%)", Numeric, 0},
             Row{u"- (1pt)", Numeric, 1},
             Row{u"label-end() - 1pt", Numeric, 1},
             Row{u"inherit * 2", Numeric},
             Row{u"from-parent(font-size) + 1pt", Numeric, 1},
             Row{u"-from-parent(start-indent)", Numeric},
             Row{u"inherited-property-value( keep-together.within-line ) div 2", Numeric},
             Row{u"proportional-column-width(2)", Share, 1},
             Row{u"2pt + proportional-column-width(2)", Share, 1},
             Row{u"rgb-icc(0, 0, 0, 'profile', 1)", Color},
             Row{u"rgb-icc(0, 0, 0, #CMYK, 0, 0, 0, 1)", Color},
             Row{u"(#fff)", Color},
             Row{u"system-font(caption)", Font},
             Row{u"system-font(caption, font-size)", Any},
             Row{u"from-parent( font-size )", Any},
             Row{u"inherited-property-value()", Any},
             Row{u"from-parent(space-before.optimum)", Any},
             Row{u"(auto)", Text},
             Row{u"('auto')", Text},
         }) {
        auto const expression = readExpression(row.text);
        ASSERT_TRUE(expression) << narrow(row.text);
        EXPECT_EQ(expression->kind, row.kind) << narrow(row.text);
        EXPECT_EQ(expression->power.value_or(isUnknown), row.power) << narrow(row.text);
    }
}

TEST(Expression, IsMoreThanAValueAndWellFormed) {
    for (char16_t const* const text :
         {u"", u"12pt", u"-1pt", u"12 q", u"1em + ", u"1em 2pt", u"+", u"(1pt", u"1pt)", u"round()", u"round(1,2)",
          u"rgb(1,2)", u"from-parrent(color)", u"even-page", u"5modx 3", u"'a' 'b'", u"'a", u"from-parent(.a)",
          u"from-parent(a.b c)", u"inherit",
          // operands that do not go together
          u"1pt + 2", u"3pt mod 2", u"max(1pt, 2)", u"rgb(1,red,3)", u"rgb(1,2,3pt)", u"10pt + indent", u"2 * red",
          u"-#fff * 2", u"rgb(1,2,3) + 1", u"round(1.5pt)", u"abs(auto)", u"proportional-column-width(1pt)",
          // units that there are not
          u"12q + 1pt", u"12q + 1", u"1pt + 2ptx", u"1PT + 1PT"})
        EXPECT_FALSE(readExpression(text)) << narrow(text);
    EXPECT_FALSE(readExpression(std::u16string(1'000'000, u'('))) << "nesting has a limit";
}

TEST(Judge, TakesTimeLinearInAText) {
    struct Row {
        Vocabulary vocabulary;
        char const *element, *attribute;
        std::u16string_view piece;
    };
    for (Row const& row :
         {Row{Vocabulary::Fo, "block", "space-before", u"1-1"}, Row{Vocabulary::Fo, "block", "border", u"1-1"},
          Row{Vocabulary::Svg, "g", "fill", u"rgb("}, Row{Vocabulary::Svg, "g", "fill", u"rgb(1,"},
          Row{Vocabulary::Svg, "g", "fill", u"hsl(1 "}}) {
        std::u16string text;
        while (text.size() < 1 << 18) text += row.piece;
        auto const start = std::chrono::steady_clock::now();
        EXPECT_EQ(judge(row.vocabulary, row.element, row.attribute, text).verdict, Verdict::Refused);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << narrow(row.piece);
    }
}

TEST(Expression, StandsForAValueOfItsKind) {
    struct Row {
        char const* attribute;
        char16_t const* text;
        bool stands;
    };
    for (Row const& row : {
             Row{"font-size", u"rgb(1,2,3)", false},
             Row{"color", u"1pt + 2pt", false},
             Row{"color", u"system-color(window)", true},
             Row{"space-before", u"system-color(x)", false},
             Row{"margin-left", u"10 + 5", false},
             Row{"margin-left", u"10% + 5%", true},
             Row{"margin-left", u"5cm * 5cm", false},
             Row{"margin-left", u"(auto)", true},
             Row{"margin-left", u"(always)", false},
             Row{"intrinsic-scale-value", u"10% + 5%", true},
             Row{"intrinsic-scale-value", u"1pt + 1pt", false},
             Row{"widows", u"1 + 1", true},
             Row{"widows", u"1pt + 1pt", false},
             Row{"keep-together", u"1 + 2", true},
             Row{"maximum-repeats", u"1 + 1", true},
             Row{"reference-orientation", u"45 * 2", true},
             Row{"font-weight", u"100 + 100", true},
             Row{"line-height", u"1.2 * 1.5", true},
             Row{"span", u"1 + 1", false},
             Row{"span", u"from-parent(span)", true},
             Row{"span", u"system-font(caption)", false},
             Row{"hyphenate", u"1 + 1", false},
             Row{"font", u"system-font(caption)", true},
             Row{"font", u"1pt + 2pt", false},
             Row{"text-indent", u"proportional-column-width(1)", false},
             Row{"column-width", u"proportional-column-width(1) + 2pt", true},
             Row{"column-width", u"1 + 2", false},
             Row{"clip", u"1pt + 2pt", false},
         })
        EXPECT_EQ(isExpressionFor(*Catalogue::find(Vocabulary::Fo, "*", row.attribute), row.text), row.stands)
            << row.attribute << ": " << narrow(row.text);
}

TEST(Shorthand, SplitsBetweenBlanksAndKeepsExpressions) {
    struct Row {
        char16_t const* text;
        std::vector<std::u16string_view> parts;
    };
    for (Row const& row : {Row{u" 1pt  solid rgb(1, 2, 3)", {u"1pt", u"solid", u"rgb(1, 2, 3)"}},
                           Row{u"3mm + 1mm 3mm", {u"3mm + 1mm", u"3mm"}}, Row{u"1 div 2 mod 3", {u"1 div 2 mod 3"}},
                           Row{u"12pt 'a b' (c", {u"12pt", u"'a b'", u"(c"}}, Row{u" ", {}}})
        EXPECT_EQ(splitParts(row.text), row.parts) << narrow(row.text);
}

TEST(Shorthand, LetsTheTypesOfItsPartsRead) {
    struct Row {
        Vocabulary vocabulary;
        char const* attribute;
        char16_t const* text;
        Verdict verdict;
        char const* wrong = ""; // the refused part, or what is wrong with the whole
    };
    using enum Verdict;
    for (Row const& row : {
             Row{Vocabulary::Fo, "border", u"red 1pt + 1pt dashed", Read},
             Row{Vocabulary::Fo, "border", u"1q solid red", Refused, "1q"},
             Row{Vocabulary::Fo, "border", u"inherit", PassedOver},
             Row{Vocabulary::Fo, "border", u"from-parent(border)", PassedOver},
             Row{Vocabulary::Fo, "border", u"1pt inherit", Refused, "inherit is legal only by itself"},
             Row{Vocabulary::Fo, "padding", u"inherit inherit", Refused, "inherit is legal only by itself"},
             Row{Vocabulary::Fo, "font", u"12pt inherit", Refused, "inherit is legal only by itself"},
             Row{Vocabulary::Fo, "font", u"inherit 12pt Arial", Refused, "inherit is legal only by itself"},
             Row{Vocabulary::Fo, "border", u" ", Refused, "is empty"},
             Row{Vocabulary::Fo, "background", u"url(a.png) no-repeat fixed center", Read},
             Row{Vocabulary::Fo, "background", u"url(a b.png) fixed", Lenient, "url(a b.png)"},
             Row{Vocabulary::Fo, "background", u"puce", Refused, "puce"},
             Row{Vocabulary::Fo, "background", u"red fixed blue", Refused, "has parts that do not go together"},
             Row{Vocabulary::Fo, "border", u"1 solid from-parent(color)", Refused, "1"},
             Row{Vocabulary::Fo, "margin", u"1pt 10 2pt", Lenient, "10"},
             Row{Vocabulary::Fo, "margin", u"auto 1pt 2pt 3pt", Read},
             Row{Vocabulary::Fo, "margin", u"1pt 2pt 3pt 4pt 5pt", Refused, "has more than 4 parts"},
             Row{Vocabulary::Fo, "vertical-align", u"middle", PassedOver},
             Row{Vocabulary::Fo, "position", u"fixed", Read},
             Row{Vocabulary::Fo, "size", u"21cm 29.7cm", Read},
             Row{Vocabulary::Fo, "white-space", u"pre", PassedOver},
             Row{Vocabulary::Fo, "white-space", u"prre", Refused},
             Row{Vocabulary::Fo, "font", u"italic bold 12pt/14pt 'A', serif", Read},
             Row{Vocabulary::Fo, "font", u"12pt / 120% serif", Read},
             Row{Vocabulary::Fo, "font", u"caption", PassedOver},
             Row{Vocabulary::Fo, "font", u"bold huge serif", Refused, "huge"},
             Row{Vocabulary::Fo, "font", u"12pt/high serif", Refused, "high"},
             Row{Vocabulary::Fo, "font", u"12pt", Refused, "has no font family"},
             Row{Vocabulary::Fo, "font", u"bold", Refused, "has no font size"},
             Row{Vocabulary::Fo, "font", u"bold serif", Refused, "has no font size"},
             Row{Vocabulary::Fo, "font", u"bold 1..5pt", Refused, "1..5pt"},
             Row{Vocabulary::Fo, "clip", u"rect(1pt, 2pt", Refused, "has no closing parenthesis"},
             Row{Vocabulary::Svg, "font", u"12/14 serif", Read},
             Row{Vocabulary::Svg, "marker", u"url(#a)", Read},
         }) {
        Judgement const judgement = judge(row.vocabulary, "*", row.attribute, row.text);
        EXPECT_EQ(judgement.verdict, row.verdict) << row.attribute << ": " << narrow(row.text);
        bool const hasBoth = !judgement.part.empty() && !judgement.problem.empty();
        EXPECT_EQ(narrow(judgement.part) + (hasBoth ? " " : "") + judgement.problem, row.wrong)
            << row.attribute << ": " << narrow(row.text);
    }
}

TEST(Judge, TellsWhatIsLegalByNames) {
    struct Row {
        Vocabulary vocabulary;
        char const *element, *attribute;
        char16_t const* text;
        Verdict verdict;
        Notation notation = Notation::Attribute;
    };
    using enum Verdict;
    using enum Notation;
    for (Row const& row : {
             Row{Vocabulary::Fo, "block", "span", u"all", Read},
             Row{Vocabulary::Fo, "block", "span", u"al", Refused},
             Row{Vocabulary::Fo, "block", "span", u"\tinherit\r\n", PassedOver},
             Row{Vocabulary::Fo, "block", "span", u"inherit\u00A0", Refused},
             Row{Vocabulary::Fo, "block", "span", u"\finherit", Refused},
             Row{Vocabulary::Fo, "block", "span", u"from-parent(span)\u00A0", Refused},
             Row{Vocabulary::Fo, "block", "border", u"inherit\u00A0", Refused},
             Row{Vocabulary::Fo, "block", "span", u"INHERIT", Refused},
             Row{Vocabulary::Fo, "block", "start-indent", u"1pt + 1em", PassedOver},
             Row{Vocabulary::Fo, "block", "span", u"1 + 1", Refused},
             Row{Vocabulary::Fo, "block", "space-before", u"-0.0", PassedOver},
             Row{Vocabulary::Fo, "block", "orphans", u"-0.0", Refused},
             Row{Vocabulary::Fo, "table", "width", u"auto", PassedOver},
             Row{Vocabulary::Fo, "block", "id", u"a1", FreeText},
             Row{Vocabulary::Fo, "block", "id", u"", Refused},
             Row{Vocabulary::Fo, "block", "id", u"\u00C0_.-\u00B7\u00C09", FreeText},
             Row{Vocabulary::Fo, "block", "id", u"\u00BF", Refused},
             Row{Vocabulary::Fo, "block", "id", u"\u00B7a", Refused},
             Row{Vocabulary::Fo, "block", "writing-mode", u"lr-tb", PassedOver},
             Row{Vocabulary::Fo, "block", "writing-mode", u"lr", PassedOver},
             Row{Vocabulary::Fo, "block", "writing-mode", u"rl-lr", Refused},
             Row{Vocabulary::Fo, "block", "hyphenate", u"treu", Lenient},
             Row{Vocabulary::Fo, "block", "hyphenate", u"from-parent(hyphenate)", PassedOver},
             Row{Vocabulary::Fo, "external-graphic", "content-type", u"content-type:image/svg+xml", FreeText},
             Row{Vocabulary::Fo, "external-graphic", "content-type", u"namespace-prefix:svg", FreeText},
             Row{Vocabulary::Fo, "external-graphic", "content-type", u"namespace-prefix:", FreeText},
             Row{Vocabulary::Fo, "external-graphic", "content-type", u"content-type:svg", Refused},
             Row{Vocabulary::Fo, "external-graphic", "content-type", u"image/svg+xml", Refused},
             Row{Vocabulary::Svg, "font-face", "unicode-range", u"U+0-7F, U+4??", FreeText},
             Row{Vocabulary::Svg, "font-face", "unicode-range", u"U+0-7F U+4??", Refused},
             Row{Vocabulary::Svg, "font-face", "widths", u"U+4E00-9FFF 1736, U+20 1 2, 4", FreeText},
             Row{Vocabulary::Svg, "font-face", "widths", u"U+4E00-9FFF, 1736", Refused},
             Row{Vocabulary::Svg, "g", "clipPathUnits", u"inherit", Refused},
             Row{Vocabulary::Svg, "path", "d", u"M0 0a.5.5 0 1 1 1 1", Misread},
             Row{Vocabulary::Fo, "block", "widht", u"1pt", NotCovered},
             Row{Vocabulary::Svg, "svg", "viewBox", u"0,0,9,9", Misread},
             Row{Vocabulary::Svg, "svg", "viewBox", u"0,0,9,9\u00A0", Refused},
             Row{Vocabulary::Svg, "path", "stroke-dasharray", u"\n none", Read},
             Row{Vocabulary::Svg, "path", "stroke-dasharray", u"\u00A0none", Refused},
             Row{Vocabulary::Svg, "g", "fill", u"RED", Read},
             Row{Vocabulary::Svg, "g", "stroke-linecap", u"BUTT", Refused},
             Row{Vocabulary::Svg, "g", "stroke-linecap", u"BUTT", PassedOver, Declaration},
             Row{Vocabulary::Svg, "g", "Stroke-Linecap", u"butt", Read, Declaration},
             Row{Vocabulary::Svg, "g", "stroke-linecap", u"but", Refused, Declaration},
             Row{Vocabulary::Svg, "g", "stroke-width", u"1e-1px", Read, Declaration},
             Row{Vocabulary::Svg, "g", "width", u"1", NotCovered, Declaration},
         })
        EXPECT_EQ(judge(row.vocabulary, row.element, row.attribute, row.text, row.notation).verdict, row.verdict)
            << row.attribute << ": " << narrow(row.text);
}

TEST(Judge, GivesTheReason) {
    std::u16string const text = u"1pt solid rde";
    Judgement const part = judge(Vocabulary::Fo, "block", "border", text);
    EXPECT_EQ(part.part.data() - text.data(), 10);
    EXPECT_EQ(part.part, u"rde");
    ASSERT_EQ(part.tried.size(), 3u);
    EXPECT_EQ(part.tried[0], Catalogue::find(Vocabulary::Fo, "*", "border-top-width")->type());
    Judgement const whole = judge(Vocabulary::Fo, "block", "span", u"al");
    EXPECT_EQ(whole.part, u"");
    ASSERT_EQ(whole.tried.size(), 1u);
    EXPECT_EQ(whole.tried[0], Catalogue::find(Vocabulary::Fo, "*", "span")->type());
    EXPECT_EQ(judge(Vocabulary::Svg, "g", "font", u"BALD 1px A", Notation::Declaration).part, u"BALD");
}

TEST(Animation, FindsTheRowsOfWhatItGives) {
    struct Row {
        Animation animation;
        char const* attribute;
        char16_t const* text;
        Verdict verdict; // NotCovered where there is nothing to judge by
    };
    using enum Verdict;
    for (Row const& row :
         {Row{{"animate", "r"}, "to", u"1px", Read}, Row{{"animate", "r"}, "to", u"-1px", Lenient},
          Row{{"animate", "r"}, "by", u"-1px", PassedOver}, Row{{"animate", "r"}, "dur", u"1s", NotCovered},
          Row{{"animate", "r", "", "", "sum"}, "from", u"-1px", PassedOver},
          Row{{"animate", "r", "", "", "replace"}, "from", u"-1px", Lenient}, Row{{"set", "fill"}, "to", u"RED", Read},
          Row{{"set", "fill"}, "to", u"None", Read}, Row{{"set", "fill", "XML"}, "to", u"None", Lenient},
          Row{{"set"}, "to", u"1", NotCovered}, Row{{"animateTransform"}, "to", u"1 2", PassedOver},
          Row{{"animateTransform", "", "", "skewX"}, "to", u"1 2", Refused},
          Row{{"animateMotion"}, "to", u"1 2", PassedOver}, Row{{"g", "r"}, "to", u"1", NotCovered}}) {
        auto const animated = findAnimated(row.animation, row.attribute);
        EXPECT_EQ(animated ? judge(*animated, row.text).verdict : NotCovered, row.verdict)
            << row.animation.element << " " << row.attribute << " " << narrow(row.text);
    }
    AnimatedValue const translation = *findAnimated({"animateTransform"}, "to");
    EXPECT_EQ(judge(translation, u"1deg").problem, "expected one number or two");
    EXPECT_EQ(judge(translation, u"var(--x)").problem, "") << "that is newer";
    EXPECT_EQ(narrow(judge(Vocabulary::Svg, "path", "d", u"x1 1").part), "x");
}

TEST(StyleAttribute, FindsPropertiesAlone) {
    EXPECT_EQ(findProperty(Vocabulary::Svg, "g", "Fill"), Catalogue::find(Vocabulary::Svg, "g", "fill"));
    EXPECT_EQ(findProperty(Vocabulary::Svg, "g", "width"), nullptr);
    EXPECT_EQ(findProperty(Vocabulary::Fo, "block", "color"), nullptr);
}

TEST(StyleAttribute, SplitsDeclarations) {
    std::string text = "fill : red;;/* a; */stroke:url(a;b) ! important; font:'x;/*y' 3px;junk;;x:;"
                       "Y:url( 'a)/*;' ) /* ) */ !Important; : b ;{z:url(//a/*b);--z:url(//a/*b);f=url(c:d);v:'!' "
                       "!important;w:1/**/2/*";
    blankComments(text);
    auto const declarations = splitStyle(text);
    struct Row {
        char const *text, *property, *value, *fault = "";
    };
    Row const rows[] = {{"fill : red", "fill", "red"},
                        {"stroke:url(a;b) ! important", "stroke", "url(a;b)"},
                        {"font:'x;/*y' 3px", "font", "'x;/*y' 3px"},
                        {"junk", "", "", "it has no colon"},
                        {"x:", "x", ""},
                        {"Y:url( 'a)/*;' )         !Important", "Y", "url( 'a)/*;' )"},
                        {": b", "", "", "no name stands before its colon"},
                        {"{z:url(//a/*b)", "", "", "no name stands before its colon"},
                        {"--z:url(//a/*b)", "--z", "url(//a/*b)"},
                        {"f=url(c:d)", "", "", "it has no colon"},
                        {"v:'!' !important", "v", "'!'"},
                        {"w:1    2", "w", "1    2"}};
    ASSERT_EQ(declarations.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(declarations[i].text, rows[i].text);
        EXPECT_EQ(declarations[i].property, rows[i].property);
        EXPECT_EQ(declarations[i].value, rows[i].value);
        EXPECT_EQ(declarations[i].fault, rows[i].fault);
        EXPECT_EQ(text.substr(declarations[i].offset, declarations[i].text.size()), rows[i].text);
    }
    for (std::string open : {"", "/*", "a:/*", "'", "a:'", "a:(", ";", "/", "a:url(", "a:url( '", "a:!"}) {
        blankComments(open);
        splitStyle(open);
    }
}

} // namespace
} // namespace Xml
