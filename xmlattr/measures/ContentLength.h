// The content-width and content-height of XSL-FO.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// How content is scaled, or that a measure says its size.
enum class XMLATTR_API ContentScaleMode : std::int32_t {
    Auto = 0,
    ScaleToFit = 1,
    ScaleDownToFit = 2,
    ScaleUpToFit = 3,
    LengthOrPercent = 4
};
template <> struct Keywords<ContentScaleMode> {
    using enum ContentScaleMode;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<ContentScaleMode> rows[] = {
        {u"auto", Auto},
        {u"scale-to-fit", ScaleToFit},
        {u"scale-down-to-fit", ScaleDownToFit},
        {u"scale-up-to-fit", ScaleUpToFit},
    };
};

// One of the words of ContentScaleMode, exact in case, or a LengthOrPercent. Prints the same, and
// the empty text for an out-of-range mode.
class XMLATTR_API ContentLength {
public:
    constexpr ContentLength() = default;
    constexpr ContentLength(ContentScaleMode newMode) : mode(newMode) {}
    constexpr ContentLength(LengthOrPercent const& newValue)
        : mode(ContentScaleMode::LengthOrPercent), value(newValue), null(false) {}

    constexpr ContentScaleMode getMode() const { return mode; }
    constexpr bool isLengthOrPercent() const { return mode == ContentScaleMode::LengthOrPercent; }
    constexpr LengthOrPercent const& getLengthOrPercent() const { return value; }
    // True for the words until it is set otherwise.
    constexpr bool isNull() const { return null; }
    constexpr void setNull(bool isNull) { null = isNull; }

    // Intended: not symmetric, and not even reflexive. Automatic equals automatic and scale-to-fit,
    // scale-to-fit equals itself, all three forms equal a measure that equals theirs, and the two
    // one-sided scalings equal nothing.
    bool operator==(ContentLength const& other) const;

    // The measure in pixels, a percentage being taken of the reference; 0 for the words.
    float pxSize(float reference) const { return value.pxSize(reference); }

    // False for a text that is neither word nor measure; then `out` is untouched.
    static bool parseContentLength(ContentLength& out, Core::String const& text);

private:
    ContentScaleMode mode = ContentScaleMode::Auto;
    LengthOrPercent value;
    bool null = true;
};

static_assert(sizeof(ContentLength) == 24);

template <> struct XMLATTR_API AttributeTraits<ContentLength> {
    static bool parse(ContentLength& value, std::u16string_view text);
    static Core::String print(ContentLength const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

} // namespace Xml
