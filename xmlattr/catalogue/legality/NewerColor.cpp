#include "xmlattr/catalogue/legality/NewerColor.h"

#include "xmlattr/catalogue/grammar/TokenReader.h"
#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace Xml {

namespace {

using Components = std::array<float, 3>; // from 0 to 1

struct Argument {
    float number = 0;
    std::u16string_view unit; // or "%"

    bool isPercentage() const { return unit == u"%"; }
};

std::optional<Argument> readArgument(std::u16string_view text) {
    ValueCursor cursor{text, Dialect::SvgAttribute};
    Argument argument;
    if (!readNumber(argument.number, cursor)) return std::nullopt;
    argument.unit = cursor.rest();
    return argument;
}

// Plain, or a percentage of the whole.
std::optional<float> fractionOf(Argument const& argument, float whole) {
    if (!argument.unit.empty() && !argument.isPercentage()) return std::nullopt;
    return std::clamp(argument.number / (argument.isPercentage() ? 100 : whole), 0.0f, 1.0f);
}

// How many there are in a circle; a bare number is in degrees.
constexpr Core::WordRow<float> angleUnits[] = {
    {u"", 360}, {u"deg", 360}, {u"grad", 400}, {u"rad", 2 * std::numbers::pi_v<float>}, {u"turn", 1}};

// In parts of a circle, from 0 to below 1.
std::optional<float> turnsOf(Argument const& hue) {
    auto const unitsInTurn = Core::WordTable<angleUnits, Core::Case::Any>::find(hue.unit);
    if (!unitsInTurn) return std::nullopt;
    float const turns = hue.number / *unitsInTurn;
    return turns - std::floor(turns);
}

Components pureColor(float turns) {
    auto const component = [&](float shift) {
        float const sixths = std::fmod(turns * 6 + shift, 6.0f);
        return std::clamp(std::abs(sixths - 3) - 1, 0.0f, 1.0f);
    };
    return {component(0), component(4), component(2)};
}

// The components that a call gives its three arguments.
std::optional<Components> componentsOf(std::u16string_view name, std::array<Argument, 3> const& arguments) {
    auto const& [first, second, third] = arguments;
    Components components{};
    if (equalsWord(name, "rgb", true) || equalsWord(name, "rgba", true)) {
        for (std::size_t i = 0; i < components.size(); ++i) {
            std::optional<float> const component = fractionOf(arguments[i], 255);
            if (!component || arguments[i].isPercentage() != first.isPercentage()) return std::nullopt;
            components[i] = *component;
        }
        return components;
    }
    std::optional<float> const turns = turnsOf(first);
    if (!turns || !second.isPercentage() || !third.isPercentage()) return std::nullopt;
    float const a = *fractionOf(second, 1), b = *fractionOf(third, 1);
    components = pureColor(*turns);
    if (equalsWord(name, "hsl", true) || equalsWord(name, "hsla", true)) {
        float const reach = a * std::min(b, 1 - b);
        for (float& component : components) component = b + reach * (2 * component - 1);
        return components;
    }
    if (!equalsWord(name, "hwb", true)) return std::nullopt;
    for (float& component : components) component = a + b >= 1 ? a / (a + b) : a + component * (1 - a - b);
    return components;
}

std::optional<NewerColor> readHexadecimal(std::u16string_view digits) {
    bool const isShort = digits.size() == 4;
    bool const areDigits = std::ranges::all_of(digits, [](char16_t unit) { return Core::hexDigit(unit) >= 0; });
    if ((!isShort && digits.size() != 8) || !areDigits) return std::nullopt;
    std::uint32_t rgba = 0;
    for (char16_t const digit : digits) {
        auto const value = static_cast<std::uint32_t>(Core::hexDigit(digit));
        rgba = isShort ? rgba << 8 | value * 0x11 : rgba << 4 | value;
    }
    return NewerColor{rgba >> 8, (rgba & 0xFF) == 0xFF};
}

// Whether one comma stands between any two of the pieces of a text, and none elsewhere.
bool areSeparatedByCommas(std::u16string_view text, std::vector<std::u16string_view> const& pieces) {
    char16_t const* at = text.data();
    for (std::u16string_view const piece : pieces) {
        if (std::count(at, piece.data(), u',') != (piece.data() == pieces.front().data() ? 0 : 1)) return false;
        at = piece.data() + piece.size();
    }
    return std::count(at, text.data() + text.size(), u',') == 0;
}

std::optional<NewerColor> readCall(std::u16string_view text) {
    std::size_t const open = text.find(u'(');
    if (open == std::u16string_view::npos || !text.ends_with(u')')) return std::nullopt;
    std::u16string_view const inside = text.substr(open + 1, text.size() - open - 2);
    bool const hasCommas = inside.find(u',') != std::u16string_view::npos;
    std::vector<std::u16string_view> const pieces = splitValues(inside, hasCommas ? u"," : u"", u"/");
    bool const hasAlpha = pieces.size() == (hasCommas ? 4 : 5);
    if (pieces.size() != 3 && !hasAlpha) return std::nullopt;
    if (!hasCommas && hasAlpha && pieces[3] != u"/") return std::nullopt;
    if (hasCommas && !areSeparatedByCommas(inside, pieces)) return std::nullopt;

    std::array<Argument, 3> arguments;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::optional<Argument> const argument = readArgument(pieces[i]);
        if (!argument) return std::nullopt;
        arguments[i] = *argument;
    }
    std::optional<Components> const components = componentsOf(text.substr(0, open), arguments);
    if (!components) return std::nullopt;
    NewerColor color;
    for (float const component : *components)
        color.rgb = color.rgb << 8 | static_cast<std::uint32_t>(std::lround(component * 255));
    if (hasAlpha) {
        std::optional<Argument> const argument = readArgument(pieces.back());
        std::optional<float> const alpha = argument ? fractionOf(*argument, 1) : std::nullopt;
        if (!alpha) return std::nullopt;
        color.isOpaque = *alpha == 1 && (argument->isPercentage() || argument->number <= 1);
    }
    return color;
}

} // namespace

std::optional<NewerColor> readNewerColor(std::u16string_view text) {
    if (equalsWord(text, "rebeccapurple", true)) return NewerColor{0x663399};
    return text.starts_with(u'#') ? readHexadecimal(text.substr(1)) : readCall(text);
}

} // namespace Xml
