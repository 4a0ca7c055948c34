#include "xmlattr/catalogue/legality/ValueOfRow.h"

#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/AlsoLegal.h"
#include "xmlattr/catalogue/legality/Expression.h"
#include "xmlattr/catalogue/text/Words.h"

namespace Xml {

namespace {

// "0.0", say: of the zeros without a unit, which XSL-FO allows, its lengths read "0" alone.
bool isZero(std::u16string_view text) {
    return text.find(u'0') != std::u16string_view::npos &&
           text.find_first_not_of(u"0.", text.starts_with(u'-') ? 1 : 0) == std::u16string_view::npos;
}

} // namespace

Verdict judgeValue(CatalogueEntry const& entry, std::u16string_view text) {
    AttributeType const& type = *entry.type();
    if (type.accepts(text)) return Verdict::Read;
    text = trimXmlSpace(text);
    bool const isFo = entry.vocabulary == Vocabulary::Fo;
    if (equalsWord(text, "inherit", !isFo)) return Verdict::PassedOver;
    auto const accepts = [&](std::u16string_view item) { return type.accepts(item); };
    if (isAlsoLegal(entry.alsoLegal, entry.vocabulary, text, accepts)) return Verdict::PassedOver;
    if (isFo && isZero(text) && type.accepts(u"0pt")) return Verdict::PassedOver;
    if (isFo && (type.isEnumeration() ? isCopy(text) : isExpression(text))) return Verdict::PassedOver;
    // White space around a list is part of its grammar in SVG 1.1.
    return type.readsList() && type.accepts(text) ? Verdict::PassedOver : Verdict::Refused;
}

} // namespace Xml
