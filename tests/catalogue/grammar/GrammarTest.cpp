#include "xmlattr/catalogue/grammar/GrammarCompiler.h"
#include "xmlattr/catalogue/grammar/Meaning.h"

#include <gtest/gtest.h>

#include <string>

namespace Xml {
namespace {

TEST(Grammar, TellsWhatIsWrongWithItsText) {
    struct Row {
        std::string_view text, reason;
        std::size_t position;
    };
    for (Row const& row : {
             Row{"auto | <lenght>", "no such token", 14},
             Row{"auto |", "a value is missing", 6},
             Row{"| auto", "a value is missing", 0},
             Row{"", "a value is missing", 0},
             Row{"[ a | b", "a bracket is open", 7},
             Row{"a ]", "nothing closes here", 2},
             Row{"rect( <length>{4}", "a call is open", 17},
             Row{"<length", "no range", 7},
             Row{"<length [0,]", "a token is open", 12},
             Row{"<length [0]>", "no range", 10},
             Row{"<length [2,1]>", "no range", 13},
             Row{"<length>{4,2}", "no count", 13},
             Row{"<length>{}", "no count", 9},
             Row{"<length>#{0,2}", "no count", 14},
             Row{"'text/css", "a quotation mark is open", 9},
             Row{"[ <length>? ]*", "what may be empty is repeated", 14},
             Row{"a & b", "no word, token or group", 2},
             Row{"a || b || c || d || e || f || g || h || i", "too many options in any order", 41},
         }) {
        GrammarFault const fault = checkGrammar(row.text);
        EXPECT_EQ(fault.reason, row.reason) << row.text;
        EXPECT_EQ(fault.position, row.position) << row.text;
    }
}

TEST(Grammar, EveryProductionIsWellFormed) {
    for (TokenTables::Production const& production : TokenTables::productions)
        EXPECT_EQ(checkGrammar(production.grammar).reason, "") << production.name;
}

struct Row {
    Grammar grammar;
    std::initializer_list<std::u16string_view> legal, illegal;
};

void expectReads(std::initializer_list<Row> rows) {
    for (Row const& row : rows) {
        Meaning meaning;
        for (std::u16string_view const text : row.legal)
            EXPECT_TRUE(readMeaning(meaning, row.grammar, Dialect::Fo, text))
                << row.grammar.text() << ": " << std::string(text.begin(), text.end());
        for (std::u16string_view const text : row.illegal)
            EXPECT_FALSE(readMeaning(meaning, row.grammar, Dialect::Fo, text))
                << row.grammar.text() << ": " << std::string(text.begin(), text.end());
    }
}

TEST(Grammar, CombinesValues) {
    expectReads({
        {"a b"_grammar, {u"a b", u"a\n\tb ", u" a  b"}, {u"ab", u"b a", u"a", u"a b c", u"a,b", u"A b", u""}},
        {"a | b c | d"_grammar, {u"a", u"b c", u"d"}, {u"b", u"a b c", u"b d"}},
        {"a || b || c"_grammar, {u"a", u"c", u"b a", u"c a b", u"a b c"}, {u"a a", u"a b c a", u"x", u""}},
        {"[ a || [ b | c || d ] ] e"_grammar, {u"a e", u"b e", u"d c a e", u"a d e"}, {u"b c a e", u"e", u"a"}},
        {"[ a || b ]# c"_grammar, {u"a b, b a c", u"b,a,a b c"}, {u"a a c", u"a, c"}},
        {"a? b"_grammar, {u"b", u"a b"}, {u"a", u"a a b"}},
        {"a b?"_grammar, {u"a", u"a b"}, {u"a b b", u"b"}},
        {"a* b"_grammar, {u"b", u"a a a b"}, {u"a", u"b a"}},
        {"a+"_grammar, {u"a", u"a a a"}, {u"", u"a, a"}},
        {"a{2,3}"_grammar, {u"a a", u"a a a"}, {u"a", u"a a a a"}},
        {"a{2,} b"_grammar, {u"a a b", u"a a a b"}, {u"a b"}},
        {"a# b?"_grammar, {u"a", u"a, a ,a", u"a,a b"}, {u"a a", u"a,", u",a", u"a,,a"}},
        {"a#{2}"_grammar, {u"a,a"}, {u"a", u"a,a,a"}},
        {"a / b ; c"_grammar, {u"a/b;c", u"a / b ; c"}, {u"a b c", u"a/b"}},
        {"f( a? )"_grammar, {u"f()", u"f( a )"}, {u"f ()", u"f(", u"f(b)", u"f"}},
        {"'a/b' | 100"_grammar, {u"a/b", u"100"}, {u"a / b", u"1e2", u"0100"}},
        // The first way is not always the one that leads to the end.
        {"a* a b | a a* c"_grammar, {u"a a b", u"a a a c", u"a b"}, {u"a a", u"b"}},
        {"[ a | a b ] c"_grammar, {u"a c", u"a b c"}, {u"a b"}},
    });
    Meaning meaning;
    EXPECT_FALSE(readMeaning(meaning, Grammar{}, Dialect::Fo, u"")) << "nothing is known, nothing is legal";
}

TEST(Grammar, HoldsNumbersInTheirRange) {
    expectReads({
        {"<length [0,]>"_grammar, {u"0", u"-0", u"1pt"}, {u"-1pt", u"-0.01mm"}},
        {"<number (0,1]>"_grammar, {u"0.1", u"1"}, {u"0", u"1.01"}},
        {"<number [-2.5,3)>"_grammar, {u"-2.5", u"2.9"}, {u"-2.6", u"3"}},
        {"<percentage [,100]>"_grammar, {u"100%", u"-900%"}, {u"101%"}},
    });
}

// So many ways lead nowhere in these texts that trying each would take longer than the world is old.
TEST(Grammar, IsReadInBoundedTime) {
    std::u16string text;
    for (int i = 0; i < 2000; ++i) text += u"a ";
    Meaning meaning;
    EXPECT_FALSE(readMeaning(meaning, "[ a | a a ]* [ a? a ]* b"_grammar, Dialect::Fo, text));
    EXPECT_FALSE(readMeaning(meaning, "[ [ a+ ]+ ]+ b"_grammar, Dialect::Fo, text));
    EXPECT_FALSE(readMeaning(meaning, "[ a || a || a || a ]+ b"_grammar, Dialect::Fo, text));
    EXPECT_TRUE(readMeaning(meaning, "[ [ a+ ]+ ]+ b"_grammar, Dialect::Fo, text + u"b"));
    EXPECT_EQ(meaning.size(), 2001u);
}

TEST(Grammar, ReadsLongListsWhole) {
    std::u16string text;
    for (int i = 0; i < 300'000; ++i) text += u"1.5,";
    Meaning meaning;
    EXPECT_FALSE(readMeaning(meaning, "<number>~"_grammar, Dialect::SvgAttribute, text)) << "a comma is left";
    text.pop_back();
    EXPECT_TRUE(readMeaning(meaning, "<number>~"_grammar, Dialect::SvgAttribute, text));
    EXPECT_EQ(meaning.size(), 300'000u);
    EXPECT_TRUE(readMeaning(meaning, "[ <number> , ]* <number>"_grammar, Dialect::Fo, text));
    EXPECT_EQ(meaning.size(), 300'000u);
}

} // namespace
} // namespace Xml
