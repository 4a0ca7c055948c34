// The start tag as it stands in the file, in which an attribute has a place of its own.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// Counted from 1; a column is a code point, a tab is one.
struct Place {
    std::uint64_t line = 1, column = 1;
    bool operator==(Place const&) const = default;
};

// A part of a tag as it is written, in UTF-8, with what stands before and after it on its lines in the tag. Lines
// are cut at 120 code points. Empty where the tag does not have the part, which comes from an entity or a default.
struct Excerpt {
    std::string before, part, after;
    Place begin, end; // the end is the place after the last character
};

// A well-formed start tag. Attributes are numbered in their order, declarations of namespaces left
// out. What comes from an entity or a default has no tag of its own; its place is that of the tag.
class RawTag {
public:
    RawTag() = default;
    // The text begins at the "<"; an empty one has nothing but its place.
    RawTag(std::u32string text, Place start);

    // As the tag has it, prefix included; empty for an empty text.
    std::string elementName() const;
    Place place() const { return start; }
    // The prefixes of the names in the tag, the element's first; declarations of namespaces left out.
    std::vector<std::string> prefixes() const;
    // Where the name of the attribute begins.
    Place attribute(std::size_t attribute) const;
    // Where the code point stands that `offset` bytes of the value's UTF-8 precede. Asking for
    // growing offsets takes time linear in the value. After an entity of the document's own, of
    // which only the value is known, it is the place of the attribute.
    Place inValue(std::size_t attribute, std::size_t offset);
    // Whether the value stands in the tag as the document means it: in characters of the tag and references to single
    // characters, with no other changes than those of white space to blanks.
    bool says(std::size_t attribute, std::string_view value) const;
    // Of a value that the tag says: how many code points of the tag precede what `offset` bytes of the value precede.
    std::size_t indexInValue(std::size_t attribute, std::size_t offset);
    // The marks around it.
    char32_t quoteOf(std::size_t attribute) const;
    std::u32string_view slice(std::size_t begin, std::size_t end) const {
        return std::u32string_view(text).substr(begin, end - begin);
    }
    // The name of the element, the name and the value of an attribute, and `length` bytes of a value's UTF-8 from
    // `offset` on.
    Excerpt excerptOfElement() const;
    Excerpt excerptOfName(std::size_t attribute) const;
    Excerpt excerptOfValue(std::size_t attribute) const;
    Excerpt excerptInValue(std::size_t attribute, std::size_t offset, std::size_t length);
    // Whether the tag has the attribute's text, with references to none but these entities and what
    // XML itself defines.
    bool refersOnlyTo(std::size_t attribute, std::set<std::string> const& entities) const;

private:
    struct Cursor {
        std::size_t index = 0;
        Place place;
    };
    struct Attribute {
        Cursor name, value;
        std::size_t nameEnd = 0, end = 0; // of the name and the value
    };

    bool atEnd(Cursor const& cursor) const { return cursor.index >= text.size(); }
    void advance(Cursor& cursor) const;
    template <class Belongs> void skip(Cursor& cursor, Belongs belongs) const;
    // Moves over one character of a value and tells it; 0 for an entity.
    char32_t takeOfValue(Cursor& cursor) const;
    // Moves `last` there; null after an entity of the document's own.
    Cursor const* seek(std::size_t attribute, std::size_t offset);
    Excerpt excerpt(Cursor const& begin, Cursor end, std::size_t index) const;

    std::u32string text;
    Place start;
    std::vector<Attribute> attributes;

    struct {
        std::size_t attribute = SIZE_MAX, offset = 0;
        Cursor cursor;
    } last;
};

} // namespace Command
