// Any text on any attribute: the reader of the recommendation, the value type and the advice must agree with each
// other.
#include "FuzzText.h"
#include "Heads.h"
#include "xmlattr/catalogue/TypeNumber.h"
#include "xmlattr/catalogue/legality/Advice.h"
#include "xmlattr/catalogue/legality/TypeReading.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace Xml;

// Whether the type reads in the replacement what the recommendation reads in the text, which is a list.
template <class T, class... Rule>
bool readsSame(std::u16string_view text, std::u16string_view replacement, Rule const&... rule) {
    T value{};
    return AttributeTraits<T>::parse(value, replacement) &&
           compare(text, value, rule...).outcome == SvgReading::Outcome::Same;
}

// Components are rounded in more than one way.
bool isNear(std::uint32_t a, std::uint32_t b, int rounding) {
    auto const isClose = [&](int shift) {
        return std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)) <= rounding;
    };
    return isClose(16) && isClose(8) && isClose(0);
}

bool isSame(Item const& a, Item const& b) {
    if (a.kind != b.kind) return false;
    switch (a.kind) {
    case ItemKind::Word: return Core::equalsNoCase(a.text, b.text);
    case ItemKind::Uri:
    case ItemKind::Text: return a.text == b.text;
    case ItemKind::Color: return isNear(a.rgb, b.rgb, static_cast<int>(std::max(a.number, b.number)));
    case ItemKind::Number:
    case ItemKind::Length:
    case ItemKind::Percentage:
    case ItemKind::Angle:
    case ItemKind::Time:
    case ItemKind::Frequency: break;
    }
    return Core::equalsNoCase(a.unit, b.unit) &&
           std::abs(a.number - b.number) <= 1e-6f * std::max(std::abs(a.number), std::abs(b.number));
}

// Whether both texts, which are legal, mean the same by the recommendation.
bool meanSame(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text, std::u16string_view replacement) {
    auto const number = static_cast<std::size_t>(entry.typeNumber);
    if (number == typeNumber<Core::Vector<PathDataCommand>>)
        return readsSame<Core::Vector<PathDataCommand>>(text, replacement);
    if (number == typeNumber<Core::Vector<Point>>) return readsSame<Core::Vector<Point>>(text, replacement);
    if (number == typeNumber<Core::Vector<Transform>>) return readsSame<Core::Vector<Transform>>(text, replacement);
    if (number == typeNumber<Core::Vector<SLength>>)
        return readsSame<Core::Vector<SLength>>(text, replacement, listRuleOf(entry.grammar));
    if (number == typeNumber<ViewBox>) return readsSame<ViewBox>(text, replacement);
    Meaning meant, written;
    return readMeaning(meant, entry.grammar, dialect, text) &&
           readMeaning(written, entry.grammar, dialect, replacement) &&
           std::ranges::equal(meant.values(), written.values(), isSame);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < Heads::Row::size) return 0;
    auto const [entryOfRow, notation] = Heads::Row::ofBytes(data);
    CatalogueEntry const& entry = *entryOfRow;
    std::u16string const text = toText(data + Heads::Row::size, data + size);

    Judgement const judgement = judge(entry, text, notation);
    bool const hasName = notation == Notation::Attribute || entry.isPresentation;
    require(!hasName || judge(entry.vocabulary, entry.elements.front(), entry.attribute, text, notation).verdict ==
                            judgement.verdict,
            "a row is judged otherwise by its name");
    AttributeType const* const type = entry.type();
    bool const isTaken = type && (type->accepts(text) || type->accepts(trimXmlSpace(text)));
    if (judgement.verdict == Verdict::Read && type) {
        require(isTaken, "what the type refuses is called read");
        AnyAttribute value(*type), again(*type);
        if (!value.parseValue(text)) value.parseValue(trimXmlSpace(text));
        Core::String const printed = value.getValueAsString();
        // A reference prints as a call, which does not quote what it refers to.
        bool const isReference = static_cast<std::size_t>(entry.typeNumber) == typeNumber<Url>;
        if (!isReference && again.parseValue(printed) && again.getValueAsString() == printed)
            require(judge(entry, printed, notation).verdict != Verdict::Misread, "a print is misread");
    }
    if (judgement.verdict == Verdict::Lenient) require(!type || isTaken, "what the type refuses is called lenient");
    if (judgement.verdict == Verdict::Refused)
        require(!type || !type->accepts(text), "what the type takes is called refused");
    if (!isFault(judgement.verdict)) return 0;

    Advice const advice = advise(entry, text, notation, judgement);
    require(advice.offset + advice.length <= text.size(), "the range is none of the text");
    if (advice.replacement.empty()) return 0;
    std::u16string const edited = std::u16string(text).replace(advice.offset, advice.length, advice.inserted());
    require(edited == advice.replacement, "the range is not what the replacement changes");
    require(!isFault(judge(entry, advice.replacement, notation).verdict), "the replacement is a fault too");
    if (advice.isExact && judgement.verdict == Verdict::Misread)
        require(meanSame(entry, dialectOf(entry, notation), text, advice.replacement),
                "an exact replacement means something else");
    return 0;
}
