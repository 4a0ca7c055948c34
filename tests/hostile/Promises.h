// What every value type promises about any text, for the fuzzer and for the tests. The types
// are those of the list; the overloads below say which of them promise something else, and why.
#pragma once

#include "xmlattr/Instantiations.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/drawing/SpotColor.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <concepts>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace Promises {

using namespace Xml;

template <class T, class... Listed> constexpr bool isAmong = (std::is_same_v<T, Listed> || ...);

// The classes that hold no floating number.
template <class T>
constexpr bool holdsNoNumbers =
    isAmong<T, Core::String, AxisSource, DisplayCondition, Drawing::ImageFilter, ForcePageCount, InitialPageNumber,
            InitialSheetNumber, Language, MaxDataPoints, SPreserveAspectRatio, STextDecoration, TPRule, TextAlign, Url>;

// Calls see(number) for every number in a value.
template <class T, class See> void eachNumber(T const& value, See see) {
    auto const look = [&](auto const&... parts) { (eachNumber(parts, see), ...); };
    if constexpr (std::is_floating_point_v<T>) {
        see(value);
    } else if constexpr (std::is_base_of_v<SColor, T>) {
        look(value.getColor());
    } else if constexpr (std::is_same_v<T, SmartPtr<Drawing::Color>>) {
        if (auto const* cmyk = dynamic_cast<Drawing::CMYKColor const*>(value.get()))
            look(cmyk->getC(), cmyk->getM(), cmyk->getY(), cmyk->getK());
        if (auto const* icc = dynamic_cast<Drawing::ICCColor const*>(value.get()))
            for (int i = 0; i < icc->getCount(); ++i) look(icc->getColor(i));
        if (auto const* spot = dynamic_cast<Drawing::SpotColor const*>(value.get())) {
            look(spot->getTint());
            auto const function = spot->getFunction();
            if (auto const* end = dynamic_cast<Drawing::ExponentialSpotColorFunction const*>(function.get()))
                look(end->getEndColor());
        }
    } else if constexpr (requires { value.getDx(); }) {
        look(value.getDx(), value.getDy(), value.getBlurRadius(), value.getColor());
    } else if constexpr (requires { value.getPercent(); }) {
        look(value.getLength(), value.getPercent());
    } else if constexpr (requires { value.pxSize(); }) {
        look(value.getSize());
    } else if constexpr (requires { value.getLengthOrPercent(); }) {
        look(value.getLengthOrPercent());
    } else if constexpr (requires { value.getAbsoluteSize(); }) {
        look(value.getAbsoluteSize());
    } else if constexpr (requires { value.getAbsoluteStretch(); }) {
        look(value.getAbsoluteStretch());
    } else if constexpr (requires { value.getLength().pxSize(); }) {
        look(value.getLength());
    } else if constexpr (requires { value.getSLength(); }) {
        look(value.getSLength());
    } else if constexpr (requires { value.getFirst(); }) {
        look(value.getFirst(), value.getSecond());
    } else if constexpr (requires { value.getNumericVal(); }) {
        look(value.getNumericVal());
    } else if constexpr (requires { value.getFloatValue(); }) {
        look(value.getFloatValue());
    } else if constexpr (std::is_same_v<T, FloatOrPercent>) {
        look(value.getValue());
    } else if constexpr (std::is_same_v<T, Drawing::RectF>) {
        look(value.getTop(), value.getRight(), value.getBottom(), value.getLeft());
    } else if constexpr (std::is_same_v<T, ViewBox>) {
        look(value.x, value.y, value.width, value.height);
    } else if constexpr (std::is_same_v<T, Point>) {
        look(value.x, value.y);
    } else if constexpr (std::is_same_v<T, PathDataCommand>) {
        look(value.x1, value.y1, value.x2, value.y2, value.x, value.y, value.rx, value.ry, value.xAxisRotation);
    } else if constexpr (std::is_same_v<T, Transform>) {
        for (double const number : value.matrix) look(number);
        look(*value.tx, *value.ty, value.sx, value.sy, value.angle, *value.cx, *value.cy, value.skewAngleX,
             value.skewAngleY);
    } else if constexpr (
        requires { value.begin()->x; } || requires { value.begin()->type; } || requires { value.begin()->pxSize(); }) {
        for (auto const& element : value) look(element);
    } else {
        static_assert(std::is_enum_v<T> || std::is_integral_v<T> || holdsNoNumbers<T>,
                      "a class that holds numbers is taken apart above; holdsNoNumbers lists those that hold none");
    }
}

// A rectangle holds pixels, and those of a long length may be too many for a float.
template <class T> bool isFinite(T const& value) {
    if constexpr (std::is_same_v<T, Drawing::RectF>) return true;
    bool finite = true;
    eachNumber(value, [&](double number) { finite &= std::isfinite(number); });
    return finite;
}

