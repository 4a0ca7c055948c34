#include "xmlattr/svg/Point.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"

namespace Xml {

namespace {

bool endsCoordinate(char16_t unit) {
    return unit == u',' || unit == u'-' || Core::isSpace(unit);
}

// Takes one coordinate; false when it is no SVG length. One that is a plain number, as nearly all
// are, needs no second look: no unit of such a number ends it early, and the length reader takes a
// text that ends with a digit as a number of user units.
bool takeCoordinate(TextCursor& cursor, SLength& out) {
    char16_t const *const begin = cursor.text.data(), *const end = begin + cursor.text.size();
    float number = 0;
    char16_t const* const behind = Core::scanPlain(begin + cursor.index, end, number);
    if (behind && (behind == end || endsCoordinate(*behind))) {
        cursor.index = static_cast<int>(behind - begin);
        out = SLength(number, SLength::UserUnit);
        return true;
    }
    int const start = cursor.index;
    cursor.take(u'-');
    cursor.takeWhile([](char16_t unit) { return !endsCoordinate(unit); });
    return AttributeTraits<SLength>::parse(out, cursor.since(start));
}

} // namespace

bool Point::parsePointList(Core::Vector<Point>& list, Core::String const& text) {
    return AttributeTraits<Core::Vector<Point>>::parse(list, text);
}

Core::String Point::getPointListValueAsString(Core::Vector<Point> const& list) {
    return AttributeTraits<Core::Vector<Point>>::print(list);
}

bool AttributeTraits<Core::Vector<Point>>::parse(Core::Vector<Point>& value, std::u16string_view text) {
    Core::Vector<Point> points;
    for (TextCursor cursor{text};; ++cursor.index) {
        cursor.skipSpace();
        Point point;
        bool const hasX = takeCoordinate(cursor, point.x);
        if (cursor.atEnd()) break;
        cursor.take(u',');
        cursor.skipSpace();
        if (!takeCoordinate(cursor, point.y) || !hasX) return false;
        points.push_back(point);
    }
    value = std::move(points);
    return true;
}

Core::String AttributeTraits<Core::Vector<Point>>::print(Core::Vector<Point> const& value) {
    Core::String text;
    for (Point const& point : value) {
        if (!text.empty()) text += u",";
        text += Core::Format::toShortest(point.x.pxSize());
        text += u" ";
        text += Core::Format::toShortest(point.y.pxSize());
    }
    return text;
}

} // namespace Xml
