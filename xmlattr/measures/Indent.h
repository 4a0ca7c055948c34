// The start-indent and end-indent of XSL-FO.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"
#include "xmlattr/measures/LengthOrPercent.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// What an indent is taken from.
enum class XMLATTR_API IndentFunction : std::int32_t { None = 0, LengthOrPercent = 1, LabelEnd = 2, BodyStart = 3 };
template <> struct Keywords<IndentFunction> {
    using enum IndentFunction;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<IndentFunction> rows[] = {{u"body-start()", BodyStart}, {u"label-end()", LabelEnd}};
};

// "label-end()" or "body-start()", exact in case and without blanks, or a LengthOrPercent. Prints
// the same; the default, which is none of them, prints the empty text. A failed parse changes nothing.
class XMLATTR_API Indent : public TaggedMeasure<IndentFunction, IndentFunction::LengthOrPercent, LengthOrPercent> {
public:
    constexpr Indent() : Indent(IndentFunction::None) {}
    constexpr Indent(IndentFunction function) : TaggedMeasure(function) {}
    constexpr Indent(LengthOrPercent const& newMeasure) : TaggedMeasure(newMeasure) {}

    constexpr IndentFunction getFunction() const { return tag; }
    constexpr LengthOrPercent const& getLengthOrPercent() const { return measure; }

    constexpr bool operator==(Indent const&) const = default;
};

static_assert(sizeof(Indent) == 20);

template <> struct XMLATTR_API AttributeTraits<Indent> {
    static bool parse(Indent& value, std::u16string_view text);
    // Throws UnreacheableCodeException for an out-of-range function.
    static Core::String print(Indent const& value);
    static constexpr Description describe = AttributeTraits<LengthOrPercent>::describe;
    static void words(Words& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
