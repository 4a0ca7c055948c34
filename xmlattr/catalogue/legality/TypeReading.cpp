#include "xmlattr/catalogue/legality/TypeReading.h"

#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/grammar/Agrees.h"
#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/Instantiations.h"
#include "xmlattr/core/Format.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace Xml {

namespace {

using PathData = Core::Vector<PathDataCommand>;
using Points = Core::Vector<Point>;
using Transforms = Core::Vector<Transform>;
using Lengths = Core::Vector<SLength>;

// "nothing", "1 point", "2 points".
std::string counted(std::size_t number, std::string_view noun) {
    if (number == 0) return "nothing";
    return std::to_string(number).append(" ").append(noun).append(number == 1 ? "" : "s");
}

// The lists that have a comparison of their own, which keeps no items.
SvgReading compareWith(Grammar const& /*grammar*/, std::u16string_view text, PathData const& held) {
    return compare(text, held);
}
SvgReading compareWith(Grammar const& /*grammar*/, std::u16string_view text, Points const& held) {
    return compare(text, held);
}
SvgReading compareWith(Grammar const& /*grammar*/, std::u16string_view text, Transforms const& held) {
    return compare(text, held);
}
SvgReading compareWith(Grammar const& /*grammar*/, std::u16string_view text, ViewBox const& held) {
    return compare(text, held);
}
SvgReading compareWith(Grammar const& grammar, std::u16string_view text, Lengths const& held) {
    return compare(text, held, listRuleOf(grammar));
}

// What is held of an illegal list.
std::string heldOfIllegal(PathData const& held) {
    return counted(held.size(), "command");
}
std::string heldOfIllegal(Points const& held) {
    return counted(held.size(), "point");
}
std::string heldOfIllegal(Lengths const& held) {
    return counted(held.size(), "number");
}
// What cannot be read is an identity.
std::string heldOfIllegal(Transforms const& held) {
    auto const isRead = [](Transform const& transform) { return !(transform == Transform()); };
    return counted(static_cast<std::size_t>(std::ranges::count_if(held, isRead)), "transform");
}
std::string heldOfIllegal(ViewBox const& /*held*/) {
    return {};
}

std::optional<std::u16string> rewriteAs(Grammar const& /*grammar*/, std::u16string_view text, PathData const*) {
    return rewritePathData(text);
}
std::optional<std::u16string> rewriteAs(Grammar const& /*grammar*/, std::u16string_view text, Points const*) {
    return rewritePoints(text);
}
std::optional<std::u16string> rewriteAs(Grammar const& /*grammar*/, std::u16string_view text, Transforms const*) {
    return rewriteTransformList(text);
}
std::optional<std::u16string> rewriteAs(Grammar const& /*grammar*/, std::u16string_view text, ViewBox const*) {
    return rewriteViewBox(text);
}
std::optional<std::u16string> rewriteAs(Grammar const& grammar, std::u16string_view text, Lengths const*) {
    return rewriteSvgList(text, listRuleOf(grammar));
}

template <class T>
concept HasComparison = requires(Grammar const& grammar, T const& value) {
    compareWith(grammar, {}, value);
};
template <class T>
concept HasAgreement = requires(Meaning const& meaning, T const& value) {
    agrees(meaning, value);
};

template <class T> TypeReading readAs(Grammar const& grammar, Dialect dialect, std::u16string_view text) {
    if constexpr (std::is_same_v<T, PathData>)
        if (isPlainPathData(text)) return {.isAccepted = true, .reading = {}};
    TypeReading result;
    T value{};
    result.isAccepted = AttributeTraits<T>::parse(value, text);
    if constexpr (HasComparison<T>) {
        result.reading = compareWith(grammar, text, value);
        if (result.isAccepted && !result.isLegal()) result.reading.held = heldOfIllegal(value);
    } else if constexpr (HasAgreement<T>) {
        Meaning meaning;
        if (!readMeaning(meaning, grammar, dialect, text))
            result.reading.outcome = SvgReading::Outcome::Illegal;
        else if (result.isAccepted && !agrees(meaning, value))
            result.reading.outcome = SvgReading::Outcome::Differs;
    }
    return result;
}

// Whether a colour has a profile or the name of an ink beside its components: "rgb-icc(...)", "red icc-color(...)".
bool hasInk(std::u16string_view color) {
    std::u16string_view const name = color.substr(0, color.find(u'('));
    return name.find(u'-') != std::u16string_view::npos || color.find(u'(') != color.rfind(u'(');
}

// A value in its plainest form: "+.5e1" as "5", "rgb(300,-1,0)" as "rgb(255,0,0)", "url( 'a' )" as "url(a)". Nothing
// for others, for a colour that has to be rounded, and for what would lose a profile or an ink.
std::optional<std::u16string> inPlainForm(Item const& item) {
    switch (item.kind) {
    case ItemKind::Number:
    case ItemKind::Length:
    case ItemKind::Percentage: return std::u16string(Core::Format::toShortest(item.number)).append(item.unit);
    case ItemKind::Color: {
        if (item.number != 0 || hasInk(item.text)) break;
        if (item.text.find(u'(') == std::u16string_view::npos) return std::u16string(item.text);
        auto const component = [&](int shift) { return static_cast<unsigned char>(item.rgb >> shift); };
        Core::String const plain =
            ColorParse::getColorAsString(new Drawing::RGBColor(component(16), component(8), component(0)));
        return std::u16string(std::u16string_view(plain));
    }
    case ItemKind::Uri:
        if (item.text.empty() || item.text.starts_with(u"url(")) break; // empty, or a reference without a call
        if (trimXmlSpace(item.text) != item.text) break; // without quotation marks, a blank at an end is lost
        return std::u16string(u"url(").append(item.text).append(u")");
    case ItemKind::Word:
    case ItemKind::Angle:
    case ItemKind::Time:
    case ItemKind::Frequency:
    case ItemKind::Text: break;
    }
    return std::nullopt;
}

std::optional<std::u16string> inPlainForm(Grammar const& grammar, Dialect dialect, std::u16string_view text) {
    Meaning meaning;
    if (!readMeaning(meaning, grammar, dialect, text)) return std::nullopt;
    std::u16string plain;
    for (Item const& item : meaning.values()) {
        auto const form = inPlainForm(item);
        if (!form) return std::nullopt;
        if (!plain.empty()) plain += u' ';
        plain += *form;
    }
    return plain;
}

template <class T>
std::optional<std::u16string> rewriteFor(Grammar const& grammar, Dialect dialect, std::u16string_view text) {
    std::u16string_view const trimmed = trimXmlSpace(text);
    if constexpr (HasComparison<T>) {
        return rewriteAs(grammar, trimmed, static_cast<T const*>(nullptr));
    } else {
        if (readAs<T>(grammar, dialect, trimmed).isReadAsWritten()) return std::u16string(trimmed);
        auto plain = inPlainForm(grammar, dialect, text);
        return plain && readAs<T>(grammar, dialect, *plain).isReadAsWritten() ? plain : std::nullopt;
    }
}

// The parts of a value: "underline", "2pt 0, 0".
std::u16string joined(Parts const& parts) {
    std::u16string out;
    for (Part const& part : parts.list) out.append(out.empty() ? u"" : u", ").append(part.value);
    return out;
}

std::u16string textOf(SColor const& paint) {
    switch (paint.getType()) {
    case SColor::None: return u"none";
    case SColor::Url: return std::u16string(u"url(").append(std::u16string_view(paint.getUrl())).append(u")");
    case SColor::Color: return std::u16string(std::u16string_view(ColorParse::getColorAsString(paint.getColor())));
    }
    return {};
}

template <HoldsMeasure T> std::u16string textOf(T const& value) {
    Held const held = measureOf(value);
    return std::u16string(Core::Format::toShortest(held.number)).append(held.unit);
}

std::u16string textOf(STextShadow const& shadow) {
    std::u16string text;
    for (SLength const& length : {shadow.getDx(), shadow.getDy(), shadow.getBlurRadius()})
        text.append(text.empty() ? u"" : u" ").append(textOf(length));
    if (!shadow.getColor().isNull()) text.append(u" ").append(textOf(shadow.getColor()));
    return text;
}

template <class T> std::u16string heldAs(std::u16string_view text) {
    T value{};
    if (KeywordEnumeration<T> || !AttributeTraits<T>::parse(value, text)) return {};
    if constexpr (std::is_base_of_v<SColor, T> || std::is_same_v<T, STextShadow> || HoldsMeasure<T>) {
        return textOf(value);
    } else if constexpr (std::is_same_v<T, Url>) {
        return std::u16string(u"\"").append(std::u16string_view(value.getUrl())).append(u"\"");
    } else if constexpr (HasParts<T>) {
        Parts parts;
        AttributeTraits<T>::parts(value, parts);
        return joined(parts);
    } else {
        return {};
    }
}

struct Readers {
    TypeReading (*read)(Grammar const& grammar, Dialect dialect, std::u16string_view text);
    std::optional<std::u16string> (*rewrite)(Grammar const& grammar, Dialect dialect, std::u16string_view text);
    std::u16string (*held)(std::u16string_view text);
};

// By the number of the type.
constexpr Readers readers[] = {
#define XMLATTR_PUBLIC_VALUE(...) {readAs<__VA_ARGS__>, rewriteFor<__VA_ARGS__>, heldAs<__VA_ARGS__>},
#define XMLATTR_INTERNAL_VALUE(...) XMLATTR_PUBLIC_VALUE(__VA_ARGS__)
#include "xmlattr/ValueTypes.inc"
};

// How many values there are on the ways from a step to the end.
class Counter {
public:
    explicit Counter(std::span<GrammarStep const> steps) : steps(steps), isOpen(steps.size()) {}

