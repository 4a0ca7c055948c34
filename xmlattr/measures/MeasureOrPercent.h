// A length or a percentage: the value that LengthOrPercent and SLengthOrPercent share.
#pragma once

#include <cstdint>

namespace Xml {

// Holds a length of its type or the fraction of a percentage (50% is 0.5); the one that it does not
// hold is 0.
template <class LengthType> class MeasureOrPercent {
public:
    // Whether the length counts or the percentage.
    enum Kind : std::int32_t { KindLength = 1, KindPercent = 2 };

    constexpr Kind getKind() const { return kind; }
    constexpr bool isPercent() const { return kind == KindPercent; }
    constexpr LengthType const& getLength() const { return length; }
    constexpr float getPercent() const { return percent; }
    constexpr void setLength(LengthType const& newLength) { *this = MeasureOrPercent(newLength); }
    constexpr void setPercent(float newPercent) { *this = MeasureOrPercent(newPercent); }

    // Equal fractions, or lengths equal in unit and size; a length never equals a percentage.
    constexpr bool operator==(MeasureOrPercent const& other) const {
        if (isPercent() != other.isPercent()) return false;
        return isPercent() ? percent == other.percent : length == other.length;
    }

    // In pixels; a percentage is taken of the reference.
    float pxSize(float reference) const { return kind == KindLength ? length.pxSize() : percent * reference; }
    // The length in pixels, also when a percentage is held.
    float getLengthPxSize() const { return length.pxSize(); }

protected:
    constexpr MeasureOrPercent() = default;
    constexpr MeasureOrPercent(LengthType const& newLength) : length(newLength) {}
    constexpr MeasureOrPercent(float newPercent) : kind(KindPercent), percent(newPercent) {}

private:
    Kind kind = KindLength;
    LengthType length;
    float percent = 0;
};

} // namespace Xml
