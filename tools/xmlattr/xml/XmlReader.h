// Reads an XML document once, from its first byte to its last, without ever holding more of it than
// the tag at hand. The only face of the XML parser in the command.
#pragma once

#include "xml/RawTag.h"

#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Command {

// Names are local, with the name of their namespace beside them; texts are UTF-8.
struct XmlAttributeText {
    std::string_view space, name, value;
};

struct XmlElement {
    std::string_view space, name;
    std::span<XmlAttributeText const> attributes; // without the declarations of namespaces
    int depth;                                    // 0 for the root
};

class XmlHandler {
public:
    virtual ~XmlHandler() = default;
    // Gives the tag of the element at hand, for its places; read only when asked for.
    class Tag {
    public:
        virtual RawTag& raw() = 0;
        // Whether the text of the attribute is all that the document says: nothing is left in the
        // place of an entity whose declaration, in a part of the DTD that is not read, is unknown.
        virtual bool isWhole(std::size_t attribute) = 0;

    protected:
        ~Tag() = default;
    };
    virtual void startElement(XmlElement const& element, Tag& tag) = 0;
};

// Why a document was not read to its end.
struct XmlFailure {
    std::string_view id; // "malformed", "encoding", "limit" or "unreadable"
    std::string message;
    std::optional<Place> place;
};

// Hands each element of an open file to the handler. The file may be in UTF-8, UTF-16, ISO-8859-1,
// US-ASCII or windows-1252. No external entity is ever read. There is a limit to how far entities
// may expand, how deep elements nest and how long one tag is; memory is bounded by the longest tag.
std::optional<XmlFailure> readXml(std::FILE* file, XmlHandler& handler);

} // namespace Command
