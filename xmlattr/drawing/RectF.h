// A rectangle of four floats.
#pragma once

#include "xmlattr/core/Export.h"

namespace Drawing {

// The four edges in the order in which a clip rectangle names them. Two rectangles are equal when
// all four numbers are.
class XMLATTR_API RectF {
public:
    constexpr RectF() = default;
    constexpr RectF(float newTop, float newRight, float newBottom, float newLeft)
        : top(newTop), right(newRight), bottom(newBottom), left(newLeft) {}

    constexpr float getTop() const { return top; }
    constexpr float getRight() const { return right; }
    constexpr float getBottom() const { return bottom; }
    constexpr float getLeft() const { return left; }

    constexpr bool operator==(RectF const&) const = default;

private:
    float top = 0, right = 0, bottom = 0, left = 0;
};

} // namespace Drawing
