// The value type that a user of the command names.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"

#include <string_view>

namespace Command {

// The name counts in any case, and without "SmartPtr<...>" or a namespace. Where no type has it,
// null after a message that suggests the nearest.
Xml::AttributeType const* findNamedType(std::string_view name);

} // namespace Command
