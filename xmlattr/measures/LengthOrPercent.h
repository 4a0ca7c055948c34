// The length or percentage of XSL-FO attributes, and the two plainest values with an automatic state.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/MeasureOrPercent.h"
#include "xmlattr/measures/TaggedMeasure.h"

namespace Xml {

// A number with "%", a number with a unit of Length, or a bare number, which is a ratio (1.5 is
// 150%), unless the configuration says that "MeasurementUnit" is "Points": then it is in points.
// "normal" is 120%, the normal line height. Words and units are exact in case, nothing is trimmed.
// Intended: a pair of code units that names no unit counts as pixels, so that "12PT" is 12px.
// Prints the percentage or the length.
class XMLATTR_API LengthOrPercent : public MeasureOrPercent<Length> {
public:
    constexpr LengthOrPercent() = default;
    constexpr LengthOrPercent(Length const& newLength) : MeasureOrPercent(newLength) {}
    constexpr LengthOrPercent(float newPercent) : MeasureOrPercent(newPercent) {}

    constexpr bool operator==(LengthOrPercent const&) const = default;

    // With `bareNumberIsRatio` the configuration is ignored. False for a text that is neither
    // length nor percentage; then `out` is untouched.
    static bool parseLengthOrPercent(LengthOrPercent& out, Core::String const& text, bool bareNumberIsRatio);
    // Throws UnreacheableCodeException for a length with an out-of-range unit.
    static Core::String getValueAsString(LengthOrPercent const& value);
};

static_assert(sizeof(LengthOrPercent) == 16);

template <> struct XMLATTR_API AttributeTraits<LengthOrPercent> {
    static bool parse(LengthOrPercent& value, std::u16string_view text, bool bareNumberIsRatio = false);
    static Core::String print(LengthOrPercent const& value);
    static constexpr Description describe{{u"a length", u"a percentage", u"a number (1.5 is 150%)"},
                                          {u"12pt", u"50%", u"1.5"}};
    static void words(Words& out);
    static void parts(LengthOrPercent const& value, Parts& out);
};

// Automatic, as by default, or a length or percentage.
class AutoOrMeasure : public TaggedMeasure<bool, false, LengthOrPercent> {
public:
    constexpr bool isAuto() const { return tag; }
    // Has no meaning while the value is automatic.
    constexpr LengthOrPercent const& getLengthOrPercent() const { return measure; }

protected:
    constexpr AutoOrMeasure() : TaggedMeasure(true) {}
    constexpr AutoOrMeasure(LengthOrPercent const& newMeasure) : TaggedMeasure(newMeasure) {}
};

static_assert(sizeof(AutoOrMeasure) == 20);

// The parts of all that are automatic or measured.
struct XMLATTR_API AutoOrMeasureParts {
    // That it is automatic, or those of the measure.
    static void parts(AutoOrMeasure const& value, Parts& out);
};

// The printer of those whose automatic state has no word: it prints the empty text.
struct XMLATTR_API AutoOrMeasurePrinter : AutoOrMeasureParts {
    // The measure; the empty text for an automatic value.
    static Core::String print(AutoOrMeasure const& value);
};

// "auto" in any case, or a LengthOrPercent. Prints "auto" or the measure.
class XMLATTR_API LengthOrPercentAuto : public AutoOrMeasure {
public:
    constexpr LengthOrPercentAuto() = default;
    constexpr LengthOrPercentAuto(LengthOrPercent const& newMeasure) : AutoOrMeasure(newMeasure) {}

    // Keeps the measure.
    constexpr void setAuto(bool isAuto) { tag = isAuto; }

    constexpr bool operator==(LengthOrPercentAuto const&) const = default;

    // False for a text that is neither; then `out` is untouched.
    static bool parseLengthOrPercentAuto(LengthOrPercentAuto& out, Core::String const& text);
};

template <> struct XMLATTR_API AttributeTraits<LengthOrPercentAuto> : AutoOrMeasureParts {
    static bool parse(LengthOrPercentAuto& value, std::u16string_view text);
    static Core::String print(LengthOrPercentAuto const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

// A LengthOrPercent. Intended: "auto" is refused, so that only the default is automatic, and that
// prints the empty text.
class XMLATTR_API Margin : public AutoOrMeasure {
public:
    constexpr Margin() = default;
    constexpr Margin(LengthOrPercent const& newMeasure) : AutoOrMeasure(newMeasure) {}

    // Two automatic margins are equal, whatever measures they carry.
    constexpr bool operator==(Margin const&) const = default;

    // False for a text that is no LengthOrPercent; then `out` is untouched.
    static bool parseMargin(Margin& out, Core::String const& text);
};

template <> struct XMLATTR_API AttributeTraits<Margin> : AutoOrMeasurePrinter {
    static bool parse(Margin& value, std::u16string_view text);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

} // namespace Xml
