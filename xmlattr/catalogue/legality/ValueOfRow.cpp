#include "xmlattr/catalogue/legality/ValueOfRow.h"

#include "xmlattr/catalogue/legality/Expression.h"
#include "xmlattr/catalogue/legality/TypeReading.h"
#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>
#include <utility>

namespace Xml {

namespace {

Judgement faultOf(Verdict verdict, CatalogueEntry const& entry, std::u16string_view text, SvgReading&& reading) {
    Judgement judgement{verdict};
    judgement.tried.push_back(entry.type());
    if (reading.length > 0 || reading.offset > 0) judgement.part = text.substr(reading.offset, reading.length);
    judgement.problem = reading.problem;
    judgement.held = std::move(reading.held);
    return judgement;
}

// What is legal but refused: a word that is the formatter's business, unless the type reads the same in another text.
// CSS has no case; the value types read attributes, which have one.
Judgement judgeRefused(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text) {
    bool const isOfCase = dialect == Dialect::SvgStyle && readTyped(entry, dialect, toLower(text)).isReadAsWritten();
    if (isOfCase || !rewriteTyped(entry, dialect, text)) return {Verdict::PassedOver};
    Judgement judgement = faultOf(Verdict::Misread, entry, {}, {});
    judgement.problem = "is not read";
    return judgement;
}

} // namespace

Dialect dialectOf(CatalogueEntry const& entry, Notation notation) {
    if (entry.vocabulary == Vocabulary::Fo) return Dialect::Fo;
    return notation == Notation::Declaration ? Dialect::SvgStyle : Dialect::SvgAttribute;
}

bool isComputed(CatalogueEntry const& entry, std::u16string_view text) {
    text = trimXmlSpace(text);
    bool const isFo = entry.vocabulary == Vocabulary::Fo;
    if (equalsWord(text, "inherit", !isFo)) return isFo || entry.isPresentation;
    return isFo && isExpressionFor(entry, text);
}

Judgement judgeValue(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text) {
    TypeReading found = readTyped(entry, dialect, text);
    if (found.isReadAsWritten()) return {Verdict::Read};
    if (found.isLegal() && !found.isAccepted) {
        std::u16string_view const trimmed = trimXmlSpace(text);
        if (trimmed.size() == text.size()) return judgeRefused(entry, dialect, text);
        text = trimmed;
        found = readTyped(entry, dialect, text);
        if (found.isReadAsWritten()) return {Verdict::Read};
        if (!found.isAccepted) return judgeRefused(entry, dialect, text);
    }
    if (found.isLegal()) return faultOf(Verdict::Misread, entry, text, std::move(found.reading));
    if (isComputed(entry, text)) return {Verdict::PassedOver};
    return faultOf(found.isAccepted ? Verdict::Lenient : Verdict::Refused, entry, text, std::move(found.reading));
}

Judgement judgeByGrammar(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text) {
    if (!entry.grammar) return {Verdict::NotCovered};
    Meaning meaning;
    if (readMeaning(meaning, entry.grammar, dialect, text)) {
        bool const isFree = entry.kind == AttributeKind::Identifier || entry.kind == AttributeKind::Text ||
                            std::ranges::any_of(meaning.values(), [](Item const& item) {
                                return item.kind == ItemKind::Text || item.kind == ItemKind::Uri;
                            });
        return {isFree ? Verdict::FreeText : Verdict::PassedOver};
    }
    return {isComputed(entry, text) ? Verdict::PassedOver : Verdict::Refused};
}

} // namespace Xml
