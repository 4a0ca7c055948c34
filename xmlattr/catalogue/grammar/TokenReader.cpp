#include "xmlattr/catalogue/grammar/TokenReader.h"

#include "xmlattr/catalogue/grammar/SvgLists.h"
#include "xmlattr/catalogue/grammar/SvgTexts.h"
#include "xmlattr/catalogue/grammar/UnitWords.h"
#include "xmlattr/core/NumberReader.h"

#include <algorithm>
#include <cfloat>

namespace Xml {

namespace {

using Core::isLetter;

bool isLetters(std::u16string_view text, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most && std::ranges::all_of(text, isLetter);
}

// An NCName. Beyond ASCII nearly every character is a letter, and the few that are not do not matter.
bool isName(std::u16string_view text) {
    auto const begins = [](char16_t unit) { return isLetter(unit) || unit == u'_' || unit >= u'\u00C0'; };
    auto const continues = [&](char16_t unit) {
        return begins(unit) || Core::isDigit(unit) || unit == u'-' || unit == u'.' || unit == u'\u00B7';
    };
    return !text.empty() && begins(text[0]) && std::ranges::all_of(text, continues);
}

// A tag: letters, then parts of letters and digits, each of one to eight.
bool isLanguage(std::u16string_view text) {
    for (bool isFirst = true;; isFirst = false) {
        std::u16string_view const part = text.substr(0, text.find(u'-'));
        auto const belongs = [&](char16_t unit) { return isLetter(unit) || (!isFirst && Core::isDigit(unit)); };
        if (part.empty() || part.size() > 8 || !std::ranges::all_of(part, belongs)) return false;
        if (part.size() == text.size()) return true;
        text.remove_prefix(part.size() + 1);
    }
}

// The letters or the "%" at the cursor.
std::u16string_view takeUnit(ValueCursor& cursor) {
    std::size_t const first = cursor.index;
    if (!cursor.take(u'%'))
        while (isLetter(cursor.peek())) ++cursor.index;
    return cursor.text.substr(first, cursor.index - first);
}

// Whether numbers of this kind may have the unit, which may be empty.
bool takesUnit(ItemKind kind, Item const& item, Dialect dialect) {
    bool const mayBeBare = dialect != Dialect::Fo || item.number == 0;
    if (item.unit.empty()) {
        bool const isScaled = kind == ItemKind::Percentage || kind == ItemKind::Time || kind == ItemKind::Frequency;
        return kind == ItemKind::Length || kind == ItemKind::Angle ? mayBeBare : !isScaled;
    }
    bool const ignoresCase = dialect == Dialect::SvgStyle || kind == ItemKind::Frequency;
    auto const unit = ignoresCase ? Core::WordTable<unitWords, Core::Case::Any>::find(item.unit)
                                  : Core::WordTable<unitWords>::find(item.unit);
    return unit == kind;
}

bool readMeasure(Item& item, ItemKind kind, GrammarStep const& step, ValueCursor& cursor) {
    bool isInteger = false;
    if (!readNumber(item.number, cursor, &isInteger)) return false;
    item.kind = kind;
    item.unit = takeUnit(cursor);
    // In a list the next number may follow at once, where it begins with a sign or a point.
    bool const ends =
        cursor.atBoundary() || (step.separated && item.unit.empty() &&
                                std::u16string_view(u"+-.").find(cursor.peek()) != std::u16string_view::npos);
    return ends && takesUnit(kind, item, cursor.dialect) && (step.token != Token::Integer || isInteger) &&
           cursor.allows(step, item.number);
}

// Two or three numbers with colons between them, of two digits but the first, or one with its unit; always held in
// seconds.
bool readClockValue(Item& item, ValueCursor& cursor) {
    float parts[3] = {};
    int count = 0;
    do {
        bool const hasTwoDigits = Core::isDigit(cursor.peek(1)) && !Core::isDigit(cursor.peek(2));
        if (count == 3 || (count > 0 && !hasTwoDigits)) return false;
        if (!Core::isDigit(cursor.peek()) || !readNumber(parts[count], cursor)) return false;
        ++count;
    } while (cursor.take(u':'));
    std::u16string_view const unit = takeUnit(cursor);
    item.kind = ItemKind::Time;
    if (count > 1) {
        if (!unit.empty() || parts[count - 1] >= 60 || (count == 3 && parts[1] >= 60)) return false;
        item.number = count == 3 ? (parts[0] * 60 + parts[1]) * 60 + parts[2] : parts[0] * 60 + parts[1];
    } else if (unit.empty() || unit == u"s") {
        item.number = parts[0];
    } else if (unit == u"ms") {
        item.number = parts[0] / 1000;
    } else if (unit == u"min") {
        item.number = parts[0] * 60;
    } else if (unit == u"h") {
        item.number = parts[0] * 3600;
    } else {
        return false;
    }
    return cursor.atBoundary();
}

bool readString(Item& item, ValueCursor& cursor) {
    char16_t const quote = cursor.peek();
    if (quote != u'"' && quote != u'\'') return false;
    std::size_t const first = ++cursor.index, end = cursor.text.find(quote, first);
    if (end == std::u16string_view::npos) return false;
    cursor.index = end + 1;
    item.text = cursor.text.substr(first, end - first);
    return cursor.atBoundary();
}

// Parentheses within the reference go in pairs.
bool readCalledUri(Item& item, ValueCursor& cursor) {
    cursor.skipSpace();
    if (cursor.peek() == u'"' || cursor.peek() == u'\'') {
        if (!readString(item, cursor)) return false;
        cursor.skipSpace();
        return cursor.take(u')');
    }
    std::size_t const first = cursor.index;
    int depth = 0;
    for (; !cursor.atEnd() && !isXmlSpace(cursor.peek()); ++cursor.index) {
        char16_t const unit = cursor.peek();
        if (unit == u'"' || unit == u'\'') return false;
        if (unit == u'(') ++depth;
        if (unit == u')' && depth-- == 0) break;
    }
    item.text = cursor.text.substr(first, cursor.index - first);
    cursor.skipSpace();
    return cursor.take(u')');
}

bool readUri(Item& item, ValueCursor& cursor) {
    item.kind = ItemKind::Uri;
    return cursor.takeWord("url(") && readCalledUri(item, cursor) && cursor.atBoundary();
}

// Only the contents of a data URI may have line breaks and blanks in them, as they have where they are wrapped.
bool readReference(Item& item, ValueCursor& cursor) {
    item.kind = ItemKind::Uri;
    std::size_t const first = cursor.index;
    bool const isData = cursor.takeWord("data:");
    while (!cursor.atEnd() && (isData || !isXmlSpace(cursor.peek()))) ++cursor.index;
    item.text = trimXmlSpace(cursor.text.substr(first, cursor.index - first));
    return !item.text.empty() && item.text.find_first_of(u"\"<>{}") == std::u16string_view::npos &&
           !equalsWord(item.text.substr(0, 4), "url(", true);
}

bool readFamilyName(Item& item, ValueCursor& cursor) {
    if (cursor.peek() == u'"' || cursor.peek() == u'\'') return readString(item, cursor);
    std::size_t const first = cursor.index;
    while (!cursor.atEnd() && std::u16string_view(u",;/()\"'").find(cursor.peek()) == std::u16string_view::npos)
        ++cursor.index;
    item.text = trimXmlSpace(cursor.text.substr(first, cursor.index - first));
    bool const isInherit = equalsWord(item.text, "inherit", cursor.dialect != Dialect::Fo);
    return !item.text.empty() && !isInherit && (cursor.atEnd() || cursor.peek() == u',');
}

// White space alone is a character too, which the cursor has skipped.
bool readCharacter(Item& item, ValueCursor& cursor) {
    if (cursor.atEnd()) {
        item.text = cursor.text;
        return cursor.text.size() == 1;
    }
    bool const isPair = (cursor.peek() & 0xFC00) == 0xD800 && (cursor.peek(1) & 0xFC00) == 0xDC00;
    item.text = cursor.text.substr(cursor.index, isPair ? 2 : 1);
    cursor.index += item.text.size();
    return true;
}

template <class Fits> bool readRun(Item& item, ValueCursor& cursor, Fits fits) {
    item.text = cursor.takeRun();
    return fits(item.text);
}

bool readRest(Item& item, ValueCursor& cursor) {
    item.text = trimXmlSpace(cursor.rest());
    cursor.index = cursor.text.size();
    return true;
}

// A media type, or the prefix of a namespace, which the default one does not have.
bool readContentType(Item& item, ValueCursor& cursor) {
    if (cursor.takeWord("namespace-prefix:")) return cursor.atBoundary() || readRun(item, cursor, isName);
    return cursor.takeWord("content-type:") && readRest(item, cursor) &&
           item.text.find(u'/') != std::u16string_view::npos;
}

} // namespace

bool readNumber(float& number, ValueCursor& cursor, bool* isInteger) {
    std::size_t const first = cursor.index;
    auto const skipDigits = [&] {
        std::size_t const before = cursor.index;
        while (Core::isDigit(cursor.peek())) ++cursor.index;
        return cursor.index > before;
    };
    if (!cursor.take(u'-')) cursor.take(u'+');
    bool const hasDigits = skipDigits();
    bool const isFraction = cursor.peek() == u'.' && Core::isDigit(cursor.peek(1));
    if (!hasDigits && !isFraction) return false;
    if (isFraction) {
        ++cursor.index;
        skipDigits();
    }
    bool hasExponent = false;
    if (cursor.dialect == Dialect::SvgAttribute && (cursor.peek() == u'e' || cursor.peek() == u'E')) {
        bool const isSigned = cursor.peek(1) == u'+' || cursor.peek(1) == u'-';
        hasExponent = Core::isDigit(cursor.peek(isSigned ? 2 : 1));
        if (hasExponent) {
            cursor.index += isSigned ? 2 : 1;
            skipDigits();
        }
    }
    if (isInteger) *isInteger = !isFraction && !hasExponent;
    std::u16string_view const text = cursor.text.substr(first, cursor.index - first);
    char16_t const* const end = text.data() + text.size();
    if (!hasExponent && Core::scanPlain(text.data(), end, number) == end) return true;
    // A number beyond every float is as large as one can be.
    if (!Core::toFloat(Core::scanDecimal(text), number)) number = text[0] == u'-' ? -FLT_MAX : FLT_MAX;
    return true;
}

bool readValue(Item& item, GrammarStep const& step, ValueCursor& cursor) {
    item = {.kind = ItemKind::Text};
    switch (step.token) {
    case Token::Number:
    case Token::Integer: return readMeasure(item, ItemKind::Number, step, cursor);
    case Token::Length: return readMeasure(item, ItemKind::Length, step, cursor);
    case Token::Percentage: return readMeasure(item, ItemKind::Percentage, step, cursor);
    case Token::Angle: return readMeasure(item, ItemKind::Angle, step, cursor);
    case Token::Time: return readMeasure(item, ItemKind::Time, step, cursor);
    case Token::Frequency: return readMeasure(item, ItemKind::Frequency, step, cursor);
    case Token::ClockValue: return readClockValue(item, cursor) && cursor.allows(step, item.number);
    case Token::Color: return readColor(item, cursor) && cursor.atBoundary();
    case Token::Uri: return readUri(item, cursor);
    case Token::Reference: return readReference(item, cursor);
    case Token::String: return readString(item, cursor);
    case Token::Name:
    case Token::Id:
    case Token::IdRef: return readRun(item, cursor, isName);
    case Token::Language: return readRun(item, cursor, isLanguage);
    case Token::Country: return readRun(item, cursor, [](auto text) { return isLetters(text, 2, 3); });
    case Token::Script: return readRun(item, cursor, [](auto text) { return isLetters(text, 4, 4); });
    case Token::Character: return readCharacter(item, cursor);
    case Token::FamilyName: return readFamilyName(item, cursor);
    case Token::UnicodeRange: return readRun(item, cursor, readUnicodeRange);
    case Token::ContentType: return readContentType(item, cursor);
    case Token::Iri: item.kind = ItemKind::Uri; return readRest(item, cursor);
    case Token::Text: return readRest(item, cursor);
    case Token::Empty: return cursor.atEnd();
    case Token::PathData: return readPathData(cursor.rest()) && readRest(item, cursor);
    case Token::Points: return readPoints(cursor.rest()) && readRest(item, cursor);
    case Token::TransformList: return readTransformList(cursor.rest()) && readRest(item, cursor);
    case Token::TimingList: return readTimingList(cursor.rest()) && readRest(item, cursor);
    }
    return false;
}

} // namespace Xml
