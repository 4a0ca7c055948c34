#include "xmlattr/measures/BaselineShift.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<BaselineShift>::parse(BaselineShift& value, std::u16string_view text) {
    return readAs<BaselineShiftMode>(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<BaselineShift>::print(BaselineShift const& value) {
    switch (value.getMode()) {
    case BaselineShiftMode::LengthOrPercent: return LengthOrPercent::getValueAsString(value.getLengthOrPercent());
    case BaselineShiftMode::Baseline:
    case BaselineShiftMode::Sub:
    case BaselineShiftMode::Super: return AttributeTraits<BaselineShiftMode>::print(value.getMode());
    }
    // Intended: an out-of-range mode is reported with the source name of lengths, which programs look for.
    throw Core::UnreacheableCodeException("LengthAttribute", __LINE__);
}

bool AttributeTraits<SBaselineShift>::parse(SBaselineShift& value, std::u16string_view text) {
    return readAs<BaselineShiftMode>(value, text) || readAs<SLengthOrPercent>(value, text);
}

void AttributeTraits<BaselineShift>::words(Words& out) {
    out.addAll(Keywords<BaselineShiftMode>::rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

void AttributeTraits<SBaselineShift>::words(Words& out) {
    out.addAll(Keywords<BaselineShiftMode>::rows);
}

void AttributeTraits<SBaselineShift>::parts(SBaselineShift const& value, Parts& out) {
    if (value.getMode() == BaselineShiftMode::LengthOrPercent)
        AttributeTraits<SLengthOrPercent>::parts(value.getLengthOrPercent(), out);
    else
        out.add(u"kind") << AttributeTraits<BaselineShiftMode>::print(value.getMode());
}

} // namespace Xml
