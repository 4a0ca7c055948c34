#include "xmlattr/document/AxisSource.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/document/Call.h"

#include <algorithm>

namespace Xml {

namespace {

// "year" also begins "year-month" and "year-quarter".
constexpr char16_t functions[][11] = {u"year",      u"quarter",   u"week",      u"month",
                                      u"dayofweek", u"dayofyear", u"dayofmonth"};

bool beginsWithFunction(std::u16string_view text) {
    return std::any_of(std::begin(functions), std::end(functions), [&](std::u16string_view function) {
        return Core::equalsNoCase(text.substr(0, function.size()), function);
    });
}

} // namespace

bool AxisSource::hasFn(Core::String const& text) {
    return beginsWithFunction(text);
}

bool AttributeTraits<AxisSource>::parse(AxisSource& value, std::u16string_view text) {
    std::size_t const open = text.find(u'('), close = text.rfind(u')');
    if (open == std::u16string_view::npos || close == std::u16string_view::npos || !beginsWithFunction(text)) {
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
