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
    throw Core::UnreacheableCodeException("LengthAttribute", __LINE__);
}

bool AttributeTraits<SBaselineShift>::parse(SBaselineShift& value, std::u16string_view text) {
    return readAs<BaselineShiftMode>(value, text) || readAs<SLengthOrPercent>(value, text);
}

} // namespace Xml
