// The spacing between letters or words, in XSL-FO and SVG.
#pragma once

#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/SLength.h"
#include "xmlattr/measures/TaggedMeasure.h"

namespace Xml {

// Whether a spacing is the normal one or a length.
enum XMLATTR_API SpacingKind : std::int32_t { SpacingNormal = 0, SpacingLength = 1 };

// Normal spacing, or a length that comes on top of it.
template <class LengthType> class SpacingOf : public TaggedMeasure<SpacingKind, SpacingLength, LengthType> {
public:
    constexpr SpacingKind getKind() const { return this->tag; }
    constexpr bool isNormal() const { return getKind() == SpacingNormal; }

protected:
    constexpr SpacingOf() : SpacingOf::TaggedMeasure(SpacingNormal) {}
    constexpr SpacingOf(LengthType const& length) : SpacingOf::TaggedMeasure(length) {}
};

// "normal" in any case, or a Length. Prints the same. A failed parse changes nothing.
class XMLATTR_API LetterSpacing : public SpacingOf<Length> {
public:
    constexpr LetterSpacing() = default;
    constexpr LetterSpacing(Length const& length) : SpacingOf(length) {}

    constexpr Length const& getLength() const { return measure; }

    constexpr bool operator==(LetterSpacing const&) const = default;
};

static_assert(sizeof(LetterSpacing) == 12);

template <> struct XMLATTR_API AttributeTraits<LetterSpacing> {
    static bool parse(LetterSpacing& value, std::u16string_view text);
    static Core::String print(LetterSpacing const& value);
    static constexpr Description describe{{u"a length"}, {u"12pt"}};
    static void words(Words& out);
};

// "normal", exact in case, or an SLength. A failed parse changes nothing; there is no printer.
class XMLATTR_API SSpacing : public SpacingOf<SLength> {
public:
    constexpr SSpacing() = default;
    constexpr SSpacing(SLength const& length) : SpacingOf(length) {}

    constexpr SLength const& getSLength() const { return measure; }

    constexpr bool operator==(SSpacing const&) const = default;
};

static_assert(sizeof(SSpacing) == 12);

template <> struct XMLATTR_API AttributeTraits<SSpacing> {
    static bool parse(SSpacing& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe = AttributeTraits<SLength>::describe;
    static void words(Words& out);
    static void parts(SSpacing const& value, Parts& out);
};

} // namespace Xml