// Whether two values have as many numbers that are as close as printing and reading back leaves them:
// to three decimals of a length or a percentage, and to a few units in the last place of a float.
template <class T> bool isNear(T const& a, T const& b) {
    Core::Vector<double> numbers;
    eachNumber(a, [&](double number) { numbers.push_back(number); });
    bool near = !numbers.empty();
    std::size_t i = 0;
    eachNumber(b, [&](double number) {
        near &= i < numbers.size() && std::abs(number - numbers[i]) <= 0.05 + 1e-6 * std::abs(number);
        ++i;
    });
    return near && i == numbers.size();
}

// The texts that a type accepts, where it accepts all or nearly all.
template <class T> bool neverRefuses(T const&, std::u16string_view) {
    return false;
}
#define XMLATTR_NEVER_REFUSES(Type, condition)                                                                         \
    inline bool neverRefuses(Type const&, [[maybe_unused]] std::u16string_view text) {                                 \
        return condition;                                                                                              \
    }
XMLATTR_NEVER_REFUSES(Core::String, true)
XMLATTR_NEVER_REFUSES(AxisSource, true)
XMLATTR_NEVER_REFUSES(BoxShadow, !text.empty())
XMLATTR_NEVER_REFUSES(Core::Vector<PathDataCommand>, true)
XMLATTR_NEVER_REFUSES(Core::Vector<Transform>, true)
XMLATTR_NEVER_REFUSES(ForcePageCount, text.find(u"multiple-of(") == text.npos)
XMLATTR_NEVER_REFUSES(InitialPageNumber, !text.starts_with(u"multiple-of("))
XMLATTR_NEVER_REFUSES(InitialSheetNumber, true)
XMLATTR_NEVER_REFUSES(MaxRepeats, true)
XMLATTR_NEVER_REFUSES(SPreserveAspectRatio, true)
XMLATTR_NEVER_REFUSES(STextShadow, !text.empty())
XMLATTR_NEVER_REFUSES(SVGEObjectType, true)
XMLATTR_NEVER_REFUSES(TextAlign, true)
XMLATTR_NEVER_REFUSES(ThreeState, true)
XMLATTR_NEVER_REFUSES(Url, !text.starts_with(u"url"))
XMLATTR_NEVER_REFUSES(Value, !text.empty())
#undef XMLATTR_NEVER_REFUSES

// Whether a value holds a ratio whose percentage is no float: it prints a number that is refused.
template <class T> bool isHuge(T const& value) {
    bool huge = false;
    eachNumber(value, [&](double number) { huge |= std::abs(number) > FLT_MAX / 100.0; });
    return huge;
}

// What a refusal leaves where that is not the value that was there; the overload for all other types says nothing.
template <class T> std::optional<bool> keptAsPromised(T const&, T const&) {
    return std::nullopt;
}
inline std::optional<bool> keptAsPromised(DLength const& before, DLength const& after) {
    return before.getSecond() == after.getSecond(); // the first one may have been read
}
inline std::optional<bool> keptAsPromised(TPRule const& before, TPRule const& after) {
    return after.getType() == TPRuleType::None && before.getKeyword() == after.getKeyword();
}
inline std::optional<bool> keptAsPromised(ScriptType const&, ScriptType const& after) {
    return after == ScriptType::Other;
}
inline std::optional<bool> keptAsPromised(BarcodeValueType const& before, BarcodeValueType const& after) {
    return after == before || after == BarcodeValueType::Text; // "TEXT" is stored and refused
}
inline std::optional<bool> keptAsPromised(DisplayCondition const& before, DisplayCondition const& after) {
    return before.getConditions().size() <= after.getConditions().size() && before == after; // appended to
}

