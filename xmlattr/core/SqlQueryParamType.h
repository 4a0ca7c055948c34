// The kinds of parameters of an SQL query.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>

namespace Core::IO {

// What a parameter of a query holds.
enum class XMLATTR_API SqlQueryParamType : std::int32_t { Text = 0, Numeric = 1, Date = 2 };

} // namespace Core::IO
