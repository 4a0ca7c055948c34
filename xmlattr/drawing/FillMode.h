// Which points a path encloses.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>

namespace Drawing {

// Which points are inside of a path that crosses itself: fill-rule of SVG 1.1.
enum class XMLATTR_API FillMode : std::int32_t { NonZero = 0, EvenOdd = 1 };

} // namespace Drawing
