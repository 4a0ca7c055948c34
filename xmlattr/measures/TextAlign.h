// The text-align and text-align-last of XSL-FO.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include <utility>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// Where text is aligned; None prints like Left.
enum class XMLATTR_API TextAlignType : std::int32_t {
    None = 0,
    Left = 1,
    Right = 2,
    Center = 3,
    Justify = 4,
    Start = 5,
    End = 6,
    Inside = 7,
    Outside = 8,
    AlignmentString = 9,
    Relative = 10
};
template <> struct Keywords<TextAlignType> {
    using enum TextAlignType;
    static constexpr Case rule = Case::Any;
    // Intended: without "outside" and "relative", which TextAlign reads in lower case only.
    static constexpr KeywordRow<TextAlignType> rows[] = {
        {u"left", Left},   {u"right", Right}, {u"center", Center}, {u"justify", Justify},
        {u"start", Start}, {u"end", End},     {u"inside", Inside},
    };
    static constexpr KeywordRow<TextAlignType> printRows[] = {
        {u"left", None},   {u"left", Left}, {u"right", Right},   {u"center", Center},   {u"justify", Justify},
        {u"start", Start}, {u"end", End},   {u"inside", Inside}, {u"outside", Outside}, {u"relative", Relative},
    };
    static constexpr bool unknownThrows = true;
};

// "left", "right", "center", "justify", "start", "end" or "inside" in any case, "outside" or
// "relative" in lower case, or any other text: a string to align at, untrimmed. Every text is
// accepted. Prints the keyword or the string.
class XMLATTR_API TextAlign {
public:
    TextAlign() = default;
    // The text is dropped unless the type is AlignmentString.
    TextAlign(TextAlignType newType, Core::String newText) : type(newType) {
        if (type == TextAlignType::AlignmentString) text = std::move(newText);
    }

    // Empty for everything but an alignment string.
    Core::String const& getText() const { return text; }
    TextAlignType getType() const { return type; }

    bool operator==(TextAlign const&) const = default;

private:
    Core::String text;
    TextAlignType type = TextAlignType::None;
};

template <> struct XMLATTR_API AttributeTraits<TextAlign> {
    // Beside those of TextAlignType; exact in case.
    static constexpr Core::WordRow<TextAlignType> rows[] = {{u"outside", TextAlignType::Outside},
                                                            {u"relative", TextAlignType::Relative}};
    static bool parse(TextAlign& value, std::u16string_view text);
    // Throws UnreacheableCodeException for an out-of-range type.
    static Core::String print(TextAlign const& value);
    static constexpr Description describe{
        .forms = {u"any other text, to align at"}, .examples = {u"."}, .readsAnyText = true};
    static void words(Words& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
