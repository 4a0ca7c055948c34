#include "xmlattr/measures/AlignmentAdjust.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<AlignmentAdjust>::parse(AlignmentAdjust& value, std::u16string_view text) {
    return readAs<AlignmentBaseline>(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<AlignmentAdjust>::print(AlignmentAdjust const& value) {
    if (value.isKeyword()) return AttributeTraits<AlignmentBaseline>::print(value.getKeyword());
    return LengthOrPercent::getValueAsString(value.getLengthOrPercent());
}

void AttributeTraits<AlignmentAdjust>::words(Words& out) {
    out.addAll(Keywords<AlignmentBaseline>::rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

} // namespace Xml
