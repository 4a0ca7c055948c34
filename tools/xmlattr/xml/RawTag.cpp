#include "xml/RawTag.h"

#include "text/Text.h"
#include "xml/Encoding.h"
#include "xmlattr/catalogue/text/Words.h"

namespace Command {

namespace {

std::string toUtf8(std::u32string_view text) {
    return encode(text, ByteEncoding::Utf8);
}

// The code point of "#10", "#xA" and the five names that XML has; 0 for other entities.
char32_t codePointOf(std::u32string_view entity) {
    constexpr std::pair<std::u32string_view, char32_t> names[] = {
        {U"lt", U'<'}, {U"gt", U'>'}, {U"amp", U'&'}, {U"quot", U'"'}, {U"apos", U'\''}};
    for (auto const& [name, c] : names)
        if (entity == name) return c;
    if (!entity.starts_with(U'#')) return 0;
    bool const isHex = entity.starts_with(U"#x");
    char32_t c = 0;
    for (char32_t const digit : entity.substr(isHex ? 2 : 1))
        c = isHex ? c * 16 + (digit <= U'9' ? digit - U'0' : (digit | 0x20) - U'a' + 10) : c * 10 + (digit - U'0');
    return c;
}

} // namespace

RawTag::RawTag(std::u32string tag, Place place) : text(std::move(tag)), start(place) {
    if (!text.starts_with(U'<')) text.clear(); // the reference to an entity that holds the element
    Cursor cursor{0, start};
    auto const isName = [](char32_t c) { return !Xml::isXmlSpace(c) && c != U'=' && c != U'/' && c != U'>'; };
    skip(cursor, isName);
    for (;;) {
        skip(cursor, [](char32_t c) { return Xml::isXmlSpace(c) || c == U'/'; });
        if (atEnd(cursor) || text[cursor.index] == U'>') return;
        Attribute attribute;
        attribute.name = cursor;
        skip(cursor, isName);
        attribute.nameEnd = cursor.index;
        skip(cursor, [](char32_t c) { return Xml::isXmlSpace(c) || c == U'='; });
        if (atEnd(cursor)) return;
        char32_t const quote = text[cursor.index];
        advance(cursor);
        attribute.value = cursor;
        skip(cursor, [&](char32_t c) { return c != quote; });
        if (atEnd(cursor)) return;
        attribute.end = cursor.index;
        advance(cursor);
        std::u32string_view const name = slice(attribute.name.index, attribute.nameEnd);
        if (name != U"xmlns" && !name.starts_with(U"xmlns:")) attributes.push_back(attribute);
    }
}

void RawTag::advance(Cursor& cursor) const {
    char32_t const c = text[cursor.index++];
    if (c == U'\r' && !atEnd(cursor) && text[cursor.index] == U'\n') return;
    if (c == U'\n' || c == U'\r')
        cursor.place = {cursor.place.line + 1, 1};
    else
        ++cursor.place.column;
}

template <class Belongs> void RawTag::skip(Cursor& cursor, Belongs belongs) const {
    while (!atEnd(cursor) && belongs(text[cursor.index])) advance(cursor);
}

std::string RawTag::elementName() const {
    std::size_t end = 1;
    while (end < text.size() && !Xml::isXmlSpace(text[end]) && text[end] != U'/' && text[end] != U'>') ++end;
    return text.empty() ? std::string() : toUtf8(slice(1, end));
}

std::vector<std::string> RawTag::prefixes() const {
    std::vector<std::string> all;
    auto const add = [&](std::string const& name) {
        if (std::size_t const colon = name.find(':'); colon != std::string::npos) all.push_back(name.substr(0, colon));
    };
    add(elementName());
    for (Attribute const& attribute : attributes) add(toUtf8(slice(attribute.name.index, attribute.nameEnd)));
    return all;
}

Place RawTag::attribute(std::size_t attribute) const {
    return attribute < attributes.size() ? attributes[attribute].name.place : start;
}

char32_t RawTag::takeOfValue(Cursor& cursor) const {
    char32_t const c = text[cursor.index];
    if (c == U'\r' && cursor.index + 1 < text.size() && text[cursor.index + 1] == U'\n') advance(cursor);
    if (c != U'&') {
        advance(cursor);
        return Xml::isXmlSpace(c) ? U' ' : c;
    }
    std::size_t const first = cursor.index + 1;
    skip(cursor, [](char32_t unit) { return unit != U';'; });
    char32_t const named = codePointOf(std::u32string_view(text).substr(first, cursor.index - first));
    if (!atEnd(cursor)) advance(cursor);
    return named;
}

RawTag::Cursor const* RawTag::seek(std::size_t attribute, std::size_t offset) {
    if (last.attribute != attribute || last.offset > offset) last = {attribute, 0, attributes[attribute].value};
    while (last.offset < offset && !atEnd(last.cursor)) {
        char32_t const c = takeOfValue(last.cursor);
        if (c == 0) {
            last = {};
            return nullptr;
        }
        last.offset += utf8Length(c);
    }
    return &last.cursor;
}

Place RawTag::inValue(std::size_t attribute, std::size_t offset) {
    if (attribute >= attributes.size()) return start;
    Cursor const* const cursor = seek(attribute, offset);
    return cursor ? cursor->place : attributes[attribute].name.place;
}

std::size_t RawTag::indexInValue(std::size_t attribute, std::size_t offset) {
    return seek(attribute, offset)->index;
}

char32_t RawTag::quoteOf(std::size_t attribute) const {
    return text[attributes[attribute].end];
}

bool RawTag::says(std::size_t attribute, std::string_view value) const {
    if (attribute >= attributes.size()) return false;
    Cursor cursor = attributes[attribute].value;
    for (char32_t const c : decode(value, ByteEncoding::Utf8))
        if (cursor.index >= attributes[attribute].end || takeOfValue(cursor) != c) return false;
    return cursor.index == attributes[attribute].end;
}

// From one cursor to the index, which is reached from the other.
Excerpt RawTag::excerpt(Cursor const& begin, Cursor end, std::size_t index) const {
    while (end.index < index) advance(end);
    constexpr std::size_t most = 120;
    auto const isLineEnd = [](char32_t c) { return c == U'\n' || c == U'\r'; };
    std::size_t first = begin.index, after = end.index;
    while (first > 0 && begin.index - first < most && !isLineEnd(text[first - 1])) --first;
    while (after < text.size() && after - end.index < most && !isLineEnd(text[after])) ++after;
    return {toUtf8(slice(first, begin.index)), toUtf8(slice(begin.index, end.index)), toUtf8(slice(end.index, after)),
            begin.place, end.place};
}

Excerpt RawTag::excerptOfElement() const {
    if (text.empty()) return {};
    Cursor begin{0, start};
    advance(begin);
    Cursor end = begin;
    skip(end, [](char32_t c) { return !Xml::isXmlSpace(c) && c != U'/' && c != U'>'; });
    return excerpt(begin, end, end.index);
}

Excerpt RawTag::excerptOfName(std::size_t attribute) const {
    if (attribute >= attributes.size()) return {};
    Attribute const& at = attributes[attribute];
    return excerpt(at.name, at.name, at.nameEnd);
}

Excerpt RawTag::excerptOfValue(std::size_t attribute) const {
    if (attribute >= attributes.size()) return {};
    Attribute const& at = attributes[attribute];
    return excerpt(at.value, at.value, at.end);
}

Excerpt RawTag::excerptInValue(std::size_t attribute, std::size_t offset, std::size_t length) {
    if (attribute >= attributes.size() || !seek(attribute, offset)) return {};
    auto const begin = last;
    Cursor const* const end = seek(attribute, offset + length);
    std::size_t const index = end ? end->index : 0;
    last = begin; // what is asked for next stands after the beginning, and often before the end
    return end ? excerpt(begin.cursor, begin.cursor, index) : Excerpt();
}

bool RawTag::refersOnlyTo(std::size_t attribute, std::set<std::string> const& entities) const {
    if (attribute >= attributes.size()) return false;
    for (auto rest = slice(attributes[attribute].value.index, attributes[attribute].end);;) {
        std::size_t const reference = rest.find(U'&');
        if (reference == std::u32string_view::npos) return true;
        rest.remove_prefix(reference + 1);
        std::u32string_view const entity = rest.substr(0, rest.find(U';'));
        if (codePointOf(entity) == 0 && !entities.contains(toUtf8(entity))) return false;
    }
}

} // namespace Command
