#include "xmlattr/svg/PathData.h"

#include "NumberTexts.h"
#include "Support.h"

namespace Xml {
namespace {

using Path = Core::Vector<PathDataCommand>;

constexpr SLength user(float size) {
    return {size, SLength::UserUnit};
}

TEST(PathData, EveryLetterFillsItsOwnNumbers) {
    using enum PathCommandKind;
    Path const commands = {{.kind = MoveTo, .x = user(1), .y = user(2)},
                           {.kind = ClosePath},
                           {.kind = LineTo, .relative = true, .x = user(3), .y = user(4)},
                           {.kind = HorizontalLineTo, .x = user(5)},
                           {.kind = VerticalLineTo, .relative = true, .y = user(6)},
                           {CurveTo, true, user(1), user(2), user(3), user(4), user(5), user(6)},
                           {.kind = SmoothCurveTo, .x2 = user(1), .y2 = user(2), .x = user(3), .y = user(4)},
                           {QuadraticCurveTo, true, user(1), user(2), {}, {}, user(3), user(4)},
                           {.kind = SmoothQuadraticCurveTo, .x = user(7), .y = user(8)},
                           {ArcTo, true, {}, {}, {}, {}, user(5), user(6), user(1), user(2), 0.5f, true, false}};
    EXPECT_EQ(parsed<Path>(u"M1 2zl3 4H5v6c1 2 3 4 5 6S1 2 3 4q1 2 3 4T7 8a1 2 50% 10 5 6"), commands);
    EXPECT_EQ(parsed<Path>(u"M1cmm 3")->front(), (PathDataCommand{.kind = MoveTo, .x = {1, SLength::Cm}}));
    EXPECT_EQ(printed<Path>(u"M1 2"), "");
    EXPECT_TRUE(!TXmlAttribute<Path>().isEqual(u"") && TXmlAttribute<Path>().isEqual(u"", int_to_type<1>()));
}

TEST(PathData, ReadsTheSameAsWithAllItsLettersAndBlanks) {
    using Row = std::pair<char16_t const*, char16_t const*>;
    for (auto const& [text, same] :
         {Row{u" ,\u00A0\v\f\t\r\n", u""}, Row{u"M 0 1 10,11 20\u00A0\v21", u"M 0 1 L 10 11 L 0 0"},
          Row{u"m1 2 3 4", u"m 1 2 l 3 4"}, Row{u"h1 2,3H4 5", u"h 1 h 2 h 3 H 4 H 5"},
          Row{u"A1 1 0 0150 60-2 2 0 70.5 6", u"A 1 1 0 0 1 50 60 A -2 2 0 1 0 .5 6"},
          // the data end where no letter holds
          Row{u"10 20", u""}, Row{u"#M1 2", u""}, Row{u"M1 2Z 5 5 L3 4", u"M 1 2 Z"}, Row{u"ZzZ.", u"Z Z Z"},
          // what is missing or bad is zero
          Row{u"M10", u"M 10 0"}, Row{u"LCZ", u"L 0 0 C 0 0 0 0 0 0 Z"}, Row{u"M1.2.3 4", u"M 0 4"},
          Row{u"M- 4", u"M 0 4"}, Row{u"M1e39 5.", u"M 0 0"}, Row{u"A1 2 3 x- 4 5", u"A 1 2 3 0 0 4 5"},
          // where numbers end
          Row{u"M10-20L-.5-.5", u"M 10 -20 L -0.5 -0.5"}, Row{u"M1+2", u"M 1 2"}, Row{u"M.5.5 1", u"M 0 1"},
          Row{u"M1e1-5 6", u"M 0 6"}, Row{u"M1e-1 1E1L2", u"M .1 10 L 2 0"}, Row{u"M1em2", u"M 0 0 m 2 0"},
          Row{u"M1ex-2ex", u"M 1ex -2ex"}, Row{u"M1px2pt", u"M 0 0"}, Row{u"M1px 2pt", u"M 1 2pt"},
          Row{u"M5%,1T2 3", u"M 5% 1 T 2 3"}, Row{u"M1in 2pc", u"M 1in 0 c 0 0 0 0 0 0"},
          Row{u"M1 10mm", u"M 1 1 m 0 0"}, Row{u"M10\v20 3", u"M 0 3"}, Row{u"M1 23\u00A0xL4\v 5", u"M 1 23 L 0 5"}}) {
        TXmlAttribute<Path> path(Path(3));
        EXPECT_TRUE(path.parseValue(text)) << narrow(text);
        EXPECT_TRUE(path == *parsed<Path>(same)) << narrow(text);
    }
}

TEST(PathData, PlainNumbersAreReadLikeAllOthers) {
    struct Command {
        char16_t letter;
        int numbers;
    };
    constexpr Command letters[] = {{u'm', 2}, {u'L', 2}, {u'h', 1}, {u'V', 1}, {u'c', 6}, {u'S', 4},
                                   {u'q', 4}, {u'T', 2}, {u'a', 7}, {u'A', 7}, {u'z', 0}};
    for (unsigned int seed = 1; seed < 2000; ++seed) {
        Testing::NumberTexts texts(seed);
        for (std::size_t commands = 1 + texts.below(5); commands > 0; --commands) {
            Command const command = letters[texts.below(std::size(letters))];
            texts.add({&command.letter, 1});
            for (int i = 0; i < command.numbers; ++i) {
                if (command.numbers == 7 && (i == 3 || i == 4))
                    texts.add(texts.below(2) == 0 ? u" 1" : u",0");
                else
                    i == 0 ? texts.addNumber({}) : texts.addNumber({u" ", u",", u" , ", u"\n"}, i != 5);
            }
        }
        EXPECT_TRUE(*parsed<Path>(texts.plain) == *parsed<Path>(texts.roundabout)) << narrow(texts.plain);
    }
}

TEST(PathData, CutAnywhereItKeepsWhatWasWhole) {
    Core::String const text = u"M10.5-20 30,40 C1e1 2 3-4.5,6 7zm1 2a25 25 0 01.5 60H5 6v7 8z q1 2 3 4t5 6";
    auto const whole = parsed<Path>(text);
    ASSERT_EQ(whole->size(), 13u);
    for (int cut = 0; cut < text.length(); ++cut) {
        auto commands = parsed<Path>(text.subString(0, cut));
        if (!commands->empty()) commands->pop_back();
        EXPECT_TRUE(std::equal(commands->begin(), commands->end(), whole->begin())) << "cut at " << cut;
    }
}

TEST(PathData, TakesMemoryForTheCommandsAndNotForTheText) {
    std::u16string text(16, u'z'), spaces(1'000'000, u' ');
    EXPECT_LE(parsed<Path>(std::u16string_view(text + spaces + u"z"))->capacity(), 64u);
    for (int i = 0; i < 100'000; ++i) text += u"l1-2";
    EXPECT_LE(parsed<Path>(std::u16string_view(text))->capacity(), 125'000u);
}

} // namespace
} // namespace Xml
