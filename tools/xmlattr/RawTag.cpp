#include "RawTag.h"

#include "Text.h"

namespace Command {

namespace {

bool isBlank(char32_t c) {
    return c == U' ' || c == U'\t' || c == U'\n' || c == U'\r';
}

std::string toUtf8(std::u32string_view text) {
    std::string out;
    for (char32_t const c : text) {
        std::size_t const length = utf8Length(c);
        constexpr unsigned char leads[] = {0, 0, 0xC0, 0xE0, 0xF0};
        out += static_cast<char>(leads[length] | c >> 6 * (length - 1));
        for (std::size_t i = length - 1; i-- > 0;) out += static_cast<char>(0x80 | (c >> 6 * i & 0x3F));
    }
    return out;
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

std::u32string decode(std::string_view bytes, ByteEncoding encoding) {
    std::u32string text;
    text.reserve(bytes.size());
    auto const byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(bytes[i])); };
    switch (encoding) {
    case ByteEncoding::SingleByte:
        // Which character a byte is does not matter to its place.
        for (std::size_t i = 0; i < bytes.size(); ++i) text += byte(i);
        break;
    case ByteEncoding::Utf8:
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            char32_t const unit = byte(i);
            if ((unit & 0xC0) != 0x80)
                text += unit < 0xC0 ? unit : unit < 0xE0 ? unit & 0x1F : unit < 0xF0 ? unit & 0x0F : unit & 0x07;
            else if (!text.empty())
                text.back() = text.back() << 6 | (unit & 0x3F);
        }
        break;
    case ByteEncoding::Utf16Big:
    case ByteEncoding::Utf16Little:
        std::size_t const high = encoding == ByteEncoding::Utf16Big ? 0 : 1;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
            char32_t const unit = byte(i + high) << 8 | byte(i + 1 - high);
            if (unit >= 0xDC00 && unit < 0xE000 && !text.empty())
                text.back() = 0x10000 + ((text.back() - 0xD800) << 10) + (unit - 0xDC00);
            else
                text += unit;
        }
        break;
    }
    return text;
}

RawTag::RawTag(std::u32string tag, Place place) : text(std::move(tag)), start(place) {
    if (!text.starts_with(U'<')) text.clear(); // the reference to an entity that holds the element
    Cursor cursor{0, start};
    auto const isName = [](char32_t c) { return !isBlank(c) && c != U'=' && c != U'/' && c != U'>'; };
    skip(cursor, isName);
    for (;;) {
        skip(cursor, [](char32_t c) { return isBlank(c) || c == U'/'; });
        if (atEnd(cursor) || text[cursor.index] == U'>') return;
        Attribute attribute;
        attribute.name = cursor;
        skip(cursor, isName);
        attribute.nameLength = cursor.index - attribute.name.index;
        skip(cursor, [](char32_t c) { return isBlank(c) || c == U'='; });
        if (atEnd(cursor)) return;
        char32_t const quote = text[cursor.index];
        advance(cursor);
        attribute.value = cursor;
        skip(cursor, [&](char32_t c) { return c != quote; });
        if (atEnd(cursor)) return;
        advance(cursor);
        std::u32string_view const name(text.data() + attribute.name.index, attribute.nameLength);
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
    while (end < text.size() && !isBlank(text[end]) && text[end] != U'/' && text[end] != U'>') ++end;
    return text.empty() ? std::string() : toUtf8(std::u32string_view(text).substr(1, end - 1));
}

std::string RawTag::attributeName(std::size_t attribute) const {
    if (attribute >= attributes.size()) return {};
    return toUtf8(std::u32string_view(text).substr(attributes[attribute].name.index, attributes[attribute].nameLength));
}

Place RawTag::attribute(std::size_t attribute) const {
    return attribute < attributes.size() ? attributes[attribute].name.place : start;
}

std::size_t RawTag::advanceInValue(Cursor& cursor) const {
    char32_t const c = text[cursor.index];
    if (c == U'\r' && cursor.index + 1 < text.size() && text[cursor.index + 1] == U'\n') advance(cursor);
    if (c != U'&') {
        advance(cursor);
        return utf8Length(c);
    }
    std::size_t const first = cursor.index + 1;
    skip(cursor, [](char32_t unit) { return unit != U';'; });
    char32_t const named = codePointOf(std::u32string_view(text).substr(first, cursor.index - first));
    if (!atEnd(cursor)) advance(cursor);
    return named == 0 ? 0 : utf8Length(named);
}

Place RawTag::inValue(std::size_t attribute, std::size_t offset) {
    if (attribute >= attributes.size()) return start;
    if (last.attribute != attribute || last.offset > offset) last = {attribute, 0, attributes[attribute].value};
    while (last.offset < offset && !atEnd(last.cursor)) {
        std::size_t const length = advanceInValue(last.cursor);
        if (length == 0) {
            last = {};
            return attributes[attribute].name.place;
        }
        last.offset += length;
    }
    return last.cursor.place;
}

} // namespace Command
