// Keywords of fonts.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// font-style of XSL-FO and SVG.
enum class XMLATTR_API FontStyle : std::int32_t { Normal = 0, Italic = 1, Oblique = 2, Backslant = 3 };
template <> struct Keywords<FontStyle> {
    using enum FontStyle;
    static constexpr Case rule = Case::Exact;
    // Intended: "oblique" reads as Italic; Oblique prints but is never read.
    static constexpr KeywordRow<FontStyle> rows[] = {
        {u"normal", Normal}, {u"italic", Italic}, {u"oblique", Italic}, {u"backslant", Backslant}};
    static constexpr KeywordRow<FontStyle> printRows[] = {
        {u"normal", Normal}, {u"italic", Italic}, {u"oblique", Oblique}, {u"backslant", Backslant}};
    static constexpr bool unknownThrows = true;
};

// font-variant of XSL-FO and SVG.
enum class XMLATTR_API FontVariant : std::int32_t { Normal = 0, SmallCaps = 1 };
template <> struct Keywords<FontVariant> {
    using enum FontVariant;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<FontVariant> rows[] = {{u"normal", Normal}, {u"small-caps", SmallCaps}};
    static constexpr bool printsEmpty = true;
};

// font-selection-strategy of XSL-FO.
enum class XMLATTR_API FontSelectionStrategy : std::int32_t { CharacterByCharacter = 0, Auto = 1 };
template <> struct Keywords<FontSelectionStrategy> {
    using enum FontSelectionStrategy;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<FontSelectionStrategy> rows[] = {{u"character-by-character", CharacterByCharacter},
                                                                 {u"auto", Auto}};
    static constexpr bool unknownThrows = true;
};

// The line of an underline, an overline or a line through.
enum class XMLATTR_API TextLineStyle : std::int32_t {
    None = 0,
    Solid = 1,
    Double = 2,
    Dotted = 3,
    Dashed = 4,
    DotDash = 5,
    DotDotDash = 6
};
template <> struct Keywords<TextLineStyle> {
    using enum TextLineStyle;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<TextLineStyle> rows[] = {
        {u"none", None},     {u"solid", Solid},      {u"double", Double},           {u"dotted", Dotted},
        {u"dashed", Dashed}, {u"dot-dash", DotDash}, {u"dot-dot-dash", DotDotDash},
    };
    static constexpr bool unknownThrows = true;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
