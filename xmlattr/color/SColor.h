// The paint of SVG attributes, and one that may be absent.
#pragma once

#include "xmlattr/color/ColorParse.h"

#include <cstdint>
#include <utility>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// "none" or "transparent", a reference "url(#id)", exact in case, to a paint server (SVG 1.1), or a
// colour. Of a reference the text from "#" up to the next white space or ")" is kept; what follows,
// a second paint for instance, is ignored. Nothing is trimmed; there is no printer.
class XMLATTR_API SColor {
public:
    // Whether there is no paint, a reference or a colour.
    enum ColorType : std::int32_t { None = 0, Url = 1, Color = 2 };

    SColor() = default;
    // NOLINTNEXTLINE(modernize-pass-by-value): the signature is fixed
    SColor(Core::String const& newUrl) : type(Url), url(newUrl) {}
    SColor(SmartPtr<Drawing::Color> newColor) : type(Color), color(std::move(newColor)) {} // null is a Color too

    ColorType getType() const { return type; }
    SmartPtr<Drawing::Color> getColor() const { return color; }
    Core::String const& getUrl() const { return url; }

    // References are equal by their texts. Intended: colours are equal when they are one object, so
    // two that were parsed from the same text are not.
    bool operator==(SColor const&) const = default;

    // False for a text that is no paint; then `value` is untouched.
    static bool parseSColor(SColor& value, Core::String const& text);

private:
    ColorType type = None;
    SmartPtr<Drawing::Color> color;
    Core::String url;
};

template <> struct XMLATTR_API AttributeTraits<SColor> {
    static bool parse(SColor& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{
        .forms = {u"none", u"url(#ID)", u"a colour"}, .examples = {u"#fff", u"url(#a) red"}, .listsWords = false};
    static void words(Words& out);
    static void parts(SColor const& value, Parts& out);
};

// An SVG paint or nothing. A parse that succeeds makes it present; one that fails changes nothing.
// Comparing takes the paints alone.
class XMLATTR_API SNullableColor : public SColor {
public:
    // Intended: absent also with a reference or a colour; only a parse or setNull(false) ends that.
    SNullableColor() = default;
    SNullableColor(Core::String const& newUrl) : SColor(newUrl) {}
    SNullableColor(SmartPtr<Drawing::Color> newColor) : SColor(std::move(newColor)) {}

    bool isNull() const { return null; }
    void setNull(bool isNull) { null = isNull; }

private:
    bool null = true;
};

template <> struct XMLATTR_API AttributeTraits<SNullableColor> {
    static bool parse(SNullableColor& value, std::u16string_view text);
    static constexpr bool refusesComparison = true;
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SColor>::describe;
    static void words(Words& out);
    static void parts(SNullableColor const& value, Parts& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
