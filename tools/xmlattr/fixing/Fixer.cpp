#include "fixing/Fixer.h"

#include "xml/Encoding.h"

#include <utility>

namespace Command {

namespace {

constexpr std::string_view inEntity = "the value comes out of an entity";
constexpr std::string_view inTemplate = "the value is a template with doubled braces";
constexpr std::string_view inPieces = "the text of the element is not in one piece, or has references";
constexpr std::string_view withComment = "there is a comment in the value";
constexpr std::string_view withoutPlaces = "the file is in an encoding in which nothing is rewritten";
constexpr std::string_view afterOthers = "what stands after the value has been rewritten already";

bool isOfValue(Fault fault) {
    switch (fault) {
    case Fault::BadValue:
    case Fault::BadWord:
    case Fault::Misread:
    case Fault::Lenient:
    case Fault::Negative:
    case Fault::NewerValue: return true;
    case Fault::UnknownAttribute:
    case Fault::UnknownElement:
    case Fault::MisplacedAttribute:
    case Fault::DuplicateId:
    case Fault::DanglingReference:
    case Fault::PassedOver:
    case Fault::NotCovered: return false;
    }
    return false;
}

// As an XML document has the text, in a value between these quotes.
std::string written(std::u32string_view text, char32_t quote, ByteEncoding encoding) {
    bool const hasAll = encoding != ByteEncoding::Latin1 && encoding != ByteEncoding::Windows1252;
    std::u32string escaped;
    for (char32_t const c : text) {
        bool const isMarkup = c == U'&' || c == U'<' || c == U'>' || c == quote;
        if (!isMarkup && c >= U' ' && (c < 0x7F || hasAll)) {
            escaped += c;
            continue;
        }
        std::string const number = std::to_string(static_cast<std::uint32_t>(c));
        escaped.append(U"&#").append(number.begin(), number.end()) += U';';
    }
    return encode(escaped, encoding);
}

} // namespace

Fixer::Fixer(Options const& options, Wanted wanted, Edited edited, Left left)
    : options(options),
      wanted(std::move(wanted)),
      edited(std::move(edited)),
      left(std::move(left)),
      checker(checkCounts, [this](Finding const& finding) { take(finding); }) {}

void Fixer::startElement(XmlElement const& atHand, Tag& itsTag) {
    element = &atHand;
    tag = &itsTag;
    index = 0;
    indexBytes = 0;
    value.reset();
    checker.startElement(atHand, itsTag);
    element = nullptr;
    tag = nullptr;
}

void Fixer::text(XmlText const& text) {
    content = &text;
    checker.text(text);
    content = nullptr;
}

void Fixer::take(Finding const& finding) {
    if (!wanted(finding)) return;
    bool const hasReplacement = isOfValue(finding.fault) && !finding.replacement.empty();
    bool const isFixable = hasReplacement && (finding.isExact || options.takesSuggestions);
    std::string_view const reason = isFixable ? fix(finding) : std::string_view();
    if (isFixable && reason.empty()) {
        ++fixCounts.fixed[finding.fault];
        return;
    }
    ++fixCounts.left[finding.fault];
    if (hasReplacement && !isFixable) ++fixCounts.suggested;
    left(finding, reason);
}

std::string_view Fixer::fix(Finding const& finding) {
    if (!options.hasPlaces) return withoutPlaces;
    std::vector<Change> const changes = changesBetween(finding.text, finding.replacement);
    return tag ? fixInTag(finding, changes) : fixInText(finding, changes);
}

Fixer::Value Fixer::valueOf(std::size_t number) const {
    std::string_view const text = element->attributes[number].value;
    bool const isTemplate = element->namespaces.hasXslt() && text.find_first_of("{}") != std::string_view::npos;
    return {number, text, !tag->raw().says(number, text) ? inEntity : isTemplate ? inTemplate : std::string_view()};
}

std::string_view Fixer::fixInTag(Finding const& finding, std::vector<Change> const& changes) {
    if (!value || value->number != finding.number) value = valueOf(finding.number);
    if (!value->reason.empty()) return value->reason;
    RawTag& raw = tag->raw();
    std::string_view const text = value->text.substr(finding.textOffset, finding.text.size());
    auto const [offset, encoding] = tag->bytes();
    std::vector<Edit> edits;
    for (Change const& change : changes) {
        if (text.substr(change.offset, change.length) !=
            std::string_view(finding.text).substr(change.offset, change.length))
            return withComment;
        std::size_t const first = raw.indexInValue(finding.number, finding.textOffset + change.offset);
        std::size_t const end = raw.indexInValue(finding.number, finding.textOffset + change.offset + change.length);
        if (first < index) return afterOthers;
        indexBytes += encodedLength(raw.slice(index, first), encoding);
        Edit& edit = edits.emplace_back();
        edit.offset = offset + indexBytes;
        edit.length = encodedLength(raw.slice(first, end), encoding);
        edit.inserted = written(change.inserted, raw.quoteOf(finding.number), encoding);
        indexBytes += edit.length;
        index = end;
    }
    for (Edit const& edit : edits) edited(edit);
    editsEnd = offset + indexBytes;
    return {};
}

std::string_view Fixer::fixInText(Finding const& finding, std::vector<Change> const& changes) {
    if (!content || !content->bytes) return inPieces;
    if (content->text != finding.text) return inTemplate;
    if (content->bytes->offset < editsEnd) return afterOthers;
    auto [offset, encoding] = *content->bytes;
    std::size_t done = 0; // of the text
    auto const take = [&, encoding = encoding](std::size_t length) {
        std::string_view const next = std::string_view(finding.text).substr(done, length);
        done += length;
        return encodedLength(decode(next, ByteEncoding::Utf8), encoding);
    };
    for (Change const& change : changes) {
        offset += take(change.offset - done);
        std::size_t const length = take(change.length);
        edited({offset, length, written(change.inserted, 0, encoding)});
        offset += length;
    }
    editsEnd = offset;
    return {};
}

} // namespace Command