    struct Range {
        std::size_t fewest, most;
    };

    Range from(std::size_t number) {
        constexpr Range dead{SIZE_MAX, 0};
        if (number == 0) return {0, 0};
        if (isOpen[number]) {
            isEndless = true;
            return dead;
        }
        GrammarStep const& step = steps[number];
        if (step.kind == GrammarStep::Word) return dead;
        isOpen[number] = true;
        Range range = from(step.next);
        if (step.kind == GrammarStep::Choice) {
            Range const other = from(step.other);
            range = {std::min(range.fewest, other.fewest), std::max(range.most, other.most)};
        } else if (step.kind == GrammarStep::Value && range.fewest != SIZE_MAX) {
            range = {range.fewest + 1, range.most + 1};
        }
        isOpen[number] = false;
        return range;
    }

    bool isEndless = false;

private:
    std::span<GrammarStep const> steps;
    std::vector<bool> isOpen;
};

} // namespace

SvgListRule listRuleOf(Grammar const& grammar) {
    SvgListRule rule;
    for (GrammarStep const& step : grammar.steps()) {
        if (step.kind == GrammarStep::Word && step.word == "none") rule.none = true;
        if (step.kind != GrammarStep::Value) continue;
        rule.units = rule.units || step.token == Token::Length || step.token == Token::Percentage;
        rule.whole = rule.whole || step.token == Token::Integer;
        rule.minimum = std::max(rule.minimum, step.least);
        rule.aboveMinimum = rule.aboveMinimum || step.aboveLeast;
    }
    Counter counter(grammar.steps());
    auto const [fewest, most] = counter.from(grammar.steps().size() - 1);
    rule.fewest = fewest;
    rule.most = counter.isEndless ? SIZE_MAX : most;
    return rule;
}

TypeReading readTyped(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text) {
    return readers[entry.typeNumber].read(entry.grammar, dialect, text);
}

std::optional<std::u16string> rewriteTyped(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text) {
    return readers[entry.typeNumber].rewrite(entry.grammar, dialect, text);
}

std::u16string heldWithoutPrinter(AttributeType const& type, std::u16string_view text) {
    return readers[&type - AttributeType::all().data()].held(text);
}

} // namespace Xml
