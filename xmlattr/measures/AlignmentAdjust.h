// The alignment-adjust of XSL-FO.
#pragma once

#include "xmlattr/keywords/LayoutKeywords.h"
#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// A keyword of AlignmentBaseline, or a LengthOrPercent. Prints the same. A failed parse changes
// nothing.
class XMLATTR_API AlignmentAdjust {
public:
    constexpr AlignmentAdjust() = default;
    constexpr AlignmentAdjust(AlignmentBaseline newKeyword) : keyword(newKeyword) {}
    constexpr AlignmentAdjust(LengthOrPercent const& newMeasure) : keywordHeld(false), measure(newMeasure) {}

    constexpr bool isKeyword() const { return keywordHeld; }
    constexpr AlignmentBaseline getKeyword() const { return keyword; }
    constexpr LengthOrPercent const& getLengthOrPercent() const { return measure; }

    // The same form, with equal keywords or equal measures.
    constexpr bool operator==(AlignmentAdjust const& other) const {
        if (keywordHeld != other.keywordHeld) return false;
        return keywordHeld ? keyword == other.keyword : measure == other.measure;
    }

private:
    bool keywordHeld = true;
    AlignmentBaseline keyword{};
    LengthOrPercent measure;
};

static_assert(sizeof(AlignmentAdjust) == 24);

template <> struct XMLATTR_API AttributeTraits<AlignmentAdjust> {
    static bool parse(AlignmentAdjust& value, std::u16string_view text);
    static Core::String print(AlignmentAdjust const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

} // namespace Xml
