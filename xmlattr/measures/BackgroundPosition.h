// The position of a background image along one axis.
#pragma once

#include "xmlattr/core/WordTable.h"
#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// "left" or "top" (0%), "center" (50%), "right" or "bottom" (100%), exact in case, or a
// LengthOrPercent. Intended: only the percentage is kept, so that the three print as "left",
// "center" and "right", whatever they were read from.
class XMLATTR_API BackgroundPosition : public LengthOrPercent {
public:
    constexpr BackgroundPosition() = default;
    constexpr BackgroundPosition(LengthOrPercent const& measure) : LengthOrPercent(measure) {}

    // Reads the words alone; false for every other text, then `out` is untouched.
    static bool readStringBackgroundPosition(BackgroundPosition& out, Core::String const& text);
};

static_assert(sizeof(BackgroundPosition) == 16);

template <> struct XMLATTR_API AttributeTraits<BackgroundPosition> {
    static constexpr Core::WordRow<LengthOrPercent> rows[] = {
        {u"left", 0.0f}, {u"top", 0.0f}, {u"center", 0.5f}, {u"right", 1.0f}, {u"bottom", 1.0f}};
    static bool parse(BackgroundPosition& value, std::u16string_view text);
    static Core::String print(BackgroundPosition const& value);
    static constexpr bool refusesComparison = true;
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
    static void parts(BackgroundPosition const& value, Parts& out);
};

} // namespace Xml
