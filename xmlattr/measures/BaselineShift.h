// The baseline-shift of XSL-FO and of SVG.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/LengthOrPercent.h"
#include "xmlattr/measures/SLengthOrPercent.h"

namespace Xml {

// Where a baseline is shifted to, or that a measure says how far.
enum class XMLATTR_API BaselineShiftMode : std::int32_t { Baseline = 0, Sub = 1, Super = 2, LengthOrPercent = 3 };
template <> struct Keywords<BaselineShiftMode> {
    using enum BaselineShiftMode;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BaselineShiftMode> rows[] = {{u"baseline", Baseline}, {u"sub", Sub}, {u"super", Super}};
};

// A mode, or a measure that raises the baseline.
template <class Measure>
class BaselineShiftOf : public TaggedMeasure<BaselineShiftMode, BaselineShiftMode::LengthOrPercent, Measure> {
public:
    constexpr BaselineShiftMode getMode() const { return this->tag; }
    constexpr Measure const& getLengthOrPercent() const { return this->measure; }

protected:
    constexpr BaselineShiftOf(BaselineShiftMode mode) : BaselineShiftOf::TaggedMeasure(mode) {}
    constexpr BaselineShiftOf(Measure const& newMeasure) : BaselineShiftOf::TaggedMeasure(newMeasure) {}
};

// "baseline", "sub" or "super", exact in case, or a LengthOrPercent. Prints the same. A failed parse
// changes nothing.
class XMLATTR_API BaselineShift : public BaselineShiftOf<LengthOrPercent> {
public:
    constexpr BaselineShift() : BaselineShift(BaselineShiftMode::Baseline) {}
    constexpr BaselineShift(BaselineShiftMode mode) : BaselineShiftOf(mode) {}
    constexpr BaselineShift(LengthOrPercent const& newMeasure) : BaselineShiftOf(newMeasure) {}

    constexpr bool operator==(BaselineShift const&) const = default;
};

static_assert(sizeof(BaselineShift) == 20);

template <> struct XMLATTR_API AttributeTraits<BaselineShift> {
    static bool parse(BaselineShift& value, std::u16string_view text);
    // Throws UnreacheableCodeException for an out-of-range mode.
    static Core::String print(BaselineShift const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

// The same words, or an SLengthOrPercent. There is no printer.
class XMLATTR_API SBaselineShift : public BaselineShiftOf<SLengthOrPercent> {
public:
    constexpr SBaselineShift() : SBaselineShift(BaselineShiftMode::Baseline) {}
    constexpr SBaselineShift(BaselineShiftMode mode) : BaselineShiftOf(mode) {}
    constexpr SBaselineShift(SLengthOrPercent const& newMeasure) : BaselineShiftOf(newMeasure) {}

    constexpr bool operator==(SBaselineShift const&) const = default;
};

static_assert(sizeof(SBaselineShift) == 20);

template <> struct XMLATTR_API AttributeTraits<SBaselineShift> {
    static bool parse(SBaselineShift& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SLength>::describe;
    static void words(Words& out);
    static void parts(SBaselineShift const& value, Parts& out);
};

} // namespace Xml
