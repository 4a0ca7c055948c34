#include "xmlattr/document/MaxDataPoints.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/core/Text.h"

namespace Xml {

namespace {

constexpr std::u16string_view all = u"all";

} // namespace

bool AttributeTraits<MaxDataPoints>::parse(MaxDataPoints& value, std::u16string_view text) {
    if (Core::equalsNoCase(Core::trim(text), all)) {
        value = MaxDataPoints(MaxDataPointsType::All);
        return true;
    }
    int count = 0;
    if (!Core::Format::parseInt(text, count)) return false;
    value = MaxDataPoints(count);
    return true;
}

Core::String AttributeTraits<MaxDataPoints>::print(MaxDataPoints const& value) {
    switch (value.getType()) {
    case MaxDataPointsType::All: return all;
    case MaxDataPointsType::Count: return Core::Format::toShortest(value.getValue());
    }
    return {};
}

void AttributeTraits<MaxDataPoints>::words(Words& out) {
    out.add(all);
}

} // namespace Xml
