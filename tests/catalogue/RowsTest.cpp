#include "Support.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/grammar/GrammarText.h"
#include "xmlattr/catalogue/legality/Judge.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"

#include <algorithm>

namespace Xml {
namespace {

std::string nameOf(CatalogueEntry const& row) {
    return std::string(row.elements.front()).append(" ").append(row.attribute);
}

// Whether any two words may stand there: text, references, names of fonts and of much else.
bool isOpen(Grammar const& grammar) {
    return std::ranges::any_of(grammar.steps(), [](GrammarStep const& step) {
        return step.kind == GrammarStep::Value && (step.token == Token::Text || step.token == Token::Iri ||
                                                   step.token == Token::FamilyName || step.token == Token::Name);
    });
}

TEST(Rows, HaveGrammarsOfWhichTheInitialValueIsOne) {
    for (CatalogueEntry const& row : Catalogue::entries()) {
        EXPECT_TRUE(row.grammar) << nameOf(row);
        if (row.initial.empty()) continue;
        Verdict const verdict = judge(row, Core::String::fromUtf8(row.initial)).verdict;
        EXPECT_TRUE(verdict == Verdict::Read || verdict == Verdict::PassedOver || verdict == Verdict::FreeText)
            << nameOf(row) << ": " << row.initial << " " << static_cast<int>(verdict);
    }
}

TEST(Rows, TakeNoNonsenseWhereTheirGrammarIsClosed) {
    std::size_t open = 0;
    for (CatalogueEntry const& row : Catalogue::entries()) {
        bool const isFree = isOpen(row.grammar);
        open += isFree;
        EXPECT_TRUE(isFree || isFault(judge(row, u"zzz qqq").verdict)) << nameOf(row);
    }
    EXPECT_LT(open, Catalogue::entries().size() / 4);
}

// The words of every grammar that are values by themselves: all are legal, and what a type takes of them it reads.
TEST(Rows, ReadTheirWords) {
    for (CatalogueEntry const& row : Catalogue::entries())
        for (std::string_view const word : wordsIn(row.grammar)) {
            std::u16string const text(word.begin(), word.end());
            Meaning meaning;
            if (!readMeaning(meaning, row.grammar, dialectOf(row, Notation::Attribute), text)) continue;
            EXPECT_FALSE(isFault(judge(row, text).verdict)) << nameOf(row) << ": " << word;
        }
}

} // namespace
} // namespace Xml
