// Reads the attributes of an XSL-FO document into typed values by their names, without naming a value type.
//
//   read-document DOCUMENT
#include "StartTags.h"

#include <xmlattr/catalogue/AttributeType.h>
#include <xmlattr/catalogue/Catalogue.h>
#include <xmlattr/catalogue/DefaultConstant.h>

#include <iomanip>
#include <iostream>
#include <optional>
#include <string_view>

namespace {

// What a formatter keeps of an attribute: its value, or the default where the text is refused.
std::optional<Xml::AnyAttribute> valueOf(Xml::CatalogueEntry const& row, Core::String const& text) {
    Xml::AnyAttribute attribute(*row.type());
    if (attribute.parseValue(text)) return attribute;
    if (auto const* const constant = Xml::DefaultConstant::find(row.defaultConstant))
        return Xml::AnyAttribute(*row.type(), **constant);
    return std::nullopt;
}

// The printed value, or what it consists of where the type has no printer.
std::string shown(Xml::AnyAttribute const& attribute) {
    std::string const print = attribute.getValueAsString().toUtf8();
    if (!print.empty()) return print;
    std::string line;
    for (Xml::Part const& part : attribute.parts().list)
        line += (line.empty() ? "" : ", ") + Core::String(part.name).toUtf8() + " " + Core::String(part.value).toUtf8();
    return line;
}

void report(std::string_view element, std::string_view name, std::string const& text) {
    std::cout << std::left << std::setw(20) << element << std::setw(18) << name;
    auto const* const row = Xml::Catalogue::find(Xml::Vocabulary::Fo, element, name);
    if (!row) {
        std::cout << "unknown\n";
    } else if (!row->type()) {
        std::cout << Xml::Catalogue::name(row->kind) << "\n";
    } else {
        auto const value = valueOf(*row, Core::String::fromUtf8(text));
        std::cout << std::setw(26) << row->valueType << (value ? shown(*value) : "no value");
        if (!row->type()->accepts(Core::String::fromUtf8(text)))
            std::cout << " (expected " << row->type()->syntax().toUtf8() << ")";
        std::cout << "\n";
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    return eachAttribute(argv[1], report) ? 0 : 2;
}
