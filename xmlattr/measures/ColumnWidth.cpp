#include "xmlattr/measures/ColumnWidth.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool ColumnWidth::parseColumnWidth(ColumnWidth& out, Core::String const& text) {
    return AttributeTraits<ColumnWidth>::parse(out, text);
}

bool AttributeTraits<ColumnWidth>::parse(ColumnWidth& value, std::u16string_view text) {
    if (readAs<LengthOrPercent>(value, text)) return true;
    // Intended: the name counts anywhere in the text.
    bool const bareNumberIsRatio = text.find(u"proportional-column-width") != std::u16string_view::npos;
    LengthOrPercent measure;
    if (!AttributeTraits<LengthOrPercent>::parse(measure, argumentOf(text), bareNumberIsRatio)) return false;
    value = ColumnWidth(measure);
    return true;
}

void AttributeTraits<ColumnWidth>::words(Words& out) {
    AttributeTraits<LengthOrPercent>::words(out);
}

} // namespace Xml
