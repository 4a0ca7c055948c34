#include "xmlattr/catalogue/grammar/SvgLists.h"

#include "xmlattr/core/String.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <random>
#include <string>

namespace Xml {
namespace {

using Path = Core::Vector<PathDataCommand>;
using Points = Core::Vector<Point>;
using Transforms = Core::Vector<Transform>;
using Lengths = Core::Vector<SLength>;

std::string narrow(std::u16string_view text) {
    return Core::String(text).toUtf8();
}

// One kind of list with everything that is said about it.
template <class Value> struct List {
    std::function<bool(std::u16string_view)> isLegal;
    std::function<SvgReading(std::u16string_view, Value const&)> compareWith;
    std::function<std::optional<std::u16string>(std::u16string_view)> rewrite;

    // The whole in a line: "same"; what is illegal; or what is held otherwise, then the rewritten text, where "#" is
    // none. Parts of the text are marked where they stand: "M1 [px]: expected a number".
    std::string describe(std::u16string_view text) const {
        Value held{};
        bool const read = AttributeTraits<Value>::parse(held, text);
        SvgReading const reading = compareWith(text, held);
        EXPECT_EQ(isLegal(text), reading.isLegal()) << narrow(text);
        EXPECT_LE(reading.offset + reading.length, text.size());
        auto const mended = rewrite(text);
        std::string const place =
            narrow(text.substr(0, reading.offset)) + '[' + narrow(text.substr(reading.offset, reading.length)) + "]: ";
        std::string const becomes = mended ? " -> " + narrow(*mended) : " -> #";
        if (!read && reading.isLegal()) return "refused" + becomes;
        switch (reading.outcome) {
        case SvgReading::Outcome::Same: EXPECT_EQ(mended, text) << narrow(text); return "same";
        case SvgReading::Outcome::Illegal:
            EXPECT_FALSE(mended) << narrow(text);
            return place + std::string(reading.problem);
        case SvgReading::Outcome::Differs: break;
        }
        return place + reading.held + becomes;
    }

    struct Row {
        char16_t const* text;
        char const* says;
    };
    void expect(std::initializer_list<Row> rows) const {
        for (Row const& row : rows) EXPECT_EQ(describe(row.text), row.says) << narrow(row.text);
    }
};

SvgReading comparePath(std::u16string_view text, Path const& held) {
    return compare(text, held);
}
SvgReading comparePoints(std::u16string_view text, Points const& held) {
    return compare(text, held);
}
SvgReading compareTransforms(std::u16string_view text, Transforms const& held) {
    return compare(text, held);
}
SvgReading compareViewBox(std::u16string_view text, ViewBox const& held) {
    return compare(text, held);
}

List<Path> const pathData{readPathData, comparePath, rewritePathData};
List<Points> const points{readPoints, comparePoints, rewritePoints};
List<Transforms> const transforms{readTransformList, compareTransforms, rewriteTransformList};
List<ViewBox> const viewBox{readViewBox, compareViewBox, rewriteViewBox};

List<Lengths> listOf(SvgListRule const& rule) {
    return {[=](std::u16string_view text) { return readSvgList(text, rule); },
            [=](std::u16string_view text, Lengths const& held) { return compare(text, held, rule); },
            [=](std::u16string_view text) { return rewriteSvgList(text, rule); }};
}

TEST(SvgPathDataGrammar, TellsWhatTheValueTypeReadsOtherwise) {
    pathData.expect({
        {u"", "same"},
        {u" \n", "same"},
        {u"M 100 100 L 300 100 L 200 300 z", "same"},
        {u"M200,300 Q400,50 600,300 T1000,300", "same"},
        {u"M100,200 C100,100 250,100 250,200 S400,300 400,200", "same"},
        {u"m1-2-3-4h5V+6l.5-.5zM0 0Zz", "same"},
        {u"M0 0a1 1 0 0110 10A5,5,-30,1,0-.5,1e3", "same"},
        {u"M1e-16 1E+2L10e-1,5", "same"},
        {u"M0 0a-5 5 0 0 0 1 1", "same"},
        {u"M0 0a.5.5 0 1 0 .858.515", "M0 0a[.5]: 0 -> M0 0a.5 .5 0 1 0 .858 .515"},
        {u"M.5.5", "M[.5]: 0 -> M.5 .5"},
        {u"M1.5.5l-.5.25-1.5.5z", "M[1.5]: 0 -> M1.5 .5l-.5 .25-1.5 .5z"},
        {u"M1e3-5L1E1.5", "M[1e3]: 0 -> M1e3 -5L1E1 .5"},
        {u"M5. 15.L5..5", "M[5.]: 0 -> M5 15L5 .5"},
        {u"M115. 5.e1", "M[115.]: 11 -> M115 5.e1"},
        {u"M1e39 0", "M[1e39]: 0 -> #"},
    });
}

TEST(SvgPathDataGrammar, TellsWhatIsIllegal) {
    pathData.expect({
        {u"L1 1", "[L]: path data starts with a moveto"},
        {u"none", "[none]: expected a command of path data"},
        {u"M", "M[]: expected a number"},
        {u"M1", "M1[]: expected a number"},
        {u"M1 1,", "M1 1,[]: expected a number"},
        {u"M,1 1", "M[,]: expected a number"},
        {u"M1,,1", "M1,[,]: expected a number"},
        {u"M1 1,L2 2", "M1 1,[L]: expected a number"},
        {u"M1 1 2", "M1 1 2[]: expected a number"},
        {u"M1px 1", "M1[px]: expected a number"},
        {u"M1 1px", "M1 1[px]: expected a command of path data"},
        {u"M0 0z 5 5", "M0 0z [5]: expected a command of path data"},
        {u"M0 0a1 1 0 2 0 1 1", "M0 0a1 1 0 [2]: a flag of an arc is 0 or 1"},
        {u"M0 0a1 1 0 1 1", "M0 0a1 1 0 1 1[]: expected a number"},
        {u"M1e 1", "M1[e]: expected a number"},
        {u"M- 1", "M[-]: expected a number"},
        {u"M1\u00A01", "M1[\u00A01]: expected a number"},
        {u",M1 1", "[,]: expected a command of path data"},
        {u"M1 1 #", "M1 1 [#]: expected a command of path data"},
    });
}

// The fast path, of which the comparison with the value type is the reference.
TEST(SvgPathDataGrammar, KnowsPlainTexts) {
    auto const isPlain = [](std::u16string_view text) {
        bool const isSame = pathData.describe(text) == "same", isCalledPlain = isPlainPathData(text);
        EXPECT_TRUE(isSame || !isCalledPlain) << narrow(text);
        return isCalledPlain;
    };
    for (std::u16string_view const text :
         {u"", u" \n", u" M1-2.5+3,.5L 1 1\n2,2z m1 1c1 1 1 1 1 1h-0", u"M0 0a1 1 0 01.5-1A1,1,0,1,1,1 1t1 1m2 2",
          u"M16777217 900719.925474099", u"M0 123456789012345", u"M1.5e-8,1e-99z"})
        EXPECT_TRUE(isPlain(text)) << narrow(text);
    for (std::u16string_view const text : {u"M1 1e1", u"M1E-1 1", u"M1e-1-1", u"M1e-1.5", u"M1 1e-", u"M1 1.",
                                           u"M1.5.5", u"M0 0a1 1 0 01.5.5", u"M1 1px", u"M1 1cm1 1", u"L1 1", u"M1",
                                           u"M0 0a1 1 0 2 0 1 1", u"M0 1234567890123456", u"M1\u00A01", u"M1 1,"})
        EXPECT_FALSE(isPlain(text)) << narrow(text);
    constexpr std::u16string_view pieces[] = {u"1", u"50", u".5",  u"1.5", u"-2", u"+3", u"0",     u" ", u" ",
                                              u",", u"1",  u"M",   u"c",   u"l1", u"A1", u"t",     u"z", u"h1",
                                              u"v", u"1.", u"e-3", u"e",   u"p",  u"m",  u"\u00A0"};
    std::mt19937 random(7);
    int plain = 0;
    for (int round = 0; round < 50'000; ++round) {
        std::u16string text(u"M1 1");
        for (auto length = random() % 12; length-- > 0;) text += pieces[random() % std::size(pieces)];
        plain += isPlain(text);
    }
    EXPECT_GT(plain, 1000);
}

// Against values of other texts.
TEST(SvgPathDataGrammar, TellsWhatIsHeldOtherwise) {
    struct Row {
        char16_t const *text, *held;
        char const* says;
    };
    for (Row const& row : {Row{u"M1 1L2 2", u"M1 1l2 2", "M1 1[L]2 2: l"}, Row{u"M1 1h2", u"M1 1v2", "M1 1[h]2: v"},
                           Row{u"M1 1h2", u"M1 1", "M1 1[h]2: nothing"}, Row{u"M1 1", u"M1 1h2", "M1 1[]: h"},
                           Row{u"M1 1q1 2 3 4", u"M1 1q1 5 3 4", "M1 1q1 [2] 3 4: 5"},
                           Row{u"M1 1a1 2 3 0 1 4 5", u"M1 1a1 2 6 0 1 4 5", "M1 1a1 2 [3] 0 1 4 5: 6"},
                           Row{u"M1 1a1 2 3 0 1 4 5", u"M1 1a1 2 3 1 1 4 5", "M1 1a1 2 3 [0] 1 4 5: 1"},
                           Row{u"M1 1a1 2 3 0 1 4 5", u"M1 1a1 2 3 0 0 4 5", "M1 1a1 2 3 0 [1] 4 5: 0"}}) {
        Path held;
        AttributeTraits<Path>::parse(held, row.held);
        std::u16string_view const text = row.text;
        SvgReading const reading = compare(text, held);
        std::string const says = narrow(text.substr(0, reading.offset)) + '[' +
                                 narrow(text.substr(reading.offset, reading.length)) + ']' +
                                 narrow(text.substr(reading.offset + reading.length)) + ": " + reading.held;
        EXPECT_EQ(says, row.says) << narrow(row.held);
    }
}

TEST(SvgPointsGrammar, TellsWhatTheValueTypeReadsOtherwise) {
    points.expect({
        {u"", "same"},
        {u" 10,20 30,40\n", "same"},
        {u"10 20 30 40", "same"},
        {u"10-20,-30-40", "same"},
        {u"10, 20 30,  40", "same"},
        {u"1e3,1E+1 5 0", "same"},
        {u"10,20-30,40", "10,20[-30]: 30 -> 10,20 -30,40"},
        {u"10 , 20", "refused -> 10, 20"},
        {u"10,20 , 30,40", "refused -> 10,20, 30,40"},
        {u".5.5 1+1", "refused -> .5 .5 1 +1"},
        {u"1,10e-16", "1,[10e-16]: 1 -> 1,0.0000000000000010"},
        {u"1.25e-2,-5E-07 125.5e-1,0e-5", "refused -> 0.0125,-0.0000005 12.55,0"},
        {u"125e-2 3", "[125e-2]: 12 -> 1.25 3"},
        {u"1e-99,3", "refused -> 0,3"},
        {u"5. 5.,1 2", "refused -> 5 5,1 2"},
    });
}

TEST(SvgPointsGrammar, TellsWhatIsIllegal) {
    points.expect({
        {u"10,20 30", "10,20 30[]: the last point has no y"},
        {u"10,20,", "10,20,[]: expected a number"},
        {u"10,", "10,[]: expected a number"},
        {u",10,20", "[,]: expected a number"},
        {u"10,,20", "10,[,]: expected a number"},
        {u"a b c", "[a]: expected a number"},
        {u"10px,20", "10[px]: expected a number"},
    });
}

TEST(SvgTransformsGrammar, TellsWhatTheValueTypeReadsOtherwise) {
    transforms.expect({
        {u"", "same"},
        {u"translate(-10,-20) scale(2) rotate(45) translate(5,10)", "same"},
        {u"matrix(1 0 0 1 -5.5e-3 0),skewX(30)skewY( 1e1 ),, rotate (1, 2 3)", "same"},
        {u"scale(2,3) scale(-1 1)", "same"},
        {u"translate(-1-1)", "[translate(-1-1)]: no transform -> translate(-1 -1)"},
        {u"translate(0  ,20)", "[translate(0  ,20)]: no transform -> translate(0,20)"},
        {u"scale(1 , 2)rotate(5 )rotate(5  )", "[scale(1 , 2)]: no transform -> scale(1, 2)rotate(5 )rotate(5)"},
        {u"matrix(1.5.5.5 1 0 0)", "[matrix(1.5.5.5 1 0 0)]: no transform -> matrix(1.5 .5 .5 1 0 0)"},
        {u"translate(5. 15.) scale(5.)", "translate([5.]: 0 -> translate(5 15) scale(5.)"},
        {u"rotate(1 5.-3)", "rotate(1 [5.]: 0 -> rotate(1 5 -3)"},
    });
}

TEST(SvgTransformsGrammar, TellsWhatIsIllegal) {
    transforms.expect({
        {u"none", "[none]: expected matrix, translate, scale, rotate, skewX or skewY"},
        {u"rotat(45)", "[rotat]: expected matrix, translate, scale, rotate, skewX or skewY"},
        {u"translateX(45)", "[translateX]: expected matrix, translate, scale, rotate, skewX or skewY"},
        {u"scale(2),", "scale(2),[]: expected matrix, translate, scale, rotate, skewX or skewY"},
        {u"scale 2", "scale [2]: expected \"(\""},
        {u"scale()", "scale([)]: expected a number"},
        {u"scale(1", "scale(1[]: expected \")\""},
        {u"scale(1,", "scale(1,[]: expected a number"},
        {u"scale(1 2,)", "scale(1 2,[)]: a comma too many"},
        {u"scale(1,)", "scale(1,[)]: expected a number"},
        {u"scale(1 2 3)", "scale(1 2 [3]: a number too many"},
        {u"rotate(45deg)", "rotate(45[deg]: expected a number"},
        {u"rotate3d(1,1,1,4)", "[rotate3d]: expected matrix, translate, scale, rotate, skewX or skewY"},
        {u"rotate(45 1)", "rotate(45 1[)]: expected a number"},
        {u"matrix(1 0 0 1)", "matrix(1 0 0 1[)]: expected a number"},
        {u"scale(1))", "scale(1)[)]: expected matrix, translate, scale, rotate, skewX or skewY"},
    });
}

TEST(SvgViewBoxGrammar, Reads) {
    viewBox.expect({
        {u" 0 0 100 1e2 ", "same"},
        {u"-5 +.5 0 0", "same"},
        {u"0,0,100,100", "refused -> 0 0 100 100"},
        {u"0, 0, 100, 100", "[0]: 1 -> 0 0 100 100"},
        {u"5 0 , 100 ,100", "refused -> 5 0 100 100"},
        {u"0-5 1.5.5", "refused -> 0 -5 1.5 .5"},
        {u"0 0 100", "0 0 100[]: a view box is four numbers"},
        {u"0 0 100 100 100", "0 0 100 100 [100]: a view box is four numbers"},
        {u"0 0 100px 100", "0 0 100[px]: a view box is four numbers"},
        {u"0 0 -100 100", "0 0 [-100]: is a negative width"},
        {u"0 0 5. 100", "0 0 [5.]: expected a digit after the decimal point"},
        {u"0,,0 1 1", "0,[,]: a view box is four numbers"},
    });
}

TEST(SvgListGrammar, Reads) {
    listOf(SvgListRule::numbers())
        .expect({
            {u"1 -2,+.5 , 3e-2", "same"},
            {u"1-2.5.5", "refused -> 1 -2.5 .5"},
            {u"1px", "1[px]: expected a number without a unit"},
            {u"", "[]: expected a number"},
            {u"none", "[none]: expected a number"},
            {u"1,,2", "1,[,]: expected a number"},
            {u"1 2,", "1 2,[]: expected a number"},
            {u"1 x", "1 [x]: expected a number"},
            {u"5.", "[5.]: expected a digit after the decimal point"},
            {u"5.e1", "[5.e1]: expected a digit after the decimal point"},
            {u"1e39", "refused -> #"},
        });
    listOf(SvgListRule::lengths())
        .expect({
            {u"1px 2em,3EX", "1px 2em,3[EX]: expected a unit (em, ex, px, in, cm, mm, pt, pc, %)"},
            {u"1e1em 2ex 3in 4cm -5mm 6pt 7pc 30% 0.7% 8", "same"},
            {u"1px-2px", "1px[-2]: expected a comma or a blank"},
            {u"1-2px", "refused -> 1 -2px"},
            {u"1q", "1[q]: expected a unit (em, ex, px, in, cm, mm, pt, pc, %)"},
        });
    listOf(SvgListRule::dashes())
        .expect({
            {u" none ", "refused -> #"},
            {u"none", "same"},
            {u"5 -1", "5 [-1]: is negative"},
            {u"5,none", "5,[none]: expected a number"},
        });
    listOf({.whole = true, .minimum = 0, .aboveMinimum = true, .most = 2})
        .expect({
            {u"3", "same"},
            {u"3,4", "same"},
            {u"3 4 5", "3 4 [5]: too many numbers"},
            {u"3.5", "[3.5]: expected an integer"},
            {u"0", "[0]: is too small"},
        });
}

// Texts that are put together of pieces by chance, some of them legal. Whatever is rewritten is legal, read as written,
// and stays as it is when it is rewritten again. Since no number is too large, all that is legal can be rewritten.
template <class Value>
void expectRewritings(List<Value> const& list, std::u16string_view start, std::u16string_view end = {}) {
    constexpr std::u16string_view pieces[] = {u"1", u"5", u".5", u"15.", u"-2", u"+3", u"e-1", u" ", u" ,", u","};
    std::mt19937 random(7);
    int legal = 0, changed = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::u16string text(start);
        for (auto length = random() % 10; length-- > 0;) text += pieces[random() % std::size(pieces)];
        text += end;
        if (!list.isLegal(text)) continue;
        ++legal;
        auto const mended = list.rewrite(text);
        ASSERT_TRUE(mended) << narrow(text);
        changed += *mended != text;
        Value held{};
        ASSERT_TRUE(AttributeTraits<Value>::parse(held, *mended)) << narrow(text);
        EXPECT_EQ(list.compareWith(text, held).outcome, SvgReading::Outcome::Same) << narrow(text);
        EXPECT_EQ(list.compareWith(*mended, held).outcome, SvgReading::Outcome::Same) << narrow(text);
        EXPECT_EQ(list.rewrite(*mended), mended) << narrow(text);
    }
    EXPECT_GT(legal, 100);
    EXPECT_GT(changed, 50);
}

TEST(SvgLists, RewritesAllThatIsLegal) {
    expectRewritings(pathData, u"M0");
    expectRewritings(pathData, u"M0 0a1", u"0 0 1 1 1z");
    expectRewritings(points, u"");
    expectRewritings(transforms, u"translate(", u" )");
    expectRewritings(transforms, u"rotate(1", u")");
    expectRewritings(transforms, u"scale(1", u"  )");
    expectRewritings(viewBox, u"");
    expectRewritings(listOf(SvgListRule::numbers()), u"");
    expectRewritings(listOf(SvgListRule::lengths()), u"", u"px");
}

// A text that ends early is judged by what is there.
template <class Value> void expectCutsAreJudged(List<Value> const& list, std::u16string_view text) {
    ASSERT_TRUE(list.isLegal(text));
    for (std::size_t length = 0; length <= text.size(); ++length) {
        std::u16string const cut(text.substr(0, length)); // its end is the end of its memory
        SCOPED_TRACE(narrow(cut));
        list.describe(cut);
    }
}

TEST(SvgLists, JudgeTextsThatAreCut) {
    expectCutsAreJudged(pathData, u" M1.5.5e-1l-.5.25,1.e1 -1.5h5a1 1 0 0110-10.5zm1,1z ");
    expectCutsAreJudged(points, u" 10,20-30.5.5 ,1e-5-1. ");
    expectCutsAreJudged(transforms, u" matrix(1 0 0 1.5.5-1e-5) ,rotate( 5. , 1-1  )skewX(1)");
    expectCutsAreJudged(viewBox, u" 0 , -1.5.5,1e3 ");
    expectCutsAreJudged(listOf(SvgListRule::dashes()), u" 1.5.5px , 5%,1e1em ");
    expectCutsAreJudged(listOf(SvgListRule::dashes()), u"none");
}

} // namespace
} // namespace Xml
