#include "xmlattr/measures/TextAlign.h"

namespace Xml {

bool AttributeTraits<TextAlign>::parse(TextAlign& value, std::u16string_view text) {
    TextAlignType type = TextAlignType::AlignmentString;
    if (!AttributeTraits<TextAlignType>::parse(type, text)) type = Core::WordTable<rows>::find(text).value_or(type);
    value = TextAlign(type, type == TextAlignType::AlignmentString ? Core::String(text) : Core::String());
    return true;
}

Core::String AttributeTraits<TextAlign>::print(TextAlign const& value) {
    if (value.getType() == TextAlignType::AlignmentString) return value.getText();
    return AttributeTraits<TextAlignType>::print(value.getType());
}

void AttributeTraits<TextAlign>::words(Words& out) {
    out.addAll(Keywords<TextAlignType>::rows);
    out.addAll(rows);
}

} // namespace Xml
