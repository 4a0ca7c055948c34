#include "cli/NamedType.h"

#include "output/Output.h"
#include "text/Text.h"
#include "xmlattr/catalogue/legality/Advice.h"

#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>

namespace Command {

namespace {

// Without "SmartPtr<...>" and the namespace.
std::string_view bareName(Xml::AttributeType const& type) {
    std::string_view bare = type.name();
    if (bare.starts_with("SmartPtr<")) bare = bare.substr(9, bare.size() - 10);
    return bare.substr(bare.rfind(':') + 1);
}

bool isCalled(Xml::AttributeType const& type, std::string_view name) {
    std::string_view const known[] = {type.name(), bareName(type)};
    return std::ranges::any_of(known, [&](std::string_view each) { return Xml::equalsNoCase(name, each); });
}

} // namespace

Xml::AttributeType const* findNamedType(std::string_view name, OutputFormat format) {
    for (Xml::AttributeType const& type : Xml::AttributeType::all())
        if (isCalled(type, name)) return &type;
    std::vector<std::u16string> names;
    for (Xml::AttributeType const& type : Xml::AttributeType::all()) names.push_back(toUtf16(type.name()));
    std::vector<std::u16string_view> const views(names.begin(), names.end());
    std::u16string const wanted = toUtf16(name);
    std::u16string_view const nearest = Xml::nearestWord(wanted, views);
    tellFailure("unknown-type",
                "no value type is called " + inQuotes(printable(name)) +
                    (nearest.empty() ? "" : "; did you mean " + inQuotes(toUtf8(nearest)) + "?"),
                format == OutputFormat::Json);
    return nullptr;
}

std::vector<std::string> typeNames() {
    std::vector<std::string> names;
    for (Xml::AttributeType const& type : Xml::AttributeType::all())
        if (std::string_view const name = bareName(type); name.find('<') == std::string_view::npos)
            names.emplace_back(name);
    return names;
}

} // namespace Command
