// The value type that a user of the command names.
#pragma once

#include "cli/Commands.h"
#include "xmlattr/catalogue/AttributeType.h"

#include <string>
#include <string_view>
#include <vector>

namespace Command {

// The name counts in any case, and without "SmartPtr<...>" or a namespace. Where no type has it,
// null after a message that suggests the nearest.
Xml::AttributeType const* findNamedType(std::string_view name, OutputFormat format);

// The shortest name of each type; without lists, whose names a shell would have to quote.
std::vector<std::string> typeNames();

} // namespace Command
