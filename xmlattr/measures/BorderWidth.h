// The width of a border.
#pragma once

#include "xmlattr/measures/Length.h"

namespace Xml {

// "thin" (1pt), "medium" (3pt) or "thick" (5pt), exact in case, or a Length. Prints the word whose
// length it equals, else the length. A failed parse changes nothing.
// Intended: the default, 1.5pt, is none of the three.
class XMLATTR_API BorderWidth {
public:
    constexpr BorderWidth() = default;
    constexpr BorderWidth(float size, Length::Unit unit) : length(size, unit) {}
    constexpr BorderWidth(Length const& length) : length(length) {}

    constexpr Length const& getLength() const { return length; }

    constexpr bool operator==(BorderWidth const&) const = default;

private:
    Length length{1.5f, Length::Pt};
};

static_assert(sizeof(BorderWidth) == 8);

template <> struct AttributeTraits<BorderWidth> {
    static bool parse(BorderWidth& value, std::u16string_view text);
    static Core::String print(BorderWidth const& value);
    static constexpr bool refusesComparison = true;
};

} // namespace Xml
