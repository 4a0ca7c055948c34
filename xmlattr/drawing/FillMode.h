// Which points a path encloses.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>

namespace Drawing {

enum class XMLATTR_API FillMode : std::int32_t { NonZero = 0, EvenOdd = 1 };

} // namespace Drawing
