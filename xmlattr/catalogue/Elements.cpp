#include "xmlattr/catalogue/Elements.h"

#include "xmlattr/catalogue/Scope.h"
#include "xmlattr/catalogue/text/NameTable.h"
#include "xmlattr/catalogue/text/TableText.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace Xml {

namespace {

// The columns of a row of the catalogue that this file needs.
struct Attribute {
    Vocabulary vocabulary;
    std::string_view name;
    Scope scope;
};

constexpr Attribute rows[] = {
#define XMLATTR_TYPED(elements, attribute, scope, ...) {XMLATTR_VOCABULARY, attribute, scope},
#define XMLATTR_SHORTHAND XMLATTR_TYPED
#define XMLATTR_UNTYPED XMLATTR_TYPED
#define XMLATTR_IDENTIFIER XMLATTR_TYPED
#define XMLATTR_TEXT XMLATTR_TYPED
#include "xmlattr/catalogue/Properties.inc"
};

// The attributes of a vocabulary in the order of their names, in which the catalogue has them.
template <Vocabulary vocabulary> constexpr auto attributesOf() {
    constexpr auto isFirst = [](std::size_t i) {
        return rows[i].vocabulary == vocabulary &&
               (i == 0 || rows[i - 1].vocabulary != vocabulary || rows[i - 1].name != rows[i].name);
    };
    constexpr std::size_t count = [&] {
        std::size_t different = 0;
        for (std::size_t i = 0; i < std::size(rows); ++i) different += isFirst(i) ? 1u : 0u;
        return different;
    }();
    std::array<std::string_view, count> names;
    std::size_t next = 0;
    for (std::size_t i = 0; i < std::size(rows); ++i)
        if (isFirst(i)) names[next++] = rows[i].name;
    return names;
}

constexpr auto foAttributes = attributesOf<Vocabulary::Fo>();
constexpr auto svgAttributes = attributesOf<Vocabulary::Svg>();

// A set of attributes of one vocabulary, by their numbers.
struct AttributeSet {
    std::array<std::uint64_t, 6> bits{};

    constexpr void add(std::size_t number) { bits.at(number / 64) |= std::uint64_t{1} << number % 64; }
    constexpr bool contains(std::size_t number) const { return (bits[number / 64] >> number % 64 & 1) != 0; }

