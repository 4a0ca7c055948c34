#include "xmlattr/catalogue/grammar/Agrees.h"

#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/measures/Units.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Xml {

namespace {

bool isNear(float a, float b) {
    constexpr float rounding = 1e-6f;
    return a == b || std::abs(a - b) <= rounding * std::max(std::abs(a), std::abs(b));
}

// The unit in the spelling of the recommendations; pixels are the user units of SVG.
bool isUnit(std::u16string_view written, std::u16string_view held) {
    return Core::equalsNoCase(written.empty() ? u"px" : written, held.empty() ? u"px" : held);
}

bool isWord(Meaning const& meaning, std::string_view word) {
    return meaning.size() == 1 && meaning[0].kind == ItemKind::Word && equalsWord(meaning[0].text, word);
}

// The one number of the text; null for a word.
Item const* numberOf(Meaning const& meaning) {
    return meaning.size() == 1 && meaning[0].kind == ItemKind::Number ? &meaning[0] : nullptr;
}

bool agreesWith(Item const& item, int r, int g, int b) {
    auto const isClose = [&](int held, int shift) {
        return std::abs(held - static_cast<int>(item.rgb >> shift & 0xFF)) <= static_cast<int>(item.number);
    };
    return isClose(r, 16) && isClose(g, 8) && isClose(b, 0);
}

bool agreesWith(Item const& item, SmartPtr<Drawing::Color> const& color) {
    if (item.kind != ItemKind::Color) return true;
    if (!color) return false;
    if (auto const* const rgb = dynamic_cast<Drawing::RGBColor const*>(&*color))
        return agreesWith(item, rgb->getR(), rgb->getG(), rgb->getB());
    if (auto const* const icc = dynamic_cast<Drawing::ICCColor const*>(&*color))
        return agreesWith(item, icc->getFallBackR(), icc->getFallBackG(), icc->getFallBackB());
    return false;
}

bool refersTo(Item const& item, std::u16string_view reference) {
    // White space after the contents of a data URI is none of them.
    if (item.text.starts_with(u"data:")) reference = trimXmlSpace(reference);
    return item.kind != ItemKind::Uri || item.text == reference;
}

// A paint begins with a colour, a reference or a word.
bool agreesWith(Item const& item, SColor const& paint) {
    if (item.kind == ItemKind::Color) return paint.getType() == SColor::Color && agreesWith(item, paint.getColor());
    if (item.kind == ItemKind::Uri) return paint.getType() == SColor::Url && refersTo(item, paint.getUrl());
    bool const isNone = equalsWord(item.text, "none", true) || equalsWord(item.text, "transparent", true);
    return (paint.getType() == SColor::None) == isNone;
}

} // namespace

Held heldOf(float number) {
    return {ItemKind::Number, number, {}};
}

Held heldOf(int number) {
    return heldOf(static_cast<float>(number));
}

Held heldOf(FloatOrPercent const& number) {
    return heldOf(number.getValue());
}

Held heldOf(Length const& length) {
    return {ItemKind::Length, length.getSize(), Units::word(rowOfUnit(length.getUnit()))};
}

Held heldOf(SLength const& length) {
    if (length.getUnit() == SLength::Percent) return {ItemKind::Percentage, length.getSize() * 100, u"%"};
    if (length.getUnit() == SLength::UserUnit) return {ItemKind::Length, length.getSize(), {}};
    return {ItemKind::Length, length.getSize(), Units::word(rowOfUnit(length.getUnit()))};
}

bool agrees(Item const& item, Held const& held) {
    bool const isPercentage = held.kind == ItemKind::Percentage;
    switch (item.kind) {
    case ItemKind::Number:
        if (isPercentage) return isNear(item.number * 100, held.number);
        return isNear(item.number, held.number) && (held.kind == ItemKind::Number || held.unit.empty());
    case ItemKind::Length:
        // A bare length of SVG may be held as a plain number.
        if (isPercentage) return item.number == 0 && held.number == 0;
        return isNear(item.number, held.number) &&
               (item.number == 0 || isUnit(item.unit, held.kind == ItemKind::Number ? u"" : held.unit));
    case ItemKind::Percentage:
        return isNear(item.number, held.kind == ItemKind::Number ? held.number * 100 : held.number) &&
               (isPercentage || held.kind == ItemKind::Number);
    case ItemKind::Angle:
    case ItemKind::Time:
    case ItemKind::Frequency:
        return isNear(item.number, held.number) && (item.unit.empty() || item.unit == u"deg" || item.unit == u"s");
    case ItemKind::Word:
    case ItemKind::Color:
    case ItemKind::Uri:
    case ItemKind::Text: break;
    }
    return true;
}

bool agrees(Meaning const& meaning, std::initializer_list<Held> held) {
    auto const isWord = [](Item const& item) { return item.kind == ItemKind::Word; };
    // A call without arguments has no values.
    return meaning.empty() || std::ranges::any_of(meaning.values(), isWord) ||
           std::ranges::equal(meaning.values(), held,
                              [](Item const& item, Held const& one) { return agrees(item, one); });
}

