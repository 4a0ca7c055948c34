#include "xmlattr/measures/TableWidth.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool TableWidth::parseTableWidth(TableWidth& out, Core::String const& text) {
    return AttributeTraits<TableWidth>::parse(out, text);
}

bool AttributeTraits<TableWidth>::parse(TableWidth& value, std::u16string_view text) {
    return readAs<LengthOrPercent>(value, text) || readAs<LengthOrPercent>(value, argumentOf(text));
}

void AttributeTraits<TableWidth>::words(Words& out) {
    AttributeTraits<LengthOrPercent>::words(out);
}

} // namespace Xml
