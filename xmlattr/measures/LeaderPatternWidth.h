// The leader-pattern-width of XSL-FO.
#pragma once

#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// "use-font-metrics", exact in case, or a LengthOrPercent. The default uses the font metrics and
// prints the empty text.
class XMLATTR_API LeaderPatternWidth : public AutoOrMeasure {
public:
    constexpr LeaderPatternWidth() = default;
    constexpr LeaderPatternWidth(LengthOrPercent const& newMeasure) : AutoOrMeasure(newMeasure) {}

    // Whether the width is that of the pattern itself.
    constexpr bool usesFontMetrics() const { return isAuto(); }

    constexpr bool operator==(LeaderPatternWidth const&) const = default;
};

template <> struct XMLATTR_API AttributeTraits<LeaderPatternWidth> : AutoOrMeasurePrinter {
    // Intended: "use-font-metrics" is accepted and changes nothing, not even a measure.
    static bool parse(LeaderPatternWidth& value, std::u16string_view text);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

} // namespace Xml
