#include "xml/TextValues.h"

#include "xmlattr/catalogue/text/Words.h"

#include <utility>

namespace Command {

namespace {

constexpr std::size_t maxText = 64 << 10;

} // namespace

TextValues::Role TextValues::roleIn(Role parent, XmlElement const& element) {
    if (element.space != xsltNamespace) return Role::Other;
    switch (parent) {
    case Role::Sequence:
        if (element.name == "text") return Role::Text;
        if (element.name == "choose") return Role::Choice;
        return element.name == "if" ? Role::Sequence : Role::Other;
    case Role::Choice: return element.name == "when" || element.name == "otherwise" ? Role::Sequence : Role::Other;
    case Role::Text:
    case Role::Other: break;
    }
    return Role::Other;
}

void TextValues::startElement(XmlElement const& element) {
    endNode();
    if (element.space != xsltNamespace) holdsResults = true;
    Open& parent = open.back();
    Role const role = roleIn(parent.role, element);
    bool const isInstruction = parent.role == Role::Sequence && role != Role::Text;
    if (isInstruction) {
        bool const isAlone = parent.content == Content::Nothing && role != Role::Other;
        parent.content = isAlone ? Content::Branches : Content::More;
    }
    open.push_back({role, found.size()});
}

void TextValues::text(std::string_view piece, Place place, std::optional<std::uint64_t> bytes) {
    size += piece.size();
    if (size > maxText) return;
    if (node.empty() || !bytes) nodeBytes = bytes;
    std::size_t const blanks = piece.size() - Xml::trimXmlSpaceStart(piece).size();
    if (!nodePlace && blanks < piece.size()) nodePlace = Place{place.line, place.column + blanks};
    node += piece;
}

// White space between two tags is no text, but for that of an xsl:text.
void TextValues::endNode() {
    bool const isMarked = open.back().role == Role::Text;
    Open& holder = isMarked ? open[open.size() - 2] : open.back();
    if (holder.role == Role::Sequence && (nodePlace || (isMarked && !node.empty()))) {
        bool const isAlone = holder.content == Content::Nothing || holder.content == Content::Text;
        holder.bytes = holder.text.empty() ? nodeBytes : std::nullopt;
        holder.content = isAlone ? Content::Text : Content::More;
        holder.text += node;
        if (!holder.place) holder.place = nodePlace;
    }
    node.clear();
    nodePlace.reset();
}

bool TextValues::endElement(Place place) {
    endNode();
    Open ended = std::move(open.back());
    open.pop_back();
    bool const isEmpty = open.empty() && ended.content == Content::Nothing; // the element itself, and not a branch
    if (ended.content == Content::Text || isEmpty)
        found.push_back({std::move(ended.text), ended.place.value_or(place), ended.bytes});
    else if (ended.content == Content::More)
        found.resize(ended.before);
    if (open.empty() && (size > maxText || holdsResults)) found.clear();
    return !open.empty();
}

} // namespace Command