    friend constexpr AttributeSet operator|(AttributeSet a, AttributeSet const& b) {
        for (std::size_t i = 0; i < a.bits.size(); ++i) a.bits[i] |= b.bits[i];
        return a;
    }
};

struct Element {
    std::string_view name;
    AttributeSet attributes;
};

// The number of the attribute; a name that the catalogue does not have does not compile.
template <auto const& attributes> constexpr std::size_t numberOf(std::string_view name) {
    auto const* const found = std::ranges::lower_bound(attributes, name);
    requireOf(name, found != attributes.end() && *found == name, "the catalogue has no such attribute");
    return static_cast<std::size_t>(found - attributes.begin());
}

// The set of the names between blanks, components included.
template <auto const& attributes> constexpr AttributeSet setOf(std::string_view names) {
    AttributeSet set;
    while (!names.empty()) {
        std::size_t const length = names.find(' ');
        std::string_view const name = names.substr(0, length);
        names.remove_prefix(length == std::string_view::npos ? names.size() : length + 1);
        std::size_t number = numberOf<attributes>(name);
        set.add(number);
        auto const isComponent = [&](std::string_view next) {
            return next.size() > name.size() && next.starts_with(name) && next[name.size()] == '.';
        };
        while (++number < attributes.size() && isComponent(attributes[number])) set.add(number);
    }
    return set;
}

template <auto const& elements>
constexpr auto namesOf = [] {
    std::array<std::string_view, std::size(elements)> names;
    for (std::size_t i = 0; i < names.size(); ++i) names[i] = elements[i].name;
    return names;
}();

template <auto const& names> bool isIn(std::string_view name) {
    return NameTable<names>::indexOf(name) != Core::noWord;
}

template <auto const& attributes, auto const& elements>
bool hasIn(std::string_view element, std::string_view attribute) {
    std::size_t const number = NameTable<attributes>::indexOf(attribute);
    std::size_t const row = NameTable<namesOf<elements>>::indexOf(element);
    return number != Core::noWord && row != Core::noWord && elements[row].attributes.contains(number);
}

namespace fo {

constexpr auto properties = [](std::string_view names) { return setOf<foAttributes>(names); };

// Groups as XSL-FO 1.1 has them, without what is inherited, and with the shorthands for what they hold.
constexpr AttributeSet None;
constexpr AttributeSet Aural = properties("cue cue-after cue-before pause pause-after pause-before play-during");
constexpr AttributeSet Border = properties(
    "background background-attachment background-color background-image background-position "
    "background-position-horizontal background-position-vertical background-repeat border border-after-color "
    "border-after-style border-after-width border-before-color border-before-style border-before-width border-bottom "
    "border-bottom-color border-bottom-style border-bottom-width border-color border-end-color border-end-style "
    "border-end-width border-left border-left-color border-left-style border-left-width border-right "
    "border-right-color border-right-style border-right-width border-start-color border-start-style "
    "border-start-width border-style border-top border-top-color border-top-style border-top-width border-width "
    "padding padding-after padding-before padding-bottom padding-end padding-left padding-right padding-start "
    "padding-top");
constexpr AttributeSet Margin = properties("margin margin-bottom margin-left margin-right margin-top");
constexpr AttributeSet MarginBlock = Margin | properties("space-after space-before");
constexpr AttributeSet MarginInline = Margin | properties("space-end space-start");
constexpr AttributeSet Offsets = properties("bottom left position right top");
constexpr AttributeSet Absolute = Offsets | properties("absolute-position");
constexpr AttributeSet Relative = Offsets | properties("relative-position");
constexpr AttributeSet Break = properties("break-after break-before page-break-after page-break-before");
constexpr AttributeSet KeepWith = properties("keep-with-next keep-with-previous");
constexpr AttributeSet Inline =
    properties("alignment-adjust alignment-baseline baseline-shift dominant-baseline vertical-align");
constexpr AttributeSet Size = properties("block-progression-dimension height inline-progression-dimension max-height "
                                         "max-width min-height min-width width");
constexpr AttributeSet Graphic =
    properties("clip content-height content-type content-width overflow scaling scaling-method");
constexpr AttributeSet TableBorder =
    properties("border-after-precedence border-before-precedence border-end-precedence border-start-precedence");
constexpr AttributeSet Region = Border | properties("clip overflow region-name reference-orientation");
constexpr AttributeSet Numbering = properties("format grouping-separator grouping-size letter-value");

// A text decoration or shadow reaches the text in an object although it is not inherited.
constexpr AttributeSet Anywhere =
    properties("id index-class index-key role source-document text-decoration text-shadow xml:base xml:space") | [] {
        AttributeSet inherited;
        for (Attribute const& row : rows)
            if (row.vocabulary == Vocabulary::Fo && row.scope.isInherited)
                inherited.add(numberOf<foAttributes>(row.name));
        return inherited;
    }();

// fo:multi-property-set holds the properties for the objects in its fo:multi-properties.
constexpr AttributeSet Every = [] {
    AttributeSet all;
    for (std::size_t i = 0; i < foAttributes.size(); ++i) all.add(i);
    return all;
}();

#define XMLATTR_ELEMENT(name, groups, own) {name, Anywhere | (groups) | properties(own)},
constexpr Element elements[] = {
#include "xmlattr/catalogue/FoElements.inc"
};
#undef XMLATTR_ELEMENT

} // namespace fo

namespace svg {

constexpr auto attributes = [](std::string_view names) { return setOf<svgAttributes>(names); };

// Groups as SVG 1.1 has them.
constexpr AttributeSet Core = attributes("id xml:base xml:lang xml:space");
constexpr AttributeSet Conditional = attributes("requiredExtensions requiredFeatures systemLanguage");
constexpr AttributeSet Styling = attributes("class style");
constexpr AttributeSet External = attributes("externalResourcesRequired");
constexpr AttributeSet Link =
    attributes("xlink:actuate xlink:arcrole xlink:href xlink:role xlink:show xlink:title xlink:type");
constexpr AttributeSet GraphicalEvents = attributes("onactivate onclick onfocusin onfocusout onload onmousedown "
                                                    "onmousemove onmouseout onmouseover onmouseup");
constexpr AttributeSet DocumentEvents = attributes("onabort onerror onresize onscroll onunload onzoom");
constexpr AttributeSet AnimationEvents = attributes("onbegin onend onload onrepeat");
constexpr AttributeSet Timing = attributes("begin dur end fill max min repeatCount repeatDur restart");
constexpr AttributeSet AnimatedValues =
    attributes("accumulate additive by calcMode from keySplines keyTimes to values");
constexpr AttributeSet Box = attributes("height width x y");
constexpr AttributeSet Primitive = Box | attributes("result");
constexpr AttributeSet Presentation = [] {
    AttributeSet all;
    for (Attribute const& row : rows)
        if (row.vocabulary == Vocabulary::Svg && row.scope.isPresentation) all.add(numberOf<svgAttributes>(row.name));
    return all;
}();
constexpr AttributeSet Graphics = Core | Conditional | GraphicalEvents | Presentation | Styling;

#define XMLATTR_ELEMENT(name, groups, own) {name, (groups) | attributes(own)},
constexpr Element elements[] = {
#include "xmlattr/catalogue/SvgElements.inc"
};
#undef XMLATTR_ELEMENT

} // namespace svg

} // namespace

std::span<std::string_view const> Elements::names(Vocabulary vocabulary) noexcept {
    if (vocabulary == Vocabulary::Fo) return namesOf<fo::elements>;
    return namesOf<svg::elements>;
}

bool Elements::isKnown(Vocabulary vocabulary, std::string_view element) noexcept {
    return vocabulary == Vocabulary::Fo ? isIn<namesOf<fo::elements>>(element) : isIn<namesOf<svg::elements>>(element);
}

bool Elements::has(Vocabulary vocabulary, std::string_view element, std::string_view attribute) noexcept {
    return vocabulary == Vocabulary::Fo ? hasIn<foAttributes, fo::elements>(element, attribute)
                                        : hasIn<svgAttributes, svg::elements>(element, attribute);
}

std::span<std::string_view const> Elements::attributes(Vocabulary vocabulary) noexcept {
    if (vocabulary == Vocabulary::Fo) return foAttributes;
    return svgAttributes;
}

bool Elements::isAttribute(Vocabulary vocabulary, std::string_view attribute) noexcept {
    return vocabulary == Vocabulary::Fo ? isIn<foAttributes>(attribute) : isIn<svgAttributes>(attribute);
}

} // namespace Xml
