#include "xmlattr/document/AxisSource.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/document/Call.h"

namespace Xml {

bool AxisSource::hasFn(Core::String const& text) {
    return AttributeTraits<AxisSource>::Functions::findStart(text).has_value();
}

bool AttributeTraits<AxisSource>::parse(AxisSource& value, std::u16string_view text) {
    std::size_t const open = text.find(u'('), close = text.rfind(u')');
    if (open == std::u16string_view::npos || close == std::u16string_view::npos || !Functions::findStart(text)) {
        value = AxisSource(text, {});
        return true;
    }
    // A ")" that only stands before the "(" leaves nothing between them.
    std::size_t const length = close > open ? close - open - 1 : 0;
    value = AxisSource(Core::trim(text.substr(open + 1, length)), Core::trim(text.substr(0, open)));
    return true;
}

Core::String AttributeTraits<AxisSource>::print(AxisSource const& value) {
    if (value.getFn().empty()) return value.getName();
    return printCall(value.getFn(), value.getName());
}

} // namespace Xml
