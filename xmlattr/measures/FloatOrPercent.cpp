#include "xmlattr/measures/FloatOrPercent.h"

#include "xmlattr/core/Format.h"

namespace Xml {

bool AttributeTraits<FloatOrPercent>::parse(FloatOrPercent& value, std::u16string_view text) {
    bool const isPercent = text.ends_with(u'%');
    if (isPercent) text.remove_suffix(1);
    float number = 0;
    if (!Core::Format::parseFloat(text, number)) return false;
    // Intended: the division is in double precision, unlike the percentages of lengths.
    value = FloatOrPercent(isPercent ? static_cast<float>(number / 100.0) : number);
    return true;
}

void AttributeTraits<FloatOrPercent>::parts(FloatOrPercent const& value, Parts& out) {
    out.add(u"number") << value.getValue();
}

} // namespace Xml