bool agrees(Meaning const& meaning, Keep keep) {
    Item const* const strength = numberOf(meaning);
    return !strength || agrees(*strength, heldOf(static_cast<int>(keep)));
}

bool agrees(Meaning const& meaning, MaxRepeats repeats) {
    Item const* const count = numberOf(meaning);
    return count ? agrees(*count, heldOf(static_cast<int>(repeats))) : repeats == MaxRepeats::NoLimit;
}

bool agrees(Meaning const& meaning, ThreeState state) {
    if (isWord(meaning, "true")) return state == ThreeState::True;
    if (isWord(meaning, "false")) return state == ThreeState::False;
    return state == ThreeState::Other;
}

bool agrees(Meaning const& meaning, DLength const& lengths) {
    Held const first = heldOf(lengths.getFirst()), second = heldOf(lengths.getSecond());
    return meaning.size() == 1 ? first == second && agrees(meaning, {first}) : agrees(meaning, {first, second});
}

bool agrees(Meaning const& meaning, Drawing::RectF const& rectangle) {
    float const sides[] = {rectangle.getTop(), rectangle.getRight(), rectangle.getBottom(), rectangle.getLeft()};
    return std::ranges::equal(meaning.values(), sides, [](Item const& item, float side) {
        auto const* const row =
            std::ranges::find_if(unitRows, [&](auto const& unit) { return isUnit(item.unit, unit.word); });
        return row != std::end(unitRows) && isNear(row->value.toPixels.of(item.number), side);
    });
}

bool agrees(Meaning const& meaning, SmartPtr<Drawing::Color> const& color) {
    return std::ranges::all_of(meaning.values(), [&](Item const& item) { return agreesWith(item, color); });
}

bool agrees(Meaning const& meaning, SColor const& paint) {
    // The paint after a reference is for readers that do not find what it refers to.
    return !meaning.empty() && agreesWith(meaning[0], paint);
}

bool agrees(Meaning const& meaning, STextShadow const& shadow) {
    Held const held[] = {heldOf(shadow.getDx()), heldOf(shadow.getDy()), heldOf(shadow.getBlurRadius())};
    std::size_t lengths = 0, colors = 0;
    for (Item const& item : meaning.values()) {
        if (item.kind == ItemKind::Length) {
            if (lengths == std::size(held) || !agrees(item, held[lengths])) return false;
            ++lengths;
        } else if (item.kind == ItemKind::Color) {
            if (++colors > 1 || !agreesWith(item, shadow.getColor())) return false;
        }
    }
    return true;
}

bool agrees(Meaning const& meaning, STextDecoration const& decoration) {
    auto const has = [&](std::string_view line) {
        return std::ranges::any_of(meaning.values(),
                                   [&](Item const& item) { return equalsWord(item.text, line, true); });
    };
    return has("underline") == decoration.isUnderline() && has("overline") == decoration.isOverline() &&
           has("line-through") == decoration.isLineThrough();
}

bool agrees(Meaning const& meaning, SPreserveAspectRatio const& ratio) {
    constexpr int none = 1, meet = 2, slice = 4;
    constexpr int alignment = 8;
    constexpr std::string_view positions[] = {"Min", "Mid", "Max"};
    int expected = 0;
    bool isSlice = false;
    for (Item const& item : meaning.values()) {
        if (equalsWord(item.text, "none")) return (ratio.getAspectRatio() & none) != 0;
        isSlice = isSlice || equalsWord(item.text, "slice");
        if (item.text.size() != 8) continue; // as long as xMidYMid
        for (int i = 0; i < 3; ++i) {
            if (equalsWord(item.text.substr(1, 3), positions[i])) expected |= alignment << i;
            if (equalsWord(item.text.substr(5, 3), positions[i])) expected |= alignment << (3 + i);
        }
    }
    return ratio.getAspectRatio() == (expected | (isSlice ? slice : meet));
}

bool agrees(Meaning const& meaning, TextAlign const& align) {
    // "." and "," are strings to align at, which may stand without quotation marks.
    bool const isString = meaning.size() == 1 && (meaning[0].kind == ItemKind::Text || meaning[0].text.size() == 1);
    return isString == (align.getType() == TextAlignType::AlignmentString);
}

bool agrees(Meaning const& meaning, InitialPageNumber const& number) {
    Item const* const page = numberOf(meaning);
    if (!page) return number.getType() != InitialPageNumberType::Number;
    return number.getType() == InitialPageNumberType::Number && agrees(*page, heldOf(number.getNumber()));
}

bool agrees(Meaning const& meaning, ForcePageCount const& count) {
    return isWord(meaning, "auto") == (count.getType() == ForcePageCountType::Auto);
}

bool agrees(Meaning const& meaning, Url const& url) {
    return std::ranges::all_of(meaning.values(), [&](Item const& item) { return refersTo(item, url.getUrl()); });
}

} // namespace Xml
