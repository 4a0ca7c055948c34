// How a gradient is laid over a shape.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>

namespace Drawing {

// What lies beyond the ends of a gradient.
enum class XMLATTR_API GradientSpreadMethod : std::int32_t { Repeat = 0, Reflect = 1, Pad = 2 };

// What the coordinates of a gradient are relative to.
enum class XMLATTR_API GradientUnits : std::int32_t { ObjectBoundingBox = 0, UserSpaceOnUse = 1 };

} // namespace Drawing
