#include "xmlattr/measures/LeaderPatternWidth.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<LeaderPatternWidth>::parse(LeaderPatternWidth& value, std::u16string_view text) {
    return text == u"use-font-metrics" || readAs<LengthOrPercent>(value, text);
}

} // namespace Xml
