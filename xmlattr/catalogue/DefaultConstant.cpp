#include "xmlattr/catalogue/DefaultConstant.h"

#include "xmlattr/catalogue/TypeNumber.h"
#include "xmlattr/catalogue/text/NameTable.h"
#include "xmlattr/defaults/DefaultAttributes.h"

namespace Xml {

struct DefaultConstants {
    static DefaultConstant const rows[];
};

namespace {

template <class T> consteval std::uint16_t numberOf() {
    static_assert(typeNumber<T> < typeNames.size(), "the type of this constant is not in ValueTypes.inc");
    return typeNumber<T>;
}

#define XMLATTR_DEFAULT(type, name) #name,
constexpr std::string_view constantNames[] = {
#include "xmlattr/defaults/DefaultAttributes.inc"
};

} // namespace

#define XMLATTR_DEFAULT(type, name) {#name, numberOf<type>(), name},
constinit DefaultConstant const DefaultConstants::rows[] = {
#include "xmlattr/defaults/DefaultAttributes.inc"
};

std::span<DefaultConstant const> DefaultConstant::all() noexcept {
    return DefaultConstants::rows;
}

DefaultConstant const* DefaultConstant::find(std::string_view name) noexcept {
    std::size_t const row = NameTable<constantNames>::indexOf(name);
    return row == Core::noWord ? nullptr : &all()[row];
}

} // namespace Xml
