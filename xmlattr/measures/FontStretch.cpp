#include "xmlattr/measures/FontStretch.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<FontStretch>::parse(FontStretch& value, std::u16string_view text) {
    return readAs<RelativeFontStretch>(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<FontStretch>::print(FontStretch const& value) {
    if (value.isAbsoluteStretch()) return LengthOrPercent::getValueAsString(value.getAbsoluteStretch());
    // Intended: a word that is never read; readers of printed values know this one.
    if (value.getRelativeStretch() == RelativeFontStretch::UltraExpanded) return u"ultra-extended";
    return AttributeTraits<RelativeFontStretch>::print(value.getRelativeStretch());
}

void AttributeTraits<FontStretch>::words(Words& out) {
    out.addAll(Keywords<RelativeFontStretch>::rows);
}

} // namespace Xml