// The values whose printed text their type does not read back as the same value, each with the reason.
template <class T> bool printsUnread(T const&) {
    return false;
}
// The widest prints a word that is never read.
inline bool printsUnread(FontStretch const& value) {
    return value == RelativeFontStretch::UltraExpanded;
}
// The metrics of the font print the empty text.
inline bool printsUnread(LeaderPatternWidth const& value) {
    return value.usesFontMetrics();
}
// Prints nothing.
inline bool printsUnread(LegendPlacement const& value) {
    return value == LegendPlacement::Custom;
}
// Prints another word than it reads.
inline bool printsUnread(OriginalInputFormat const& value) {
    return value == OriginalInputFormat::Fo;
}
// No colour prints the empty text, a spot colour the other function of its alternate, and parts of a
// CMYK colour beyond 1 read as parts of 255.
inline bool printsUnread(SmartPtr<Drawing::Color> const& value) {
    auto const* const cmyk = dynamic_cast<Drawing::CMYKColor const*>(value.get());
    return !value || dynamic_cast<Drawing::SpotColor const*>(value.get()) ||
           (cmyk && std::max({cmyk->getC(), cmyk->getM(), cmyk->getY(), cmyk->getK()}) > 1);
}
// Blanks end the colour of a shadow, and some colours print with them.
inline bool printsUnread(BoxShadow const& value) {
    return value.getColor() && (printsUnread(value.getColor()) ||
                                AttributeTraits<SmartPtr<Drawing::Color>>::print(value.getColor()).find(u" ") >= 0);
}
// The sign of an exponent ends a coordinate.
inline bool printsUnread(Core::Vector<Point> const& value) {
    return AttributeTraits<Core::Vector<Point>>::print(value).find(u"e-") >= 0;
}
// A blank argument prints empty parentheses, which add no condition.
inline bool printsUnread(DisplayCondition const& value) {
    return std::ranges::any_of(value.getConditions(), [](auto const& condition) { return condition.argument.empty(); });
}
// A reference that was written without "url(" may begin or end with what is dropped inside of it.
inline bool printsUnread(Url const& value) {
    auto const isDropped = [](char16_t unit) { return Core::isSpace(unit) || unit == u'\'' || unit == u'"'; };
    std::u16string_view const url = value.getUrl();
    return !url.empty() && (isDropped(url.front()) || isDropped(url.back()));
}

// Whether a value equals itself when it is read twice. Colours do not: they are equal as objects.
template <class T> bool equalsItself(T const&) {
    return true;
}
inline bool equalsItself(SmartPtr<Drawing::Color> const& color) {
    return !color;
}
inline bool equalsItself(std::derived_from<SColor> auto const& paint) {
    return !paint.getColor();
}
inline bool equalsItself(BoxShadow const& shadow) {
    return !shadow.getColor();
}
inline bool equalsItself(STextShadow const& shadow) {
    return !shadow.getColor().getColor();
}
// Nor do the two one-sided scalings, which equal nothing.
inline bool equalsItself(ContentLength const& length) {
    return length.getMode() != ContentScaleMode::ScaleDownToFit && length.getMode() != ContentScaleMode::ScaleUpToFit;
}

// The promise that a text breaks, or null. The attribute holds the value of the text `before`, if that
// is one, when it reads the text.
template <class T> char const* broken(Core::String const& before, Core::String const& text) {
    TXmlAttribute<T> attribute;
    attribute.parseValue(before);
    TXmlAttribute<T> const original = attribute;
    std::array<std::byte, sizeof attribute> bytes, bytesAfter;
    std::memcpy(bytes.data(), static_cast<void const*>(&attribute), bytes.size());
    Core::String const printed = attribute.getValueAsString();

    bool const accepted = attribute.parseValue(text);
    Core::String const printedAfter = attribute.getValueAsString();
    if (!isFinite(attribute.getValue())) return "a number is not finite";
    if (!accepted) {
        if (neverRefuses(attribute.getValue(), text)) return "a text is refused";
        std::memcpy(bytesAfter.data(), static_cast<void const*>(&attribute), bytes.size());
        auto const kept = keptAsPromised(original.getValue(), attribute.getValue());
        if (!kept.value_or(bytes == bytesAfter && printed == printedAfter)) return "a refusal changes the value";
    }

    TXmlAttribute<T> copy;
    copy.copyFrom(attribute);
    if (copy.getValueAsString() != printedAfter) return "a copy prints something else";

    TXmlAttribute<T> fresh;
    bool const freshAccepted = fresh.parseValue(text);
    if (freshAccepted != accepted) return "acceptance depends on the value before";
    bool const equal = accepted && equalsItself(fresh.getValue());
    if (fresh.isEqual(text) != (equal && !RefusesComparison<T>)) return "isEqual is not what the type promises";
    if (fresh.isEqual(text, int_to_type<1>()) != equal) return "comparing values is not what the type promises";

    if (Prints<T> && accepted && !isHuge(fresh.getValue()) && !printsUnread(fresh.getValue())) {
        Core::String const once = fresh.getValueAsString();
        TXmlAttribute<T> readBack;
        if (!readBack.parseValue(once)) return "the printed text is refused";
        if (readBack.getValueAsString() != once && !isNear(fresh.getValue(), readBack.getValue()))
            return "the printed text reads as another value";
    }
    return nullptr;
}

struct Type {
    char const* name;
    char const* (*broken)(Core::String const& before, Core::String const& text);
};

inline constexpr Type types[] = {
#define XMLATTR_PUBLIC_VALUE(...) {#__VA_ARGS__, broken<__VA_ARGS__>},
#define XMLATTR_INTERNAL_VALUE(...) {#__VA_ARGS__, broken<__VA_ARGS__>},
#include "xmlattr/ValueTypes.inc"
};

} // namespace Promises
