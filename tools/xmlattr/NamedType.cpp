#include "NamedType.h"

#include "Hints.h"
#include "Output.h"
#include "Text.h"

namespace Command {

namespace {

bool isCalled(ValueType const& type, std::string_view name) {
    std::string_view bare = type.name;
    if (bare.starts_with("SmartPtr<")) bare = bare.substr(9, bare.size() - 10);
    std::size_t const space = bare.rfind(':');
    return equalsNoCase(name, type.name) || equalsNoCase(name, bare) ||
           (space != std::string_view::npos && equalsNoCase(name, bare.substr(space + 1)));
}

} // namespace

ValueType const* findNamedType(std::string_view name) {
    for (ValueType const& type : valueTypes())
        if (isCalled(type, name)) return &type;
    std::vector<std::u16string> names;
    for (ValueType const& type : valueTypes()) names.push_back(toUtf16(type.name));
    std::u16string_view const nearest = nearestWord(toUtf16(name), {names.begin(), names.end()});
    printError("xmlattr: no value type is called " + inQuotes(shown(name)) +
               (nearest.empty() ? "" : "; did you mean " + inQuotes(toUtf8(nearest)) + "?") + "\n");
    return nullptr;
}

} // namespace Command
