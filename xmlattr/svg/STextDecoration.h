// The text-decoration of SVG text.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/WordTable.h"

#include <cstdint>

namespace Xml {

// "underline", "overline" and "line-through", exact in case, with commas between them and one more at the end,
// if any; white space may stand before a keyword, not after it. A failed parse changes nothing; there is no printer.
class XMLATTR_API STextDecoration {
public:
    constexpr STextDecoration() = default;
    constexpr STextDecoration(bool newUnderline, bool newOverline, bool newLineThrough)
        : underline(newUnderline), overline(newOverline), lineThrough(newLineThrough) {}

    constexpr bool isNone() const { return !underline && !overline && !lineThrough; }
    constexpr bool isUnderline() const { return underline; }
    constexpr bool isOverline() const { return overline; }
    constexpr bool isLineThrough() const { return lineThrough; }

    constexpr bool operator==(STextDecoration const&) const = default;

private:
    bool underline = false, overline = false, lineThrough = false;
};

template <> struct XMLATTR_API AttributeTraits<STextDecoration> {
    enum Line : std::int32_t { Underline = 1, Overline = 2, LineThrough = 4 };
    static constexpr Core::WordRow<Line> rows[] = {
        {u"underline", Underline}, {u"overline", Overline}, {u"line-through", LineThrough}};

    static bool parse(STextDecoration& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{
        {u"underline, overline and line-through separated by commas"}, {u"underline, overline"}, false};
    static void words(Words& out);
    static void parts(STextDecoration const& value, Parts& out);
};

} // namespace Xml
