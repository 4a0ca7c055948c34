#include "xmlattr/catalogue/legality/Judge.h"

#include "xmlattr/catalogue/grammar/NewerRecommendation.h"
#include "xmlattr/catalogue/legality/Shorthand.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Xml {

namespace {

Judgement judgeIn(Dialect dialect, CatalogueEntry const& entry, std::u16string_view text) {
    switch (entry.kind) {
    case AttributeKind::Typed: return judgeValue(entry, dialect, text);
    case AttributeKind::Shorthand: return judgeShorthand(entry, dialect, text);
    case AttributeKind::Identifier:
    case AttributeKind::Text:
    case AttributeKind::Untyped: break;
    }
    return judgeByGrammar(entry, dialect, text);
}

bool isIllegal(Judgement const& judgement) {
    return judgement.verdict == Verdict::Lenient || judgement.verdict == Verdict::Refused;
}

} // namespace

Judgement judge(CatalogueEntry const& entry, std::u16string_view text, Notation notation) {
    Dialect const dialect = dialectOf(entry, notation);
    Judgement judgement = judgeIn(dialect, entry, text);
    if (!isIllegal(judgement)) return judgement;
    if (notation == Notation::Declaration) {
        // The exponents of attributes came to style sheets with CSS 3.
        if (judgeIn(Dialect::SvgAttribute, entry, text).verdict == Verdict::Read) return {Verdict::Read};
        // CSS has no case; the value types read attributes, which have one.
        Verdict const verdict = judgeIn(dialect, entry, toLower(text)).verdict;
        if (!isFault(verdict)) return {verdict == Verdict::Read ? Verdict::PassedOver : verdict};
    }
    Meaning meaning;
    judgement.isOutOfRange = readMeaning(meaning, entry.grammar, dialect, text, Ranges::Ignored);
    judgement.isNegative = judgement.isOutOfRange &&
                           std::ranges::any_of(meaning.values(), [](Item const& item) { return item.number < 0; });
    if (!judgement.isNegative) judgement.newer = newerRecommendation(dialect, entry.attribute, trimXmlSpace(text));
    if (judgement.problem.empty() && hasOpenParenthesis(text)) judgement.problem = "has no closing parenthesis";
    return judgement;
}

Judgement judge(Vocabulary vocabulary, std::string_view element, std::string_view attribute, std::u16string_view text,
                Notation notation) {
    bool const isDeclaration = notation == Notation::Declaration;
    CatalogueEntry const* const entry =
        isDeclaration ? findProperty(vocabulary, element, attribute) : Catalogue::find(vocabulary, element, attribute);
    return entry ? judge(*entry, text, notation) : Judgement();
}

} // namespace Xml
