// The font size of XSL-FO and of SVG.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/FontMeasure.h"
#include "xmlattr/measures/LengthOrPercent.h"
#include "xmlattr/measures/SLengthOrPercent.h"

namespace Xml {

// A font size relative to the parent's.
enum class XMLATTR_API RelativeFontSize : std::int32_t { Larger = 0, Smaller = 1 };
template <> struct Keywords<RelativeFontSize> {
    using enum RelativeFontSize;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RelativeFontSize> rows[] = {{u"larger", Larger}, {u"smaller", Smaller}};
    static constexpr bool unknownThrows = true;
};

// The words for absolute sizes, in points. Intended: 16 comes after 12; no word gives 14.
inline constexpr Core::WordRow<float> absoluteFontSizes[] = {
    {u"xx-small", 6}, {u"x-small", 8},  {u"small", 10},    {u"medium", 12},
    {u"large", 16},   {u"x-large", 18}, {u"xx-large", 20},
};

// getRelativeSize() counts only where isRelativeSize(), getAbsoluteSize() only where isAbsoluteSize().
template <class Measure> class FontSizeOf : public FontMeasure<RelativeFontSize, 1, Measure, 2> {
public:
    constexpr bool isRelativeSize() const { return this->type == this->Relative; }
    constexpr bool isAbsoluteSize() const { return this->type == this->Absolute; }
    constexpr RelativeFontSize getRelativeSize() const { return this->relative; }
    constexpr Measure const& getAbsoluteSize() const { return this->absolute; }

protected:
    constexpr FontSizeOf() = default;
    constexpr FontSizeOf(RelativeFontSize newRelative) : FontSizeOf::FontMeasure(newRelative) {}
    constexpr FontSizeOf(Measure const& newAbsolute) : FontSizeOf::FontMeasure(newAbsolute) {}
};

// "larger" or "smaller"; "xx-small", "x-small", "small", "medium", "large", "x-large" or "xx-large",
// which are 6, 8, 10, 12, 16, 18 and 20pt; or a LengthOrPercent. Words are exact in case. Prints the
// relative word or the measure. A failed parse changes nothing.
class XMLATTR_API FontSize : public FontSizeOf<LengthOrPercent> {
public:
    constexpr FontSize() = default;
    constexpr FontSize(RelativeFontSize newRelative) : FontSizeOf(newRelative) {}
    constexpr FontSize(LengthOrPercent const& newAbsolute) : FontSizeOf(newAbsolute) {}
    constexpr FontSize& operator=(LengthOrPercent const& measure) {
        setAbsolute(measure);
        return *this;
    }

    constexpr bool operator==(FontSize const&) const = default;
};

static_assert(sizeof(FontSize) == 24);

template <> struct XMLATTR_API AttributeTraits<FontSize> {
    static bool parse(FontSize& value, std::u16string_view text);
    // Throws UnreacheableCodeException for an out-of-range relative size.
    static Core::String print(FontSize const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
    static void parts(FontSize const& value, Parts& out);
};

// The same words, or an SLengthOrPercent. There is no printer.
class XMLATTR_API SFontSize : public FontSizeOf<SLengthOrPercent> {
public:
    constexpr SFontSize() = default;
    constexpr SFontSize(RelativeFontSize newRelative) : FontSizeOf(newRelative) {}
    constexpr SFontSize(SLengthOrPercent const& newAbsolute) : FontSizeOf(newAbsolute) {}
    constexpr SFontSize& operator=(SLengthOrPercent const& measure) {
        setAbsolute(measure);
        return *this;
    }

    constexpr bool operator==(SFontSize const&) const = default;
};

static_assert(sizeof(SFontSize) == 24);

template <> struct XMLATTR_API AttributeTraits<SFontSize> {
    static bool parse(SFontSize& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SLength>::describe;
    static void words(Words& out);
    static void parts(SFontSize const& value, Parts& out);
};

} // namespace Xml
