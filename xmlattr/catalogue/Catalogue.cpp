#include "xmlattr/catalogue/Catalogue.h"

#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/Scope.h"
#include "xmlattr/catalogue/TypeNumber.h"
#include "xmlattr/catalogue/grammar/GrammarCompiler.h"
#include "xmlattr/catalogue/text/TableText.h"
#include "xmlattr/core/WordTable.h"
#include "xmlattr/defaults/DefaultAttributes.h"

#include <type_traits>

namespace Xml {

namespace {

// The attribute of each row and the place where it will stand, since rows refer to each other.
struct RowName {
    Vocabulary vocabulary;
    std::span<std::string_view const> elements;
    std::string_view attribute;
};

constexpr RowName rowNames[] = {
#define XMLATTR_TYPED(elements, attribute, ...) {XMLATTR_VOCABULARY, wordsOf<elements>, attribute},
#define XMLATTR_SHORTHAND XMLATTR_TYPED
#define XMLATTR_UNTYPED XMLATTR_TYPED
#define XMLATTR_IDENTIFIER XMLATTR_TYPED
#define XMLATTR_TEXT XMLATTR_TYPED
#include "xmlattr/catalogue/Properties.inc"
};

constexpr std::size_t rowCount = std::size(rowNames);
extern CatalogueEntry const rows[rowCount];

constexpr bool isSameAttribute(RowName const& row, Vocabulary vocabulary, std::string_view attribute) {
    return row.vocabulary == vocabulary && row.attribute == attribute;
}

consteval bool areInOrder() {
    for (std::size_t i = 0; i < rowCount; ++i) {
        RowName const& row = rowNames[i];
        requireOf(row.attribute, !row.elements.empty(), "the row names no element");
        for (std::size_t j = 1; j < row.elements.size(); ++j)
            requireOf(row.attribute, row.elements[j - 1] < row.elements[j], "the elements of the row are not sorted");
        if (i == 0 || rowNames[i - 1].vocabulary != row.vocabulary) continue;
        bool const follows =
            rowNames[i - 1].attribute < row.attribute ||
            (rowNames[i - 1].attribute == row.attribute && rowNames[i - 1].elements.front() < row.elements.front());
        requireOf(row.attribute, follows, "the rows are not sorted by attribute, then by elements");
        for (std::size_t j = i; j > 0 && isSameAttribute(rowNames[j - 1], row.vocabulary, row.attribute); --j)
            for (std::string_view const element : rowNames[j - 1].elements)
                requireOf(row.attribute, std::ranges::find(row.elements, element) == row.elements.end(),
                          "an element has two rows of the attribute");
    }
    return true;
}

static_assert(areInOrder());

constexpr struct None {
} NoDefault;

// The columns of the rows.

struct Parts {
    std::uint8_t most;
    bool areOfFont = false;
};

constexpr Parts AsFont{255, true};

constexpr Parts UpTo(std::uint8_t count) {
    return {count};
}

constexpr CatalogueEntry const* rowOfLonghand(Vocabulary vocabulary, std::string_view attribute) {
    std::size_t i = 0;
    while (i < rowCount && !(isSameAttribute(rowNames[i], vocabulary, attribute) && rowNames[i].elements[0] == "*"))
        ++i;
    requireOf(attribute, i < rowCount, "the longhand is no row of its vocabulary for every element");
    return &rows[i];
}

template <Vocabulary vocabulary, TableText text>
constexpr auto longhandsOf = [] {
    std::array<CatalogueEntry const*, wordsOf<text>.size()> longhands{};
    for (std::size_t i = 0; i < longhands.size(); ++i) longhands[i] = rowOfLonghand(vocabulary, wordsOf<text>[i]);
    return longhands;
}();

template <class T, class Constant> consteval CatalogueEntry typed(CatalogueEntry row, std::string_view constant) {
    constexpr bool hasDefault = !std::is_same_v<Constant, None const>;
    static_assert(typeNumber<T> < typeNames.size(), "the value type of this row is not in ValueTypes.inc");
    static_assert(!hasDefault || std::is_same_v<Constant, TXmlAttribute<T> const>,
                  "the default constant of this row holds a value of another type than the row's");
    row.valueType = typeNames[typeNumber<T>];
    row.typeNumber = static_cast<std::int16_t>(typeNumber<T>);
    if (hasDefault) row.defaultConstant = constant;
    return row;
}

consteval CatalogueEntry shorthand(CatalogueEntry row, Parts parts, std::span<CatalogueEntry const* const> longhands,
                                   std::span<std::string_view const> words) {
    requireOf(row.attribute, !parts.areOfFont || longhands.size() == 5 || longhands.size() == 6,
              "a font is made of its style, variant, weight, size, family and, perhaps, line height");
    row.mostParts = parts.most;
    row.isFont = parts.areOfFont;
    row.longhands = longhands;
    row.ownWords = words;
    return row;
}

#define XMLATTR_ROW(kind, elements, attribute, scope, grammar, initial, note)                                          \
    CatalogueEntry {                                                                                                   \
        XMLATTR_VOCABULARY, AttributeKind::kind, (scope).isInherited, (scope).isPresentation, wordsOf<elements>,       \
            attribute, grammarOf<grammar>, initial, note                                                               \
    }
#define XMLATTR_TYPED(elements, attribute, scope, type, constant, grammar, initial, note)                              \
    typed<type, decltype(constant)>(XMLATTR_ROW(Typed, elements, attribute, scope, grammar, initial, note), #constant),
#define XMLATTR_SHORTHAND(elements, attribute, scope, parts, longhands, words, grammar, initial, note)                 \
    shorthand(XMLATTR_ROW(Shorthand, elements, attribute, scope, grammar, initial, note), parts,                       \
              longhandsOf<XMLATTR_VOCABULARY, longhands>, wordsOf<words>),
#define XMLATTR_UNTYPED(...) XMLATTR_ROW(Untyped, __VA_ARGS__),
#define XMLATTR_IDENTIFIER(...) XMLATTR_ROW(Identifier, __VA_ARGS__),
#define XMLATTR_TEXT(...) XMLATTR_ROW(Text, __VA_ARGS__),
constinit CatalogueEntry const rows[rowCount] = {
#include "xmlattr/catalogue/Properties.inc"
};
#undef XMLATTR_ROW

constexpr bool isFirstOfAttribute(std::size_t row) {
    return row == 0 || !isSameAttribute(rowNames[row - 1], rowNames[row].vocabulary, rowNames[row].attribute);
}

consteval std::size_t countAttributes(Vocabulary vocabulary) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < rowCount; ++i) count += rowNames[i].vocabulary == vocabulary && isFirstOfAttribute(i);
    return count;
}

// The attributes of a vocabulary and the number of the first row of each.
template <Vocabulary vocabulary>
constexpr auto attributes = [] {
    std::array<Core::WordRow<std::uint16_t, char>, countAttributes(vocabulary)> attributes{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < rowCount; ++i)
        if (rowNames[i].vocabulary == vocabulary && isFirstOfAttribute(i))
            attributes[count++] = {rowNames[i].attribute, static_cast<std::uint16_t>(i)};
    return attributes;
}();

template <Vocabulary vocabulary> using Attributes = Core::WordTable<attributes<vocabulary>>;

constexpr std::string_view foNamespace = "http://www.w3.org/1999/XSL/Format";
constexpr std::string_view svgNamespace = "http://www.w3.org/2000/svg";
constexpr Core::WordRow<Vocabulary, char> namespaces[] = {{foNamespace, Vocabulary::Fo},
                                                          {svgNamespace, Vocabulary::Svg}};

} // namespace

