#include "xmlattr/measures/LeaderPatternWidth.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

namespace {

constexpr std::u16string_view usesFontMetrics = u"use-font-metrics";

} // namespace

bool AttributeTraits<LeaderPatternWidth>::parse(LeaderPatternWidth& value, std::u16string_view text) {
    return text == usesFontMetrics || readAs<LengthOrPercent>(value, text);
}

void AttributeTraits<LeaderPatternWidth>::words(Words& out) {
    out.add(usesFontMetrics);
    AttributeTraits<LengthOrPercent>::words(out);
}

} // namespace Xml
