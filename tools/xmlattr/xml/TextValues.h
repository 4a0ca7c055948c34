// The texts that an instruction of a stylesheet can come to hold.
#pragma once

#include "xml/XmlReader.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// Follows what stands in an element, such as an xsl:attribute. A text is one of its values when it is
// all that the element holds, or all that a branch holds of an xsl:choose or xsl:if that is itself all that stands
// there. What has another instruction beside it is but a part of a value, and is not told.
class TextValues {
public:
    struct Value {
        std::string text;
        Place place; // of the first character that is no white space; of the end when there is none
        std::optional<std::uint64_t> bytes{}; // where it begins when it stands there in one piece
    };

    void startElement(XmlElement const& element);
    // A piece of text; a line end comes alone. `bytes` says where it stands when it follows the tag or the piece before
    // it at once, character by character.
    void text(std::string_view piece, Place place, std::optional<std::uint64_t> bytes = {});
    // False when it is the end of the element itself, after which its values are known.
    bool endElement(Place place);

    // In the order of the document; none when there is more than 64 KiB of text or an element of the result.
    std::vector<Value> const& values() const { return found; }

private:
    enum class Role : std::uint8_t {
        Sequence, // the element itself, an xsl:if or a branch of an xsl:choose
        Choice,   // an xsl:choose
        Text,     // an xsl:text
        Other     // whose text is known only when the stylesheet runs
    };
    // What a sequence has; the branches are those of a single instruction.
    enum class Content : std::uint8_t { Nothing, Text, Branches, More };

    struct Open {
        Role role;
        std::size_t before; // how many values were found before it
        // Of a sequence.
        Content content = Content::Nothing;
        std::string text{};
        std::optional<Place> place{};
        std::optional<std::uint64_t> bytes{};
    };

    static Role roleIn(Role parent, XmlElement const& element);
    void endNode();

    std::vector<Open> open{{Role::Sequence, 0}};
    std::string node; // the text since the last tag
    std::optional<Place> nodePlace;
    std::optional<std::uint64_t> nodeBytes;
    std::size_t size = 0;      // of all text
    bool holdsResults = false; // elements that are no instructions
    std::vector<Value> found;
};

} // namespace Command
