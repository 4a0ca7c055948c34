// The width or height of a page.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/TaggedMeasure.h"

namespace Xml {

// How a page dimension is given.
enum class XMLATTR_API PageDimensionType : std::int32_t { Auto = 0, Indefinite = 1, Length = 2 };
template <> struct Keywords<PageDimensionType> {
    using enum PageDimensionType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<PageDimensionType> rows[] = {{u"auto", Auto}, {u"indefinite", Indefinite}};
};

// "auto" or "indefinite", exact in case, or a Length. A failed parse changes nothing; there is no
// printer.
class XMLATTR_API PageDimension : public TaggedMeasure<PageDimensionType, PageDimensionType::Length, Length> {
public:
    constexpr PageDimension() : PageDimension(PageDimensionType::Auto) {}
    constexpr PageDimension(PageDimensionType type) : TaggedMeasure(type) {}
    constexpr PageDimension(Length const& length) : TaggedMeasure(length) {}

    constexpr PageDimensionType getType() const { return tag; }
    constexpr Length const& getLength() const { return measure; }

    constexpr bool operator==(PageDimension const&) const = default;

    // Reads the two words alone; false for every other text, then `out` is untouched.
    static bool readStringPageDimension(PageDimension& out, Core::String const& text);
};

static_assert(sizeof(PageDimension) == 12);

template <> struct XMLATTR_API AttributeTraits<PageDimension> {
    static bool parse(PageDimension& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"a length"}, {u"12pt"}};
    static void words(Words& out);
    static void parts(PageDimension const& value, Parts& out);
};

} // namespace Xml
