// Any text on any attribute: the reader of the recommendation, the value type and the advice must agree with each other.
// The first two bytes pick the row of the catalogue, the next one the notation.
#include "FuzzText.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/Advice.h"

#include <algorithm>

namespace {

// Without the white space of XML at its ends, which is no fault where the type refuses it.
std::u16string_view trimmed(std::u16string_view text) {
    constexpr std::u16string_view spaces = u" \t\r\n";
    std::size_t const first = std::min(text.find_first_not_of(spaces), text.size());
    return text.substr(first, text.find_last_not_of(spaces) + 1 - first);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 3) return 0;
    auto const entries = Xml::Catalogue::entries();
    Xml::CatalogueEntry const& entry = entries[(data[0] * 256u + data[1]) % entries.size()];
    auto const notation = data[2] % 4 == 0 ? Xml::Notation::Declaration : Xml::Notation::Attribute;
    std::u16string const text = toText(data + 3, data + size);

    Xml::Judgement const judgement = Xml::judge(entry, text, notation);
    Xml::AttributeType const* const type = entry.type();
    bool const isTaken = type && (type->accepts(text) || type->accepts(trimmed(text)));
    if (judgement.verdict == Xml::Verdict::Read) require(!type || isTaken, "what the type refuses is called read");
    if (judgement.verdict == Xml::Verdict::Lenient)
        require(!type || isTaken, "what the type refuses is called lenient");
    if (judgement.verdict == Xml::Verdict::Refused)
        require(!type || !type->accepts(text), "what the type takes is called refused");
    if (!Xml::isFault(judgement.verdict)) return 0;

    Xml::Advice const advice = Xml::advise(entry, text, notation, judgement);
    require(advice.offset + advice.length <= text.size(), "the range is none of the text");
    if (advice.replacement.empty()) return 0;
    std::u16string const edited = std::u16string(text).replace(advice.offset, advice.length, advice.inserted());
    require(edited == advice.replacement, "the range is not what the replacement changes");
    require(!Xml::isFault(Xml::judge(entry, advice.replacement, notation).verdict), "the replacement is a fault too");
    return 0;
}
