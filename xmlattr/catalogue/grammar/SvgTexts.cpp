#include "xmlattr/catalogue/grammar/SvgTexts.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/core/Text.h"

namespace Xml {

namespace {

using Core::isLetter;

void skipXmlSpace(TextCursor& cursor) {
    cursor.takeWhile(Core::isXmlSpace);
}

// 02:30:03.5, 30:12 or 1.5 with h, min, s, ms or without a unit, which is seconds.
bool takeClockValue(TextCursor& cursor) {
    if (cursor.takeWhile(Core::isDigit).empty()) return false;
    bool isCount = true;
    for (int field = 1; field < 3 && cursor.take(u':'); ++field) {
        if (cursor.takeWhile(Core::isDigit).size() != 2) return false;
        isCount = false;
    }
    if (cursor.take(u'.') && cursor.takeWhile(Core::isDigit).empty()) return false;
    if (!isCount) return true;
    std::u16string_view const unit = cursor.takeWhile(isLetter);
    return unit.empty() || unit == u"h" || unit == u"min" || unit == u"s" || unit == u"ms";
}

bool takeSign(TextCursor& cursor) {
    skipXmlSpace(cursor);
    bool const isTaken = cursor.take(u'+') || cursor.take(u'-');
    skipXmlSpace(cursor);
    return isTaken;
}

// A time, or an event with a time after or before it. A name may have a "-" and a "." in it, so that "a.end-2s" is one
// too, which is legal either way.
bool takeTiming(TextCursor& cursor) {
    if (takeSign(cursor) || (!cursor.atEnd() && Core::isDigit(cursor.peek()))) return takeClockValue(cursor);
    auto const belongsToName = [](char16_t unit) {
        return isLetter(unit) || Core::isDigit(unit) || unit > 0x7F ||
               std::u16string_view(u"_-.:\\").find(unit) != std::u16string_view::npos;
    };
    std::u16string_view const name = cursor.takeWhile(belongsToName);
    if (name.empty()) return false;
    if (cursor.take(u'(')) {
        bool const isEvent = name.ends_with(u"repeat") || name.ends_with(u"accessKey") || name.ends_with(u"accesskey");
        bool const isFilled = !cursor.takeWhile([](char16_t unit) { return unit != u')'; }).empty();
        if ((!isEvent && name != u"wallclock") || !isFilled || !cursor.take(u')')) return false;
    }
    return !takeSign(cursor) || takeClockValue(cursor);
}

} // namespace

bool readTimingList(std::u16string_view text) {
    TextCursor cursor{text};
    do {
        skipXmlSpace(cursor);
        if (!takeTiming(cursor)) return false;
        skipXmlSpace(cursor);
    } while (cursor.take(u';'));
    return cursor.atEnd();
}

bool readUnicodeRange(std::u16string_view text) {
    TextCursor cursor{text};
    auto const isHexDigit = [](char16_t unit) { return Core::hexDigit(unit) >= 0; };
    if ((!cursor.take(u'U') && !cursor.take(u'u')) || !cursor.take(u'+')) return false;
    std::size_t const digits = cursor.takeWhile(isHexDigit).size();
    std::size_t const wildcards = cursor.takeWhile([](char16_t unit) { return unit == u'?'; }).size();
    if (digits + wildcards == 0 || digits + wildcards > 6) return false;
    if (wildcards == 0 && cursor.take(u'-')) {
        std::size_t const lastDigits = cursor.takeWhile(isHexDigit).size();
        if (lastDigits == 0 || lastDigits > 6) return false;
    }
    return cursor.atEnd();
}

} // namespace Xml
