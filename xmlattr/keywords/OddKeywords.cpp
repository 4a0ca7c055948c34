#include "xmlattr/keywords/OddKeywords.h"

#include "xmlattr/core/Format.h"

#include <algorithm>

namespace Xml {

bool AttributeTraits<Keep>::parse(Keep& value, std::u16string_view text) {
    if (KeywordTraits::parse(value, text)) return true;
    int strength = 0;
    if (!Core::Format::parseInt(text, strength)) return false;
    value = static_cast<Keep>(strength);
    return true;
}

Core::String AttributeTraits<Keep>::print(Keep const& value) {
    if (value == Keep::Auto || value == Keep::Always) return KeywordTraits::print(value);
    return Core::Format::toShortest(static_cast<int>(value));
}

bool AttributeTraits<MaxRepeats>::parse(MaxRepeats& value, std::u16string_view text) {
    if (!KeywordTraits::parse(value, text)) value = static_cast<MaxRepeats>(std::max(0, Core::Format::parseInt(text)));
    return true;
}

bool AttributeTraits<ReferenceOrientation>::parse(ReferenceOrientation& value, std::u16string_view text) {
    int degrees = 0;
    if (!Core::Format::parseInt(text, degrees)) return false;
    if (degrees <= -360 || degrees >= 360 || degrees % 90 != 0) return false;
    value = static_cast<ReferenceOrientation>((degrees / 90 + 4) % 4);
    return true;
}

bool AttributeTraits<FontWeight>::parse(FontWeight& value, std::u16string_view text) {
    if (KeywordTraits::parse(value, text)) return true;
    int weight = 0;
    if (!Core::Format::parseInt(text, weight)) return false;
    value = weight > 400 ? FontWeight::Bold : FontWeight::Normal;
    return true;
}

bool AttributeTraits<BarcodeValueType>::parse(BarcodeValueType& value, std::u16string_view text) {
    return KeywordTraits::parse(value, text) && value == BarcodeValueType::Hex;
}

Core::String AttributeTraits<BarcodeValueType>::print(BarcodeValueType& value) {
    // A declared value is not written again, so that threads may print one attribute together.
    if (value != BarcodeValueType::Text && value != BarcodeValueType::Hex) value = BarcodeValueType::Hex;
    return KeywordTraits::print(value);
}

void AttributeTraits<BarcodeValueType>::words(Words& out) {
    out.add(Keywords<BarcodeValueType>::rows[1].word); // the one that is not refused
}

} // namespace Xml
