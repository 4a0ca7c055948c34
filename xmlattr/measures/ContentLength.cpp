#include "xmlattr/measures/ContentLength.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool ContentLength::operator==(ContentLength const& other) const {
    switch (mode) {
    case ContentScaleMode::Auto:
        if (other.mode == ContentScaleMode::Auto) return true;
        [[fallthrough]];
    case ContentScaleMode::ScaleToFit:
        if (other.mode == ContentScaleMode::ScaleToFit) return true;
        [[fallthrough]];
    case ContentScaleMode::LengthOrPercent: return other.isLengthOrPercent() && value == other.value;
    case ContentScaleMode::ScaleDownToFit:
    case ContentScaleMode::ScaleUpToFit: return false;
    }
    return false;
}

bool ContentLength::parseContentLength(ContentLength& out, Core::String const& text) {
    return AttributeTraits<ContentLength>::parse(out, text);
}

bool AttributeTraits<ContentLength>::parse(ContentLength& value, std::u16string_view text) {
    return readAs<ContentScaleMode>(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<ContentLength>::print(ContentLength const& value) {
    if (value.isLengthOrPercent()) return LengthOrPercent::getValueAsString(value.getLengthOrPercent());
    return AttributeTraits<ContentScaleMode>::print(value.getMode());
}

void AttributeTraits<ContentLength>::words(Words& out) {
    out.addAll(Keywords<ContentScaleMode>::rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

} // namespace Xml
