// The point lists of SVG polylines and polygons.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/measures/SLength.h"

namespace Xml {

// A point of a polyline or polygon.
struct XMLATTR_API Point {
    SLength x, y;

    constexpr Point() = default;
    constexpr Point(SLength const& newX, SLength const& newY) : x(newX), y(newY) {}

    constexpr bool operator==(Point const&) const = default;

    // Pairs of SVG lengths. A length ends at white space, "," or a "-" that is not its first unit;
    // between the two of a pair may stand one "," and then white space. A first one with which the
    // text ends is dropped. False when another one is bad or empty; then the list is untouched.
    // Intended: exactly one code unit after each pair is skipped, whatever it is, and white space, so
    // that "10,20-30,40" is (10, 20) and (30, 40) and a second "," leaves an empty length.
    static bool parsePointList(Core::Vector<Point>& list, Core::String const& text);
    // "x y" pairs with commas between them, in pixels; the list stays as it is. Throws
    // UnreacheableCodeException for a length with an out-of-range unit.
    static Core::String getPointListValueAsString(Core::Vector<Point>& list);
};

static_assert(sizeof(Point) == 16);

// Read by Point::parsePointList and printed by Point::getPointListValueAsString.
template <> struct XMLATTR_API AttributeTraits<Core::Vector<Point>> {
    static bool parse(Core::Vector<Point>& value, std::u16string_view text);
    static Core::String print(Core::Vector<Point> const& value);
    static constexpr bool refusesComparison = true;
    static constexpr Description describe{
        .forms = {u"pairs of SVG lengths"}, .examples = {u"1,2 3,4"}, .readsList = true};
    static void parts(Core::Vector<Point> const& value, Parts& out);
};

} // namespace Xml
