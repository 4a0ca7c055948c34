// Reads an XML document once, from its first byte to its last, without ever holding more of it than
// the tag at hand. The only face of the XML parser in the command.
#pragma once

#include "bytes/ByteSource.h"
#include "xml/Encoding.h"
#include "xml/Namespaces.h"
#include "xml/RawTag.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
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
    Namespaces const& namespaces;                 // in scope
};

// All that an element of a stylesheet holds, or may hold by one of its branches: TextValues.h tells what that is.
struct XmlText {
    std::string_view text; // UTF-8
    Place place;           // of the first character that is no white space; of the end when there is none
    bool isWhole;          // false when an entity that is not read left something out
    // Where the text begins, when it stands in the document character by character and in one piece.
    std::optional<BytePlace> bytes;
};

// What tells everything about a tag.
struct TagSource {
    std::string_view bytes; // as the document has them; none inside of an entity
    BytePlace begin;
    Place place;
    // Where a part of the DTD is not read, those of which all is known, until the reader reads another document.
    std::set<std::string> const* entities;
};

class XmlHandler {
public:
    virtual ~XmlHandler() = default;
    // Gives the tag of the element at hand, for its places; read only when asked for.
    class Tag {
    public:
        RawTag& raw();
        // Whether the text of the attribute is all that the document says: nothing is left in the
        // place of an entity whose declaration, in a part of the DTD that is not read, is unknown.
        bool isWhole(std::size_t attribute);
        // Where the tag begins.
        BytePlace bytes() { return source().begin; }
        virtual TagSource source() = 0;

    protected:
        ~Tag() = default;
        // From now on another tag is at hand.
        void renew();

    private:
        bool isRead = false;
        RawTag tag;
        struct {
            std::size_t attribute = SIZE_MAX;
            bool isWhole = false;
        } last;
    };
    virtual void startElement(XmlElement const& element, Tag& tag) = 0;

    // Asked after the start of an element whether text() shall tell what it holds.
    virtual bool wantsText(XmlElement const& element) {
        (void)element;
        return false;
    }
    // Called at the end of an element whose text is wanted, once for each text that it may hold.
    virtual void text(XmlText const& text) { (void)text; }

    // Called when the content of an entity that is not read is missing: there may be elements in it.
    virtual void missingContent() {}
};

// The name of the element at hand as the document has it, prefix included; the local one where an entity has the tag.
std::string nameInDocument(std::string_view local, XmlHandler::Tag& tag);

// Why a document was not read to its end, or what else could not be done.
struct XmlFailure {
    std::string_view id; // for --explain: "malformed", say
    std::string message;
    std::optional<Place> place;
};

// Hands each element of an open document to the handler. It may be in UTF-8, UTF-16, ISO-8859-1, US-ASCII or
// windows-1252, or in any encoding that the machine's iconv knows, and compressed with gzip. No external entity
// is ever read. There is a limit to how far entities and compressed files may expand, how deep elements nest and
// how long one tag is; memory is bounded by the longest tag.
std::optional<XmlFailure> readXml(ByteSource& source, XmlHandler& handler);

// Reads many documents, as readXml() does, in memory that is used again.
class XmlReader {
public:
    XmlReader();
    ~XmlReader();
    std::optional<XmlFailure> read(ByteSource& source, XmlHandler& handler);

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace Command
