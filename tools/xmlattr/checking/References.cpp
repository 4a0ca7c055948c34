#include "checking/References.h"

#include "text/Text.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"
#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <utility>

namespace Command {

namespace {

std::uint64_t mixed(std::uint64_t hash) {
    hash ^= hash >> 32;
    hash *= 0x9E3779B97F4A7C15u;
    return hash ^ hash >> 29;
}

std::uint64_t hashOfId(std::string_view id) {
    return mixed(hashOf(id));
}

// Where an id stands: the document without its embedded drawings, one of these, or any of these.
constexpr std::uint64_t document = 0, anyDrawing = UINT64_MAX;

// Never 0.
std::uint64_t placed(std::uint64_t id, std::uint64_t where) {
    return mixed(id ^ mixed(where)) | 1;
}

// The id in a fragment of a URL, where "%20" is a blank.
std::string withoutEscapes(std::string_view fragment) {
    auto const digit = [&](std::size_t at) { return Core::hexDigit(static_cast<unsigned char>(fragment[at])); };
    std::string id;
    for (std::size_t i = 0; i < fragment.size(); ++i) {
        int const high = fragment[i] == '%' && i + 2 < fragment.size() ? digit(i + 1) : -1;
        int const low = high < 0 ? -1 : digit(i + 2);
        id += low < 0 ? fragment[i] : static_cast<char>(high * 16 + low);
        if (low >= 0) i += 2;
    }
    return id;
}

// svgView(...), xpointer(...) and the paths of web applications are no ids.
bool isIdOf(std::string_view id) {
    return !id.empty() && id.find_first_of("()/!?&=") == std::string_view::npos;
}

// The properties whose value refers to an element by url(#id). One that paints may go on with what to
// take when there is no such element.
enum class UrlUse : std::uint8_t { Refers, Paints };

constexpr Core::WordRow<UrlUse, char> urlProperties[] = {
    {"fill", UrlUse::Paints},       {"stroke", UrlUse::Paints},     {"clip-path", UrlUse::Refers},
    {"mask", UrlUse::Refers},       {"filter", UrlUse::Refers},     {"marker-start", UrlUse::Refers},
    {"marker-mid", UrlUse::Refers}, {"marker-end", UrlUse::Refers}, {"marker", UrlUse::Refers}};

std::optional<UrlUse> findUrlProperty(std::string_view name) {
    return Core::WordTable<urlProperties>::find(name);
}

} // namespace

std::size_t NumberSet::slotOf(std::uint64_t number) const {
    std::size_t slot = static_cast<std::size_t>(number >> 1) & (slots.size() - 1);
    while (slots[slot] != 0 && slots[slot] != number) slot = (slot + 1) & (slots.size() - 1);
    return slot;
}

bool NumberSet::contains(std::uint64_t number) const {
    return !slots.empty() && slots[slotOf(number)] == number;
}

bool NumberSet::add(std::uint64_t number) {
    if (2 * count >= slots.size()) {
        std::vector<std::uint64_t> const before =
            std::exchange(slots, std::vector<std::uint64_t>(std::max<std::size_t>(64, 2 * slots.size())));
        for (std::uint64_t const old : before)
            if (old != 0) slots[slotOf(old)] = old;
    }
    std::uint64_t& slot = slots[slotOf(number)];
    if (slot == number) return false;
    slot = number;
    ++count;
    return true;
}

struct References::Occurrence {
    XmlElement const& element;
    XmlHandler::Tag& tag;
    std::size_t number; // of the attribute in its tag
    std::string_view attribute;
    std::string_view text;

    ReferenceFault fault(ReferenceFault::Kind kind, std::string_view id) const {
        return {kind, tag.raw().attribute(number), nameInDocument(element.name, tag), std::string(attribute),
                std::string(id)};
    }
};

void References::startElement(XmlElement const& element, std::optional<Xml::Vocabulary> vocabulary,
                              XmlHandler::Tag& tag, Report const& report) {
    bool const isSvg = vocabulary == Xml::Vocabulary::Svg;
    if (element.depth == 0) isDrawing = isSvg;
    if (drawingDepth && element.depth <= *drawingDepth) drawingDepth.reset();
    if (isSvg && !isDrawing && !drawingDepth) {
        drawingDepth = element.depth;
        ++drawing;
    }
    isStylesheet = isStylesheet || element.space == xsltNamespace;
    if (element.space == xincludeNamespace || (isSvg && element.name == "script")) knowsAllIds = false;
    if (isStylesheet) return;

    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        auto const& [space, name, value] = element.attributes[i];
        Occurrence const occurrence{element, tag, i, name, value};
        if (space == xsltNamespace) {
            isStylesheet = true;
        } else if (space == xmlNamespace) {
            if (name == "base") knowsAllIds = false;
            bool const isAgain = std::ranges::any_of(element.attributes, [id = value](XmlAttributeText const& other) {
                return other.space.empty() && other.name == "id" && other.value == id;
            });
            if (name == "id" && !isAgain) addId({element, tag, i, "xml:id", value}, vocabulary ? report : Report());
        } else if (space == xlinkNamespace) {
            if (isSvg && name == "href") addFragment({element, tag, i, "xlink:href", value}, value);
        } else if (space.empty() && name == "id") {
            addId(occurrence, vocabulary ? report : Report());
        } else if (!space.empty() || !vocabulary) {
            continue;
        } else if (!isSvg) {
            if ((name == "ref-id" || name == "internal-destination") && !value.empty()) addReference(occurrence, value);
        } else if (name == "href") {
            addFragment(occurrence, value);
        } else if (name == "style") {
            addStyle(occurrence);
        } else if (value.find('#') != std::string_view::npos) {
            if (std::optional<UrlUse> const use = findUrlProperty(name))
                addUrls(occurrence, value, use == UrlUse::Paints);
        }
    }
}

