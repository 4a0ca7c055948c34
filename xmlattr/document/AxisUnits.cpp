#include "xmlattr/document/AxisUnits.h"

#include "xmlattr/core/Format.h"

namespace Xml {

bool AttributeTraits<AxisUnits>::parse(AxisUnits& value, std::u16string_view text) {
    AxisUnits::Type type{};
    if (KeywordTraits<AxisUnits::Type>::parse(type, text)) {
        value = AxisUnits(type);
        return true;
    }
    float number = 0;
    if (!Core::Format::parseFloat(text, number) || number == 0) return false;
    value = AxisUnits(number);
    return true;
}

void AttributeTraits<AxisUnits>::words(Words& out) {
    out.addAll(Keywords<AxisUnits::Type>::rows);
}

void AttributeTraits<AxisUnits>::parts(AxisUnits const& value, Parts& out) {
    if (value.getType() == AxisUnits::Numeric)
        out.add(u"units") << value.getNumericVal();
    else
        out.add(u"units") << KeywordTraits<AxisUnits::Type>::print(value.getType());
}

} // namespace Xml
