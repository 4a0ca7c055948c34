// A tabulator position of a paragraph.
#pragma once

#include "xmlattr/keywords/LayoutKeywords.h"
#include "xmlattr/measures/Length.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// Where the tabulator stops, how text is aligned there, and what fills the way to it. No attribute
// holds one by itself.
class XMLATTR_API TabStop {
public:
    constexpr TabStop() = default;
    constexpr TabStop(Length newPosition, TabStopType newType, TabPattern newPattern)
        : position(newPosition), type(newType), pattern(newPattern) {}

    constexpr Length const& getPosition() const { return position; }
    constexpr TabStopType getType() const { return type; }
    constexpr TabPattern getPattern() const { return pattern; }

    // By position in pixels, whatever the units. Throws UnreacheableCodeException for a position
    // with an out-of-range unit.
    bool operator<(TabStop const& other) const { return position.pxSize() < other.position.pxSize(); }

private:
    Length position;
    TabStopType type = TabStopType::Left;
    TabPattern pattern = TabPattern::None;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
