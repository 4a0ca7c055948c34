// The font-stretch of XSL-FO.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/FontMeasure.h"
#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// The words of a font stretch; all of them count as relative ones.
enum class XMLATTR_API RelativeFontStretch : std::int32_t {
    Normal = 0,
    Wider = 1,
    Narrower = 2,
    UltraCondensed = 3,
    ExtraCondensed = 4,
    Condensed = 5,
    SemiCondensed = 6,
    SemiExpanded = 7,
    Expanded = 8,
    ExtraExpanded = 9,
    UltraExpanded = 10,
    Inherit = 11
};
template <> struct Keywords<RelativeFontStretch> {
    using enum RelativeFontStretch;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RelativeFontStretch> rows[] = {
        {u"normal", Normal},
        {u"wider", Wider},
        {u"narrower", Narrower},
        {u"ultra-condensed", UltraCondensed},
        {u"extra-condensed", ExtraCondensed},
        {u"condensed", Condensed},
        {u"semi-condensed", SemiCondensed},
        {u"semi-expanded", SemiExpanded},
        {u"expanded", Expanded},
        {u"extra-expanded", ExtraExpanded},
        {u"ultra-expanded", UltraExpanded},
        {u"inherit", Inherit},
    };
    static constexpr bool unknownThrows = true;
};

// One of the words of RelativeFontStretch, exact in case, or a LengthOrPercent. Prints the word or
// the measure. A failed parse changes nothing.
// Intended: 1 is absolute and 2 relative, the reverse of FontSize.
class XMLATTR_API FontStretch : public FontMeasure<RelativeFontStretch, 2, LengthOrPercent, 1> {
public:
    constexpr FontStretch() = default;
    constexpr FontStretch(RelativeFontStretch newRelative) : FontMeasure(newRelative) {}
    constexpr FontStretch(LengthOrPercent const& newAbsolute) : FontMeasure(newAbsolute) {}
    constexpr FontStretch& operator=(LengthOrPercent const& measure) {
        setAbsolute(measure);
        return *this;
    }

    // getRelativeStretch() counts only where isRelativeStretch(), getAbsoluteStretch() only where isAbsoluteStretch().
    constexpr bool isRelativeStretch() const { return type == Relative; }
    constexpr bool isAbsoluteStretch() const { return type == Absolute; }
    constexpr RelativeFontStretch getRelativeStretch() const { return relative; }
    constexpr LengthOrPercent const& getAbsoluteStretch() const { return absolute; }

    constexpr bool operator==(FontStretch const&) const = default;
};

static_assert(sizeof(FontStretch) == 24);

template <> struct XMLATTR_API AttributeTraits<FontStretch> {
    static bool parse(FontStretch& value, std::u16string_view text);
    // Throws UnreacheableCodeException for an out-of-range relative stretch.
    static Core::String print(FontStretch const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

} // namespace Xml
