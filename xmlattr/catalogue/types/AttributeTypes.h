// The value types of the library by name.
#pragma once

#include "xmlattr/core/String.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

struct Part {
    std::string name, value;
};

// What a value type makes of a text.
struct Shown {
    bool accepted = false;
    Core::String printed;             // empty for a type without a printer
    std::vector<Part> parts;          // what the value consists of; empty where the printed text says it all
    std::optional<std::uint32_t> rgb; // 0xRRGGBB of a colour
    std::optional<bool> equal;        // whether the other text denotes the same value
};

struct AttributeType {
    std::string_view name; // as ValueTypes.inc writes it
    bool isPublic, isEnumeration;
    bool (*accepts)(std::u16string_view text);
    Shown (*show)(Core::String const& text, Core::String const* other);
    // The keywords of an enumeration; empty for every other type.
    std::vector<std::u16string_view> (*keywords)();

    // What the type reads, in a line; empty for an enumeration that reads nothing but its keywords.
    std::string_view syntax() const;
};

// In the order of ValueTypes.inc.
std::span<AttributeType const> attributeTypes();
// The type with this name, or null.
AttributeType const* findAttributeType(std::string_view name);

} // namespace Xml
