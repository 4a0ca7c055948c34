// A font measure relative to the parent's or absolute: the value that font sizes and stretches share.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The numbers of the two forms differ between sizes and stretches.
template <class RelativeWord, std::int32_t relativeNumber, class Measure, std::int32_t absoluteNumber>
class FontMeasure {
public:
    // Which of the two members counts.
    enum Type : std::int32_t { NoValue = 0, Relative = relativeNumber, Absolute = absoluteNumber };

    constexpr Type getType() const { return type; }

    // The same form, with equal words or equal measures. Intended: a value that holds neither is
    // unequal to every value, itself included.
    constexpr bool operator==(FontMeasure const& other) const {
        if (type != other.type) return false;
        switch (type) {
        case Relative: return relative == other.relative;
        case Absolute: return absolute == other.absolute;
        case NoValue: break;
        }
        return false;
    }

protected:
    constexpr FontMeasure() = default;
    constexpr FontMeasure(RelativeWord newRelative) : type(Relative), relative(newRelative) {}
    constexpr FontMeasure(Measure const& newAbsolute) : type(Absolute), absolute(newAbsolute) {}

    // Intended: the relative word stays as it was, since the accessors give what is stored.
    constexpr void setAbsolute(Measure const& measure) {
        type = Absolute;
        absolute = measure;
    }

    Type type = NoValue;
    RelativeWord relative{};
    Measure absolute;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
