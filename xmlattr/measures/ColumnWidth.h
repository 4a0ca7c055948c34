// The width of a table column.
#pragma once

#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// A LengthOrPercent, or a call with one as its argument. In proportional-column-width() a bare
// number is a ratio whatever the configuration says: 2 prints as 200%. Intended: any other name
// passes its argument through ("f(3pt)" is 3pt), and what follows the ")", or its absence, does
// not matter. The default is automatic and prints the empty text.
class XMLATTR_API ColumnWidth : public AutoOrMeasure {
public:
    constexpr ColumnWidth() = default;
    constexpr ColumnWidth(LengthOrPercent const& newMeasure) : AutoOrMeasure(newMeasure) {}

    constexpr bool operator==(ColumnWidth const&) const = default;

    // False for a text that is neither measure nor call; then `out` is untouched.
    static bool parseColumnWidth(ColumnWidth& out, Core::String const& text);
};

template <> struct XMLATTR_API AttributeTraits<ColumnWidth> : AutoOrMeasurePrinter {
    static bool parse(ColumnWidth& value, std::u16string_view text);
    static constexpr Description describe{
        {u"a length", u"a percentage", u"a number (1.5 is 150%)", u"proportional-column-width(NUMBER)"},
        {u"12pt", u"50%", u"proportional-column-width(2)"}};
    static void words(Words& out);
};

} // namespace Xml