// An id of a foreign element is no fault, and can be referred to.
void References::addId(Occurrence const& occurrence, Report const& report) {
    if (!occurrence.tag.isWhole(occurrence.number)) {
        knowsAllIds = false;
        return;
    }
    std::string_view const id = Xml::trimXmlSpace(occurrence.text);
    if (id.empty() || isFull) return;
    if (ids.size() + 2 > limits.ids) {
        isFull = true;
        return;
    }
    std::uint64_t const hash = hashOfId(id);
    if (drawingDepth) ids.add(placed(hash, anyDrawing));
    bool const isNew = ids.add(placed(hash, drawingDepth ? drawing : document));
    if (!isNew && report) report(occurrence.fault(ReferenceFault::DuplicateId, id));
}

bool References::isKnown(std::uint64_t id) const {
    return ids.contains(placed(id, document)) || ids.contains(placed(id, anyDrawing));
}

void References::addReference(Occurrence const& occurrence, std::string_view id) {
    id = Xml::trimXmlSpace(id);
    std::uint64_t const hash = hashOfId(id);
    if (id.empty() || !knowsAllIds || isFull || isKnown(hash)) return;
    if (!occurrence.tag.isWhole(occurrence.number)) return;
    if (pending.size() >= limits.pending || pendingBytes >= limits.pendingBytes) makeRoom();
    if (isFull) return;
    pending.push_back({hash, occurrence.fault(ReferenceFault::DanglingReference, id)});
    pendingBytes += pending.back().size();
}

// Forgets what has been found since. Half of the room must come free, so that the time stays linear.
void References::makeRoom() {
    std::erase_if(pending, [&](Pending const& reference) { return isKnown(reference.id); });
    pendingBytes = 0;
    for (Pending const& reference : pending) pendingBytes += reference.size();
    isFull = pending.size() > limits.pending / 2 || pendingBytes > limits.pendingBytes / 2;
}

void References::addFragment(Occurrence const& occurrence, std::string_view reference) {
    reference = Xml::trimXmlSpace(reference);
    if (!reference.starts_with('#')) return;
    std::string const id = withoutEscapes(reference.substr(1));
    // Links to "#top" are the habit of another language.
    bool const isTop = id == "top" && occurrence.element.name == "a";
    if (isIdOf(id) && !isTop) addReference(occurrence, id);
}

void References::addUrls(Occurrence const& occurrence, std::string_view text, bool mayFallBack) {
    for (std::size_t at = 0; (at = text.find('(', at)) != std::string_view::npos;) {
        bool const isUrl = at >= 3 && Xml::equalsNoCase(text.substr(at - 3, 3), "url");
        ++at;
        std::size_t const end = text.find(')', at);
        if (end == std::string_view::npos) return;
        std::string_view url = Xml::trimXmlSpace(text.substr(at, end - at));
        at = end + 1;
        if (!isUrl || (mayFallBack && !Xml::trimXmlSpaceStart(text.substr(at)).empty())) continue;
        bool const isQuoted =
            url.size() >= 2 && (url.front() == '"' || url.front() == '\'') && url.back() == url.front();
        addFragment(occurrence, isQuoted ? url.substr(1, url.size() - 2) : url);
    }
}

void References::addStyle(Occurrence const& occurrence) {
    if (occurrence.text.find('#') == std::string_view::npos || occurrence.text.find('(') == std::string_view::npos)
        return;
    std::string style(occurrence.text);
    Xml::blankComments(style);
    for (Xml::Declaration const& declaration : Xml::splitStyle(style)) {
        std::string const name = Xml::toLower(declaration.property);
        std::optional<UrlUse> const use = findUrlProperty(name);
        if (!use) continue;
        Occurrence const declared{occurrence.element, occurrence.tag, occurrence.number, name, declaration.value};
        addUrls(declared, declaration.value, use == UrlUse::Paints);
    }
}

void References::finish(Report const& report) {
    if (isStylesheet || !knowsAllIds || isFull) return;
    for (Pending const& reference : pending)
        if (!isKnown(reference.id)) report(reference.fault);
}

} // namespace Command
