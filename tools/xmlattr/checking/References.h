// Whether the ids of a document are unique, and whether what refers to an id of the same document finds it.
#pragma once

#include "xml/XmlReader.h"
#include "xmlattr/catalogue/Catalogue.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

struct ReferenceFault {
    enum Kind { DuplicateId, DanglingReference } kind;
    Place place;           // of the attribute
    std::string element;   // as the document names it
    std::string attribute; // as the catalogue writes it
    std::string text;      // the id
};

// Numbers, each at most once, in memory of at most 16 bytes for each.
class NumberSet {
public:
    // False when the set has it already.
    bool add(std::uint64_t number);
    bool contains(std::uint64_t number) const;
    std::size_t size() const { return count; }

private:
    std::size_t slotOf(std::uint64_t number) const;

    std::vector<std::uint64_t> slots; // 0 where nothing is; at most half full, their number a power of two
    std::size_t count = 0;
};

// Follows the elements of one document. It keeps a hash of each id, and of each reference to what has not
// been seen yet the place; of a document with more of either than it keeps, it reports no more.
//
// Nothing is said where a part of the document is unknown or made later: of stylesheets, of values that come from
// entities that are not read, of references where there is an xi:include, an xml:base, a script or an entity
// whose content is missing. Ids count in an embedded drawing by itself, since drawings are often put together
// from the same pieces; references look for them everywhere.
class References {
public:
    struct Limits {
        std::size_t ids = 1 << 20, pending = 1 << 16;
        std::size_t pendingBytes = 16 << 20; // of names and ids
    };

    References() = default;
    explicit References(Limits const& limits) : limits(limits) {}

    using Report = std::function<void(ReferenceFault const& fault)>;

    // Reports ids that stand in the document already. The vocabulary is that in which the element is checked.
    void startElement(XmlElement const& element, std::optional<Xml::Vocabulary> vocabulary, XmlHandler::Tag& tag,
                      Report const& report);
    void missingContent() { knowsAllIds = false; }
    // Reports, at the end of the document, the references that found nothing, in their order.
    void finish(Report const& report);

private:
    struct Pending {
        std::uint64_t id;
        ReferenceFault fault;

        std::size_t size() const { return fault.element.size() + fault.attribute.size() + fault.text.size(); }
    };
    struct Occurrence;

    void addId(Occurrence const& occurrence, Report const& report);
    void addReference(Occurrence const& occurrence, std::string_view id);
    void addUrls(Occurrence const& occurrence, std::string_view text, bool mayFallBack);
    void addFragment(Occurrence const& occurrence, std::string_view reference);
    void addStyle(Occurrence const& occurrence);
    void makeRoom();
    bool isKnown(std::uint64_t id) const;

    Limits limits;
    NumberSet ids;
    std::vector<Pending> pending;
    std::size_t pendingBytes = 0;
    bool isStylesheet = false, knowsAllIds = true, isFull = false;
    bool isDrawing = false;          // the document as a whole
    std::optional<int> drawingDepth; // of the outermost element of an embedded drawing
    std::uint64_t drawing = 0;       // its number
};

} // namespace Command
