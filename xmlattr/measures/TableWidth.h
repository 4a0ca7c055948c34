// The width of a table.
#pragma once

#include "xmlattr/measures/LengthOrPercent.h"

namespace Xml {

// A LengthOrPercent, or a call with one as its argument. Intended: the call's name is
// ignored, so that a bare number follows the configuration even in proportional-column-width(). The
// default is automatic; there is no printer.
class XMLATTR_API TableWidth : public AutoOrMeasure {
public:
    constexpr TableWidth() = default;
    constexpr TableWidth(LengthOrPercent const& newMeasure) : AutoOrMeasure(newMeasure) {}

    constexpr bool operator==(TableWidth const&) const = default;

    // False for a text that is neither measure nor call; then `out` is untouched.
    static bool parseTableWidth(TableWidth& out, Core::String const& text);
};

template <> struct XMLATTR_API AttributeTraits<TableWidth> : AutoOrMeasureParts {
    static bool parse(TableWidth& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{
        {u"a length", u"a percentage", u"a number (1.5 is 150%)", u"a call around one of these"},
        {u"12pt", u"50%", u"proportional-column-width(50%)"}};
    static void words(Words& out);
};

} // namespace Xml
