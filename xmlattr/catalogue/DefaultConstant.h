// The default constants at run time: by name, with their types.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace Xml {

// A constant of defaults/DefaultAttributes.h, which lives as long as the program.
class XMLATTR_API DefaultConstant {
public:
    // Every constant, in the order of DefaultAttributes.inc.
    static std::span<DefaultConstant const> all() noexcept;
    // The constant with this name, "DefaultFontSize" for instance, which is also what the rows of the
    // catalogue say; or null. Takes constant time.
    static DefaultConstant const* find(std::string_view name) noexcept;

    // As programs name it: "DefaultFontSize".
    std::string_view name() const noexcept { return constantName; }
    // The type of its value.
    AttributeType const& type() const noexcept { return AttributeType::all()[typeNumber]; }
    // The constant itself, which prints what its type prints.
    XmlAttribute const& operator*() const noexcept { return *attribute; }

private:
    friend struct DefaultConstants;

    constexpr DefaultConstant(std::string_view name, std::uint16_t type, XmlAttribute const& constant)
        : constantName(name), attribute(&constant), typeNumber(type) {}

    std::string_view constantName;
    XmlAttribute const* attribute;
    std::uint16_t typeNumber; // among all types
};

} // namespace Xml
