#include "xmlattr/measures/BorderWidth.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<BorderWidth>::parse(BorderWidth& value, std::u16string_view text) {
    return readAsWord(value, text) || readAs<Length>(value, text);
}

Core::String AttributeTraits<BorderWidth>::print(BorderWidth const& value) {
    std::size_t const row = MeasureWords<BorderWidth>::findValue(value);
    if (row != Core::noWord) return MeasureWords<BorderWidth>::word(row);
    return Length::getValueAsString(value);
}

void AttributeTraits<BorderWidth>::words(Words& out) {
    out.addAll(rows);
}

void AttributeTraits<BorderWidth>::parts(BorderWidth const& value, Parts& out) {
    AttributeTraits<Length>::parts(value, out);
}

} // namespace Xml
