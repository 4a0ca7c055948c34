#include "xmlattr/document/MaxDataPoints.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/core/Text.h"

namespace Xml {

bool AttributeTraits<MaxDataPoints>::parse(MaxDataPoints& value, std::u16string_view text) {
    if (Core::equalsNoCase(Core::trim(text), u"all")) {
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
    case MaxDataPointsType::All: return u"all";
    case MaxDataPointsType::Count: return Core::Format::toShortest(value.getValue());
    }
    return {};
}

} // namespace Xml
