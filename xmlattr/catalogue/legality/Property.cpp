#include "xmlattr/catalogue/legality/Property.h"

#include "xmlattr/catalogue/legality/AlsoLegal.h"
#include "xmlattr/catalogue/legality/Expression.h"
#include "xmlattr/catalogue/legality/Words.h"

#include "xmlattr/core/Text.h"

namespace Xml {

namespace {

// "0.0", say: of the zeros without a unit, which XSL-FO allows, its lengths read "0" alone.
bool isZero(std::u16string_view text) {
    return text.find(u'0') != std::u16string_view::npos &&
           text.find_first_not_of(u"0.", text.starts_with(u'-') ? 1 : 0) == std::u16string_view::npos;
}

} // namespace

bool Property::isList() const {
    return type && (type->name.starts_with("Core::Vector<") || type->name == "ViewBox");
}

Verdict Property::judge(std::u16string_view text) const {
    if (!type) return Verdict::NotCovered;
    if (type->accepts(text)) return Verdict::Checked;
    text = Core::trim(text);
    bool const isFo = entry->vocabulary == Vocabulary::Fo;
    if (equalsWord(text, "inherit", !isFo)) return Verdict::PassedOver;
    if (isAlsoLegal(*entry, text, type->accepts)) return Verdict::PassedOver;
    if (isFo && isZero(text) && type->accepts(u"0pt")) return Verdict::PassedOver;
    if (isFo && (type->isEnumeration ? isCopy(text) : isExpression(text))) return Verdict::PassedOver;
    // White space around a list is part of its grammar in SVG 1.1.
    return isList() && type->accepts(text) ? Verdict::PassedOver : Verdict::Refused;
}

Property const* findProperty(Vocabulary vocabulary, std::string_view element, std::string_view attribute) {
    static std::vector<Property> const properties = [] {
        std::vector<Property> all;
        for (CatalogueEntry const& entry : Catalogue::entries())
            all.push_back({&entry, findAttributeType(entry.valueType)});
        return all;
    }();
    CatalogueEntry const* const entry = Catalogue::find(vocabulary, element, attribute);
    return entry ? &properties[static_cast<std::size_t>(entry - Catalogue::entries().data())] : nullptr;
}

} // namespace Xml
