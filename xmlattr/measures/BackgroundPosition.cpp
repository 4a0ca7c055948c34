#include "xmlattr/measures/BackgroundPosition.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool BackgroundPosition::readStringBackgroundPosition(BackgroundPosition& out, Core::String const& text) {
    return readAsWord(out, text);
}

bool AttributeTraits<BackgroundPosition>::parse(BackgroundPosition& value, std::u16string_view text) {
    return readAsWord(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<BackgroundPosition>::print(BackgroundPosition const& value) {
    std::size_t const row = MeasureWords<BackgroundPosition>::findValue(value);
    if (row != Core::noWord) return MeasureWords<BackgroundPosition>::word(row);
    return LengthOrPercent::getValueAsString(value);
}

void AttributeTraits<BackgroundPosition>::words(Words& out) {
    out.addAll(rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

void AttributeTraits<BackgroundPosition>::parts(BackgroundPosition const& value, Parts& out) {
    AttributeTraits<LengthOrPercent>::parts(value, out);
}

} // namespace Xml
