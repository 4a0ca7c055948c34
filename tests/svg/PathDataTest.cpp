#include "xmlattr/svg/PathData.h"

#include "Support.h"

#include <sstream>

namespace Xml {
namespace {

// The letter of each command, then the names of its numbers that are not zero.
std::string described(Core::Vector<PathDataCommand> const& commands) {
    std::ostringstream out;
    for (PathDataCommand const& command : commands) {
        char const letter = "??MZLHVCSQTA"[command.kind];
        out << (out.tellp() > 0 ? "; " : "") << static_cast<char>(command.relative ? letter + ('a' - 'A') : letter);
        auto const show = [&](char const* name, float number, int unit) {
            if (number == 0 && unit == 0) return;
            out << ' ' << name << '=' << number;
            if (unit != SLength::UserUnit) out << '/' << unit;
        };
        struct Field {
            char const* name;
            SLength PathDataCommand::*length;
        };
        for (Field const& field :
             {Field{"x1", &PathDataCommand::x1}, Field{"y1", &PathDataCommand::y1}, Field{"x2", &PathDataCommand::x2},
              Field{"y2", &PathDataCommand::y2}, Field{"x", &PathDataCommand::x}, Field{"y", &PathDataCommand::y},
              Field{"rx", &PathDataCommand::rx}, Field{"ry", &PathDataCommand::ry}})
            show(field.name, (command.*field.length).getSize(), (command.*field.length).getUnit());
        show("angle", command.xAxisRotation, 0);
        show("large", command.largeArc, 0);
        show("sweep", command.sweep, 0);
    }
    return out.str();
}

struct Row {
    char16_t const* text;
    char const* commands;
};

void expectCommands(std::initializer_list<Row> rows) {
    for (Row const& row : rows) {
        TXmlAttribute<Core::Vector<PathDataCommand>> path({PathDataCommand()});
        EXPECT_TRUE(path.parseValue(row.text)) << narrow(row.text);
        EXPECT_EQ(described(path.getValue()), row.commands) << narrow(row.text);
    }
}

TEST(PathData, EveryLetterFillsItsOwnNumbers) {
    expectCommands({{u"", ""},
                    {u"M1 2L3 4H5V6Z", "M x=1 y=2; L x=3 y=4; H x=5; V y=6; Z"},
                    {u"m1 2l3 4h5v6z", "m x=1 y=2; l x=3 y=4; h x=5; v y=6; Z"},
                    {u"C1 2 3 4 5 6", "C x1=1 y1=2 x2=3 y2=4 x=5 y=6"},
                    {u"s1 2 3 4q5 6 7 8t9 10", "s x2=1 y2=2 x=3 y=4; q x1=5 y1=6 x=7 y=8; t x=9 y=10"},
                    {u"A25,25 30 1,0 50,60", "A x=50 y=60 rx=25 ry=25 angle=30 large=1"},
                    {u"a25 25-30 0150 60", "a x=50 y=60 rx=25 ry=25 angle=-30 sweep=1"},
                    {u"A1 2 50% 70-3 4", "A x=-3 y=4 rx=1 ry=2 angle=0.5 large=1"}});
}

TEST(PathData, RepeatsTheLetterAndALineAfterAMove) {
    expectCommands({{u"M 0 1 10 11 20 21", "M y=1; L x=10 y=11; L x=20 y=21"},
                    {u"m1 2 3 4", "m x=1 y=2; l x=3 y=4"},
                    {u"h1 2,3H4 5", "h x=1; h x=2; h x=3; H x=4; H x=5"},
                    {u"A1 1 0 0 0 5 5 2 2 0 11 6 6", "A x=5 y=5 rx=1 ry=1; A x=6 y=6 rx=2 ry=2 large=1 sweep=1"},
                    {u"L1 x2 3", "L x=1; L x=3"}}); // "x2" is no length, and the second line lacks its y
}

TEST(PathData, EndsWhereNoLetterHolds) {
    expectCommands({{u"10 20", ""},
                    {u"#M1 2", ""},
                    {u"M1 2Z 5 5 L3 4", "M x=1 y=2; Z"},
                    {u"ZzZ.", "Z; Z; Z"},
                    {u" ,\u00A0\v\f\t\r\n", ""}});
}

TEST(PathData, MissingAndBadNumbersAreZero) {
    expectCommands({{u"M10", "M x=10"},
                    {u"L", "L"},
                    {u"CZ", "C; Z"},
                    {u"M1,,2", "M x=1 y=2"},
                    {u"M1.2.3 4", "M y=4"},
                    {u"M- 4", "M y=4"},
                    {u"M1e39 5.", "M"},
                    {u"A1 2 3 xx 4 5", "A x=4 y=5 rx=1 ry=2 angle=3"}});
}

TEST(PathData, NumbersEndAtSignsSeparatorsAndLetters) {
    expectCommands({{u"M10-20", "M x=10 y=-20"},
                    {u"M1+2L-.5-.5", "M x=1 y=2; L x=-0.5 y=-0.5"},
                    {u"M.5.5 1", "M y=1"},
                    {u"M1e1-5 6", "M y=6"}, // a sign behind an exponent belongs to the number
                    {u"M1e-1 1E1L2", "M x=0.1 y=10; L x=2"},
                    {u"M1em2", "M; m x=2"}, // "em" is no exponent, but its "m" is a letter
                    {u"M1ex-2ex", "M x=1/7 y=-2/7"},
                    {u"M1px2pt", "M"}, // "1px2pt" is one run
                    {u"M1px 2pt", "M x=1 y=2/1"},
                    {u"M1in 2pc", "M x=1/5; c"},
                    {u"M5% 1T2 3", "M x=0.05/9 y=1; T x=2 y=3"},
                    {u"M1 10mm", "M x=1 y=1; m"},
                    {u"M10cmm 3", "M x=10/3; m x=3"},
                    {u"M10\v20 3", "M y=3"}, // separates commands, but ends no number
                    {u"M1 2\u00A0L3 4\v", "M x=1; L x=3"},
                    {u"M1 2\u00A0\vL3\v 4", "M x=1 y=2; L y=4"}});
}

TEST(PathData, CutAnywhereItKeepsWhatWasWhole) {
    Core::String const text = u"M10.5-20 30,40 C1e1 2 3-4.5,6 7zm1 2a25 25 0 01.5 60H5 6v7 8z q1 2 3 4t5 6";
    auto const whole = parsed<Core::Vector<PathDataCommand>>(text);
    ASSERT_EQ(whole->size(), 13u);
    for (int cut = 0; cut < text.length(); ++cut) {
        auto commands = parsed<Core::Vector<PathDataCommand>>(text.subString(0, cut));
        if (!commands->empty()) commands->pop_back();
        EXPECT_TRUE(std::equal(commands->begin(), commands->end(), whole->begin())) << "cut at " << cut;
    }
}

TEST(PathData, TakesMemoryForTheCommandsAndNotForTheText) {
    std::u16string text = u"zzzzzzzzzzzzzzzz", spaces(1'000'000, u' ');
    EXPECT_LE(parsed<Core::Vector<PathDataCommand>>(std::u16string_view(text + spaces + u"z"))->capacity(), 64u);
    for (int i = 0; i < 100'000; ++i) text += u"l1-2";
    EXPECT_LE(parsed<Core::Vector<PathDataCommand>>(std::u16string_view(text))->capacity(), 125'000u);
}

TEST(PathData, NeitherPrintsNorComparesWithTexts) {
    TXmlAttribute<Core::Vector<PathDataCommand>> path;
    EXPECT_FALSE(path.isEqual(u""));
    EXPECT_TRUE(path.isEqual(u"", int_to_type<1>()));
    EXPECT_EQ(printed<Core::Vector<PathDataCommand>>(u"M1 2"), "");
}

} // namespace
} // namespace Xml