AttributeType const* CatalogueEntry::type() const noexcept {
    return typeNumber < 0 ? nullptr : &AttributeType::all()[static_cast<std::size_t>(typeNumber)];
}

std::span<CatalogueEntry const> Catalogue::entries() noexcept {
    return rows;
}

std::span<CatalogueEntry const> Catalogue::rowsOf(Vocabulary vocabulary, std::string_view attribute) noexcept {
    auto const first = vocabulary == Vocabulary::Fo ? Attributes<Vocabulary::Fo>::find(attribute)
                                                    : Attributes<Vocabulary::Svg>::find(attribute);
    if (!first) return {};
    std::size_t end = *first + 1u;
    while (end < rowCount && isSameAttribute(rowNames[end], vocabulary, attribute)) ++end;
    return {&rows[*first], &rows[end]};
}

CatalogueEntry const* Catalogue::find(Vocabulary vocabulary, std::string_view element,
                                      std::string_view attribute) noexcept {
    CatalogueEntry const* forEvery = nullptr;
    for (CatalogueEntry const& row : rowsOf(vocabulary, attribute)) {
        if (row.isForEveryElement()) forEvery = &row;
        if (std::ranges::find(row.elements, element) != row.elements.end()) return &row;
    }
    return forEvery;
}

std::optional<Vocabulary> Catalogue::vocabularyOf(std::string_view namespaceName) noexcept {
    return Core::WordTable<namespaces>::find(namespaceName);
}

std::string_view Catalogue::namespaceOf(Vocabulary vocabulary) noexcept {
    return vocabulary == Vocabulary::Fo ? foNamespace : svgNamespace;
}

std::string_view Catalogue::recommendation(Vocabulary vocabulary) noexcept {
    return vocabulary == Vocabulary::Fo ? "XSL-FO 1.1" : "SVG 1.1";
}

std::string_view Catalogue::name(Vocabulary vocabulary) noexcept {
    return vocabulary == Vocabulary::Fo ? "fo" : "svg";
}

std::string_view Catalogue::name(AttributeKind kind) noexcept {
    switch (kind) {
    case AttributeKind::Typed: return "typed";
    case AttributeKind::Shorthand: return "shorthand";
    case AttributeKind::Identifier: return "identifier";
    case AttributeKind::Text: return "text";
    case AttributeKind::Untyped: return "none";
    }
    return {};
}

} // namespace Xml
