#include "xmlattr/catalogue/legality/Judge.h"

#include "xmlattr/catalogue/legality/Shorthand.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"

#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Xml {

namespace {

Judgement judgeAttribute(CatalogueEntry const& entry, std::u16string_view text) {
    switch (entry.kind) {
    case AttributeKind::Typed: {
        Judgement judgement{judgeValue(entry, text)};
        if (judgement.verdict == Verdict::Refused) judgement.tried.push_back(entry.type());
        return judgement;
    }
    case AttributeKind::Shorthand: return judgeShorthand(entry, text);
    case AttributeKind::Identifier:
    case AttributeKind::Text: return {Verdict::FreeText};
    case AttributeKind::Untyped: break;
    }
    return {Verdict::NotCovered};
}

} // namespace

Judgement judge(CatalogueEntry const& entry, std::u16string_view text, Notation notation) {
    Judgement judgement = judgeAttribute(entry, text);
    if (judgement.verdict != Verdict::Refused || notation == Notation::Attribute) return judgement;
    // CSS has no case; the value types read attributes, which have one.
    std::u16string lower(text);
    std::ranges::transform(lower, lower.begin(), Core::toLower);
    if (judgeAttribute(entry, lower).verdict == Verdict::Refused) return judgement;
    return {Verdict::PassedOver};
}

Judgement judge(Vocabulary vocabulary, std::string_view element, std::string_view attribute, std::u16string_view text,
                Notation notation) {
    bool const isDeclaration = notation == Notation::Declaration;
    CatalogueEntry const* const entry =
        isDeclaration ? findProperty(vocabulary, element, attribute) : Catalogue::find(vocabulary, element, attribute);
    return entry ? judge(*entry, text, notation) : Judgement();
}

} // namespace Xml
