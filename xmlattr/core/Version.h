// The version of the library; docs/abi.md says what a new one may change.
#pragma once

#include "xmlattr/core/Export.h"

// The version of these headers; the build reads it here.
#define XMLATTR_VERSION_MAJOR 2
#define XMLATTR_VERSION_MINOR 0
#define XMLATTR_VERSION_PATCH 0

// The same as one number, for comparisons: 2.3.4 is 20304.
#define XMLATTR_VERSION (XMLATTR_VERSION_MAJOR * 10000 + XMLATTR_VERSION_MINOR * 100 + XMLATTR_VERSION_PATCH)

namespace Core {

// The version of the library that is linked or loaded: "2.0.0". A program needs one that is not older than the
// headers it was built with.
XMLATTR_API char const* version() noexcept;

} // namespace Core
