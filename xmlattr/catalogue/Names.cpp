#include "xmlattr/catalogue/Names.h"

#include "xmlattr/catalogue/Elements.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace Xml {

namespace {

enum class NameKind : std::uint8_t { Element, Attribute, Property };
using enum NameKind;

struct NewerName {
    NameKind kind;
    std::string_view name, source;
};

constexpr NewerName newerNames[] = {
#define XMLATTR_NEWER(kind, name, source) {kind, name, source},
#include "xmlattr/catalogue/NewerNames.inc"
#undef XMLATTR_NEWER
};

template <NameKind kind>
constexpr auto newerNamesOf = [] {
    constexpr auto count = static_cast<std::size_t>(std::ranges::count(newerNames, kind, &NewerName::kind));
    std::array<Core::WordRow<std::string_view, char>, count> rows{};
    std::size_t next = 0;
    for (NewerName const& name : newerNames)
        if (name.kind == kind) rows[next++] = {name.name, name.source};
    return rows;
}();

// The recommendation that has the newer name; empty when none has.
template <NameKind kind> std::string_view newer(std::string_view name) {
    return Core::WordTable<newerNamesOf<kind>>::find(name).value_or(std::string_view());
}

constexpr char toLower(char c) {
    return static_cast<char>(Core::toLower(static_cast<unsigned char>(c)));
}

bool equalsInLowerCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, toLower, toLower);
}

// Whether one letter was left out, doubled or mistyped, or two neighbours were exchanged.
bool isOneEdit(std::string_view a, std::string_view b) {
    if (a.size() < b.size()) std::swap(a, b);
    if (a.size() - b.size() > 1) return false;
    std::size_t const at = static_cast<std::size_t>(std::ranges::mismatch(a, b).in1 - a.begin());
    if (a.size() > b.size()) return a.substr(at + 1) == b.substr(at);
    if (at == a.size() || a.substr(at + 1) == b.substr(at + 1)) return true;
    return at + 1 < a.size() && a[at] == b[at + 1] && a[at + 1] == b[at] && a.substr(at + 2) == b.substr(at + 2);
}

// One letter of two says nothing.
constexpr std::size_t shortestWithEdit = 3;

template <class Accepts>
std::string_view nearest(std::span<std::string_view const> names, std::string_view name, Accepts accepts) {
    std::string_view edited;
    for (std::string_view const known : names) {
        if (equalsInLowerCase(known, name) && accepts(known)) return known;
        bool const isNear = edited.empty() && name.size() >= shortestWithEdit && isOneEdit(known, name);
        if (isNear && accepts(known)) edited = known;
    }
    return edited;
}

std::string_view nearest(std::span<std::string_view const> names, std::string_view name) {
    return nearest(names, name, [](std::string_view) { return true; });
}

// "space" for "xml:space"; empty when no known name has such a prefix.
std::string_view withPrefix(std::span<std::string_view const> names, std::string_view name) {
    for (std::string_view const known : names) {
        std::size_t const colon = known.find(':');
        if (colon != std::string_view::npos && known.substr(colon + 1) == name) return known;
    }
    return {};
}

bool isProperty(std::string_view name) {
    CatalogueEntry const* const entry = Catalogue::find(Vocabulary::Svg, "*", name);
    return entry && entry->isPresentation;
}

struct NewerPlace {
    std::string_view element, attribute;
};

constexpr NewerPlace newerPlaces[] = {{"circle", "pathLength"},
                                      {"ellipse", "pathLength"},
                                      {"line", "pathLength"},
                                      {"polygon", "pathLength"},
                                      {"polyline", "pathLength"},
                                      {"rect", "pathLength"},
                                      {"symbol", "refX"},
                                      {"symbol", "refY"},
                                      {"symbol", "x"},
                                      {"symbol", "y"},
                                      {"symbol", "width"},
                                      {"symbol", "height"},
                                      {"textPath", "path"},
                                      {"a", "type"},
                                      {"svg", "transform"}};

bool isEventHandler(std::string_view name) {
    return name.size() > 2 && name.starts_with("on") &&
           std::ranges::all_of(name, [](char c) { return c >= 'a' && c <= 'z'; });
}

} // namespace

NameFact Names::ofElement(Vocabulary vocabulary, std::string_view element) noexcept {
    if (Elements::isKnown(vocabulary, element)) return {NameStanding::Known, {}};
    if (vocabulary == Vocabulary::Svg)
        if (std::string_view const source = newer<Element>(element); !source.empty())
            return {NameStanding::Newer, source};
    return {NameStanding::Unknown, nearest(Elements::names(vocabulary), element)};
}

NameFact Names::ofAttribute(Vocabulary vocabulary, std::string_view attribute) noexcept {
    if (Elements::isAttribute(vocabulary, attribute)) return {NameStanding::Known, {}};
    if (attribute.starts_with("data-") || attribute.starts_with("aria-")) return {NameStanding::Open, {}};
    bool const isSvg = vocabulary == Vocabulary::Svg;
    // XLink is no part of XSL-FO: there its attributes are of a foreign namespace.
    if (isSvg ? isEventHandler(attribute) || attribute == "role" : attribute.starts_with("xlink:"))
        return {NameStanding::Open, {}};
    std::string_view source = isSvg || attribute == "xml:id" ? newer<Attribute>(attribute) : std::string_view();
    if (source.empty() && isSvg) source = newer<Property>(attribute);
    if (!source.empty()) return {NameStanding::Newer, source};
    std::span<std::string_view const> const known = Elements::attributes(vocabulary);
    std::string_view const prefixed = withPrefix(known, attribute);
    return {NameStanding::Unknown, prefixed.empty() ? nearest(known, attribute) : prefixed};
}

bool Names::isNewerOn(std::string_view element, std::string_view attribute) noexcept {
    if (attribute == "class" || attribute == "style" || attribute == "lang" || isProperty(attribute)) return true;
    return std::ranges::any_of(
        newerPlaces, [&](NewerPlace const& place) { return place.element == element && place.attribute == attribute; });
}

NameFact Names::ofProperty(std::string_view property) noexcept {
    if (property.starts_with('-')) return {NameStanding::Open, {}};
    std::array<char, 64> letters;
    if (property.size() > letters.size()) return {NameStanding::Unknown, {}};
    std::ranges::transform(property, letters.begin(), toLower);
    std::string_view const name(letters.data(), property.size());
    if (isProperty(name)) return {NameStanding::Known, {}};
    if (std::string_view const source = newer<Property>(name); !source.empty()) return {NameStanding::Newer, source};
    return {NameStanding::Unknown, nearest(Elements::attributes(Vocabulary::Svg), name, isProperty)};
}

NameFact Names::ofNamespace(std::string_view name) noexcept {
    constexpr std::string_view known[] = {"http://www.w3.org/1999/XSL/Format", "http://www.w3.org/2000/svg",
                                          "http://www.w3.org/1999/xlink", "http://www.w3.org/1999/XSL/Transform"};
    auto const path = [](std::string_view space) {
        if (space.ends_with('/')) space.remove_suffix(1);
        std::size_t const scheme = space.find("://");
        return scheme == std::string_view::npos ? space : space.substr(scheme);
    };
    if (std::ranges::find(known, name) != std::end(known)) return {NameStanding::Known, {}};
    for (std::string_view const space : known)
        if (equalsInLowerCase(path(space), path(name)) || isOneEdit(path(space), path(name)))
            return {NameStanding::Unknown, space};
    return {NameStanding::Open, {}};
}

} // namespace Xml
