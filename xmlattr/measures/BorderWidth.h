// The width of a border.
#pragma once

#include "xmlattr/core/WordTable.h"
#include "xmlattr/measures/Length.h"

namespace Xml {

// "thin" (1pt), "medium" (3pt) or "thick" (5pt), exact in case, or a Length. Prints the word whose
// length it equals, else the length. A failed parse changes nothing.
// Intended: the default, 1.5pt, is none of the three.
class XMLATTR_API BorderWidth : public Length {
public:
    constexpr BorderWidth() : Length(1.5f, Pt) {}
    constexpr BorderWidth(float newSize, Unit newUnit) : Length(newSize, newUnit) {}
    constexpr BorderWidth(Length const& length) : Length(length) {}
};

static_assert(sizeof(BorderWidth) == 8);

template <> struct XMLATTR_API AttributeTraits<BorderWidth> {
    static constexpr Core::WordRow<Length> rows[] = {
        {u"thin", {1, Length::Pt}}, {u"medium", {3, Length::Pt}}, {u"thick", {5, Length::Pt}}};
    static bool parse(BorderWidth& value, std::u16string_view text);
    static Core::String print(BorderWidth const& value);
    static constexpr bool refusesComparison = true;
    static constexpr Description describe{{u"a length"}, {u"12pt"}};
    static void words(Words& out);
    static void parts(BorderWidth const& value, Parts& out);
};

} // namespace Xml
