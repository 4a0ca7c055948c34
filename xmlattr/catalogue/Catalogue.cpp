#include "xmlattr/catalogue/Catalogue.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace Xml {

namespace {

using enum AttributeKind;
constexpr bool Yes = true, No = false;

constexpr CatalogueEntry rows[] = {
#define XMLATTR_PROPERTY(...) {Vocabulary::Fo, __VA_ARGS__},
#include "xmlattr/catalogue/FoProperties.inc"
#undef XMLATTR_PROPERTY
#define XMLATTR_PROPERTY(...) {Vocabulary::Svg, __VA_ARGS__},
#include "xmlattr/catalogue/SvgProperties.inc"
#undef XMLATTR_PROPERTY
};

constexpr bool isSameAttribute(CatalogueEntry const& row, Vocabulary vocabulary, std::string_view attribute) {
    return row.vocabulary == vocabulary && row.attribute == attribute;
}

// An open hash table of the first row of each attribute: row number plus one, 0 where nothing is.
// It is at most a third full.
constexpr std::size_t slotCount = 2048;

constexpr std::size_t slotOf(Vocabulary vocabulary, std::string_view attribute) {
    std::uint32_t hash = 2166136261u + static_cast<std::uint32_t>(vocabulary);
    for (char const c : attribute) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    return (hash ^ hash >> 15) % slotCount;
}

constexpr auto firstRows = [] {
    std::array<std::uint16_t, slotCount> slots{};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        CatalogueEntry const& row = rows[i];
        if (i > 0 && isSameAttribute(rows[i - 1], row.vocabulary, row.attribute)) continue;
        std::size_t slot = slotOf(row.vocabulary, row.attribute);
        while (slots[slot] != 0) slot = (slot + 1) % slotCount;
        slots[slot] = static_cast<std::uint16_t>(i + 1);
    }
    return slots;
}();

} // namespace

std::span<CatalogueEntry const> Catalogue::entries() noexcept {
    return rows;
}

CatalogueEntry const* Catalogue::find(Vocabulary vocabulary, std::string_view element,
                                      std::string_view attribute) noexcept {
    for (std::size_t slot = slotOf(vocabulary, attribute); firstRows[slot] != 0; slot = (slot + 1) % slotCount) {
        CatalogueEntry const* row = &rows[firstRows[slot] - 1];
        if (!isSameAttribute(*row, vocabulary, attribute)) continue;
        CatalogueEntry const* forEvery = nullptr;
        for (; row != std::end(rows) && isSameAttribute(*row, vocabulary, attribute); ++row) {
            if (row->element == element) return row;
            if (row->element == "*") forEvery = row;
        }
        return forEvery;
    }
    return nullptr;
}

std::optional<Vocabulary> Catalogue::vocabularyOf(std::string_view namespaceName) noexcept {
    if (namespaceName == "http://www.w3.org/1999/XSL/Format") return Vocabulary::Fo;
    if (namespaceName == "http://www.w3.org/2000/svg") return Vocabulary::Svg;
    return std::nullopt;
}

std::string_view Catalogue::name(Vocabulary vocabulary) noexcept {
    return vocabulary == Vocabulary::Fo ? "fo" : "svg";
}

std::string_view Catalogue::name(AttributeKind kind) noexcept {
    switch (kind) {
    case Typed: return "typed";
    case Shorthand: return "shorthand";
    case Identifier: return "identifier";
    case Text: return "text";
    case None: return "none";
    }
    return {};
}

} // namespace Xml
