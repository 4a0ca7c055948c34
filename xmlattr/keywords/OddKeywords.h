// Keyword enumerations whose tables are not the whole story: they also read numbers, take every
// text, or store something when they refuse one.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The keeps of XSL-FO: "auto", "always" or any integer, which is the strength and is held as it is.
enum class XMLATTR_API Keep : std::int32_t { Auto = 0, Always = 0x7FFFFFFE };
template <> struct Keywords<Keep> {
    using enum Keep;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Keep> rows[] = {{u"auto", Auto}, {u"always", Always}};
};
template <> struct XMLATTR_API AttributeTraits<Keep> : KeywordTraits<Keep> {
    static constexpr Description describe{{u"a whole number"}};
    static bool parse(Keep& value, std::u16string_view text);
    static Core::String print(Keep const& value);
};

// maximum-repeats of XSL-FO: "no-limit" or a count, which is held as it is. Intended: never refuses;
// the integer at the start of any other text counts, a negative or missing one as 0.
enum class XMLATTR_API MaxRepeats : std::int32_t { NoLimit = -1 };
template <> struct Keywords<MaxRepeats> {
    using enum MaxRepeats;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<MaxRepeats> rows[] = {{u"no-limit", NoLimit}};
    static constexpr bool printsEmpty = true;
};
template <> struct XMLATTR_API AttributeTraits<MaxRepeats> : KeywordTraits<MaxRepeats> {
    static constexpr Description describe{.forms = {u"a count", u"any other text"}, .readsAnyText = true};
    static bool parse(MaxRepeats& value, std::u16string_view text);
};

// reference-orientation of XSL-FO: an integer from -270 to 270 that is a multiple of 90. Turns the
// other way round are held, and print, as their positive equals.
enum class XMLATTR_API ReferenceOrientation : std::int32_t {
    Degrees0 = 0,
    Degrees90 = 1,
    Degrees180 = 2,
    Degrees270 = 3
};
template <> struct Keywords<ReferenceOrientation> {
    using enum ReferenceOrientation;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<ReferenceOrientation> rows[] = {
        {u"0", Degrees0}, {u"90", Degrees90}, {u"180", Degrees180}, {u"270", Degrees270}};
    static constexpr bool unknownThrows = true;
};
template <> struct XMLATTR_API AttributeTraits<ReferenceOrientation> : KeywordTraits<ReferenceOrientation> {
    static constexpr Description describe{{u"-90", u"-180", u"-270"}};
    static bool parse(ReferenceOrientation& value, std::u16string_view text);
};

// font-weight of XSL-FO and SVG: keywords or an integer. Intended: only the two states are kept;
// an integer above 400 is bold, every other one normal.
enum class XMLATTR_API FontWeight : std::int32_t { Normal = 0, Bold = 1 };
template <> struct Keywords<FontWeight> {
    using enum FontWeight;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<FontWeight> rows[] = {
        {u"normal", Normal}, {u"lighter", Normal}, {u"bold", Bold}, {u"bolded", Bold}, {u"bolder", Bold}};
    static constexpr std::u16string_view unknownPrints = u"normal";
};
template <> struct XMLATTR_API AttributeTraits<FontWeight> : KeywordTraits<FontWeight> {
    static constexpr Description describe{{u"a whole number"}};
    static bool parse(FontWeight& value, std::u16string_view text);
};

// Every text that is no keyword stores E::Other, and `accepts` is the answer to it.
template <KeywordEnumeration E, bool accepts> struct OtherTextTraits : KeywordTraits<E> {
    static constexpr Description describe{.forms = {accepts ? u"any other text" : u""}, .readsAnyText = accepts};

    // Stores Other for a text that is no keyword.
    static bool parse(E& value, std::u16string_view text) {
        if (KeywordTraits<E>::parse(value, text)) return true;
        value = E::Other;
        return accepts;
    }
};

// The switches of XSL-FO that may also be left alone. Intended: never refuses.
enum class XMLATTR_API ThreeState : std::int32_t { True = 0, False = 1, Other = 2 };
template <> struct Keywords<ThreeState> {
    using enum ThreeState;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<ThreeState> rows[] = {{u"true", True}, {u"false", False}};
};
template <> struct AttributeTraits<ThreeState> : OtherTextTraits<ThreeState, true> {};

// The object that extends a page. Intended: never refuses.
enum class XMLATTR_API SVGEObjectType : std::int32_t { Page = 0, PageRect = 1, Other = 2 };
template <> struct Keywords<SVGEObjectType> {
    using enum SVGEObjectType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<SVGEObjectType> rows[] = {{u"page", Page}, {u"page-rect", PageRect}};
};
template <> struct AttributeTraits<SVGEObjectType> : OtherTextTraits<SVGEObjectType, true> {};

// The language of a script. Intended: a refused text stores Other all the same.
enum class ScriptType : std::int32_t { Js = 0, Vb = 1, Other = 2 };
template <> struct Keywords<ScriptType> {
    using enum ScriptType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ScriptType> rows[] = {{u"js", Js}, {u"vb", Vb}};
    static constexpr bool printsEmpty = true;
};
template <> struct AttributeTraits<ScriptType> : OtherTextTraits<ScriptType, false> {};

// How the value of a barcode is written. Intended: "TEXT" stores Text and is refused all the same.
enum class XMLATTR_API BarcodeValueType : std::int32_t { Text = 0, Hex = 1 };
template <> struct Keywords<BarcodeValueType> {
    using enum BarcodeValueType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<BarcodeValueType> rows[] = {{u"TEXT", Text}, {u"HEX", Hex}};
    static constexpr std::u16string_view unknownPrints = u"HEX";
};
// Intended: printing an out-of-range value changes it to Hex, so the printer of the attribute may write the value.
template <> struct AttributeStorage<BarcodeValueType> { mutable BarcodeValueType value{}; };
template <> struct XMLATTR_API AttributeTraits<BarcodeValueType> : KeywordTraits<BarcodeValueType> {
    static void words(Words& out);
    static bool parse(BarcodeValueType& value, std::u16string_view text);
    using KeywordTraits::print;
    static Core::String print(BarcodeValueType& value);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
