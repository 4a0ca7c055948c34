#include "xmlattr/catalogue/DefaultConstant.h"

#include "xmlattr/catalogue/NameIndex.h"
#include "xmlattr/catalogue/TypeNumber.h"
#include "xmlattr/defaults/DefaultAttributes.h"

#include <array>

namespace Xml {

struct DefaultConstants {
    static DefaultConstant const rows[];
};

namespace {

template <class T> consteval std::uint16_t numberOf() {
    static_assert(typeNumber<T> < typeNames.size(), "the type of this constant is not in ValueTypes.inc");
    return typeNumber<T>;
}

#define XMLATTR_DEFAULT(type, name) std::string_view(#name),
constexpr NameIndex constantsByName(std::to_array({
#include "xmlattr/defaults/DefaultAttributes.inc"
}));

} // namespace

#define XMLATTR_DEFAULT(type, name) {#name, numberOf<type>(), name},
constinit DefaultConstant const DefaultConstants::rows[] = {
#include "xmlattr/defaults/DefaultAttributes.inc"
};

std::span<DefaultConstant const> DefaultConstant::all() noexcept {
    return DefaultConstants::rows;
}

DefaultConstant const* DefaultConstant::find(std::string_view name) noexcept {
    return constantsByName.find(all(), name);
}

} // namespace Xml
