#include "xmlattr/measures/BackgroundSize.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool BackgroundSize::readStringBackgroundSize(BackgroundSize& out, Core::String const& text) {
    return readAs<BackgroundSizeType>(out, text);
}

bool AttributeTraits<BackgroundSize>::parse(BackgroundSize& value, std::u16string_view text) {
    return readAs<BackgroundSizeType>(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<BackgroundSize>::print(BackgroundSize const& value) {
    // Intended: "stretch" and "fill" print the measure that comes with them, 0px.
    if (value.getType() == BackgroundSizeType::Stretch || value.getType() == BackgroundSizeType::LengthOrPercent)
        return LengthOrPercent::getValueAsString(value);
    return AttributeTraits<BackgroundSizeType>::print(value.getType());
}

void AttributeTraits<BackgroundSize>::words(Words& out) {
    out.addAll(Keywords<BackgroundSizeType>::rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

void AttributeTraits<BackgroundSize>::parts(BackgroundSize const& value, Parts& out) {
    if (value.getType() == BackgroundSizeType::LengthOrPercent) AttributeTraits<LengthOrPercent>::parts(value, out);
}

} // namespace Xml
