#include "xmlattr/svg/Point.h"

#include "xmlattr/core/Append.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/measures/Units.h"
#include "xmlattr/svg/ListGrowth.h"

#include <algorithm>
#include <iterator>

namespace Xml {

namespace {

bool endsCoordinate(char16_t unit) {
    return unit == u',' || unit == u'-' || Core::isSpace(unit);
}

void skipSpace(char16_t const*& at, char16_t const* end) {
    while (at != end && Core::isSpace(*at)) ++at;
}

// Reads the coordinate at `at` and moves past it; false when it is no SVG length. A plain number,
// as nearly all are, needs no second look: none of its units ends it early, and when the one after
// it does, the whole is what the length reader takes as user units because it ends with a digit.
bool readCoordinate(char16_t const*& at, char16_t const* lastEnd, char16_t const* end, SLength& out) {
    if (at < lastEnd) {
        float number = 0;
        char16_t const* const after = Core::scanPlain(at, std::unreachable_sentinel, number);
        if (after && endsCoordinate(*after)) {
            at = after;
            out = SLength(number, SLength::UserUnit);
            return true;
        }
    }
    char16_t const* const start = at;
    if (at != end && *at == u'-') ++at;
    at = std::find_if(at, end, endsCoordinate);
    return AttributeTraits<SLength>::parse(out, {start, static_cast<std::size_t>(at - start)});
}

} // namespace

bool Point::parsePointList(Core::Vector<Point>& list, Core::String const& text) {
    return AttributeTraits<Core::Vector<Point>>::parse(list, text);
}

Core::String Point::getPointListValueAsString(Core::Vector<Point>& list) {
    return AttributeTraits<Core::Vector<Point>>::print(list);
}

bool AttributeTraits<Core::Vector<Point>>::parse(Core::Vector<Point>& value, std::u16string_view text) {
    Core::Vector<Point> points;
    char16_t const* at = text.data();
    char16_t const *const begin = at, *const end = at + text.size(), *const lastEnd = Core::afterLastEnd(begin, end);
    while (at != end) {
        skipSpace(at, end);
        Point point;
        bool const hasX = readCoordinate(at, lastEnd, end, point.x);
        if (at == end) break;
        if (*at == u',') ++at;
        skipSpace(at, end);
        if (!readCoordinate(at, lastEnd, end, point.y) || !hasX) return false;
        if (points.size() == points.capacity()) growList<12>(points, at - begin, end - begin);
        points.push_back(point);
        if (at != end) ++at;
    }
    value = std::move(points);
    return true;
}

Core::String AttributeTraits<Core::Vector<Point>>::print(Core::Vector<Point> const& value) {
    constexpr std::size_t usual = 16; // code units of a point
    std::u16string out;
    out.reserve(usual * value.size());
    for (Point const& point : value) Core::append(out, point.x.pxSize(), u" ", point.y.pxSize(), u",");
    if (!out.empty()) out.pop_back();
    return Core::String(std::move(out));
}

void AttributeTraits<Core::Vector<Point>>::parts(Core::Vector<Point> const& value, Parts& out) {
    out.add(u"items") << static_cast<int>(value.size());
    for (Point const& point : value) out.add(u"point") << point.x << u"," << point.y;
}

} // namespace Xml
