#include "xmlattr/measures/SLengthOrPercent.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/measures/Units.h"

namespace Xml {

bool SLength::parseSLengthOrPercent(SLengthOrPercent& out, Core::String const& text) {
    return AttributeTraits<SLengthOrPercent>::parse(out, text);
}

bool AttributeTraits<SLengthOrPercent>::parse(SLengthOrPercent& value, std::u16string_view text) {
    text = Core::trimEnd(text);
    if (!startsLikeNumber(text)) return false;
    float number = 0;
    if (Core::isDigit(text.back())) {
        if (!Core::Format::parseFloat(text, number)) return false;
        value = SLengthOrPercent(number, SLength::UserUnit);
        return true;
    }
    if (text.size() > 1 && text.back() == u'%') {
        if (!Core::Format::parseFloat(text.substr(0, text.size() - 1), number)) return false;
        value = SLengthOrPercent(number * 0.01f); // Intended: multiplied in single precision, unlike SLength
        return true;
    }
    SLength length(1, SLength::UserUnit); // Intended: what "5x", "+" and "." give, their number unread
    if (!readWithUnit(length, text) && text.size() >= 3) return false;
    value = SLengthOrPercent(length);
    return true;
}

bool AttributeTraits<SNullableLengthOrPercent>::parse(SNullableLengthOrPercent& value, std::u16string_view text) {
    if (!AttributeTraits<SLengthOrPercent>::parse(value, text)) return false;
    value.setNull(false);
    return true;
}

void AttributeTraits<SLengthOrPercent>::parts(SLengthOrPercent const& value, Parts& out) {
    if (value.isPercent())
        out.add(u"fraction") << value.getPercent();
    else
        AttributeTraits<SLength>::parts(value.getLength(), out);
}

void AttributeTraits<SNullableLengthOrPercent>::parts(SNullableLengthOrPercent const& value, Parts& out) {
    AttributeTraits<SLengthOrPercent>::parts(value, out);
}

} // namespace Xml
