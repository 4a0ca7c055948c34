#include "xmlattr/color/ColorParse.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/color/ColorNames.h"
#include "xmlattr/core/Append.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/core/StringFormatStream.h"
#include "xmlattr/drawing/ColorText.h"
#include "xmlattr/drawing/SpotColor.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <typeinfo>

namespace Xml {

using namespace std::string_view_literals; // their length is known at compile time

namespace {

using ColorPtr = SmartPtr<Drawing::Color>;

enum Warning { UnknownSpotColor = 30001, IncompleteICCColor = 30002 };

void warn(Warning id, std::u16string_view argument) {
    Core::StringFormatStream message(Core::String::loadString(id));
    message << Core::String(argument);
    Core::Log::warning(message.getString());
}

// Core::Format::parseHexInt would take an "0x" as well, but that needs a third code unit: of the two
// of a component it accepts exactly two digits, as this does.
bool readHexa(ColorPtr& color, std::u16string_view text) {
    if ((text.size() != 4 && text.size() != 7) || text[0] != u'#') return false;
    std::size_t const step = text.size() / 3; // a single digit stands for both
    unsigned char components[3];
    int allDigits = 0; // negative as soon as one is
    for (std::size_t i = 0; i < 3; ++i) {
        int const high = Core::hexDigit(text[1 + i * step]), low = Core::hexDigit(text[step + i * step]);
        allDigits |= high | low;
        components[i] = static_cast<unsigned char>(high * 16 + low);
    }
    if (allDigits < 0) return false;
    color = new Drawing::RGBColor(components[0], components[1], components[2]);
    return true;
}

// The next argument of an rgb-icc text, trimmed; empty from the ")" on. The cursor stops at the delimiter after it.
// Intended: an argument of rgb-icc that no delimiter ends is empty; without its ")" a colour loses its last component.
std::u16string_view takeArgument(TextCursor& cursor) {
    if (!cursor.take(u',')) cursor.take(u'(');
    std::u16string_view const argument = cursor.takeWhile([](char16_t unit) { return unit != u',' && unit != u')'; });
    return cursor.atEnd() ? std::u16string_view() : Core::trim(argument);
}

// Intended: unlike in rgb(...), a percentage is an integer and taken of 255, and may go beyond that range too.
bool readFallBack(std::u16string_view text, unsigned char& value) {
    int number = 0;
    if (!Core::Format::parseInt(text, number)) return false;
    value = static_cast<unsigned char>(text.ends_with(u'%') ? std::int64_t{number} * 255 / 100 : number);
    return true;
}

bool readICC(ColorPtr& color, std::u16string_view text) {
    std::size_t const open = text.find(u'(');
    std::u16string_view fallBack[3], profile, components[4];
    if (open != std::u16string_view::npos) {
        TextCursor cursor{text, static_cast<int>(open)};
        for (std::u16string_view& argument : fallBack) argument = takeArgument(cursor);
        profile = takeArgument(cursor);
        for (std::u16string_view& argument : components) argument = takeArgument(cursor);
    }
    if (fallBack[0].empty() || fallBack[1].empty() || fallBack[2].empty() || profile.empty()) {
        warn(IncompleteICCColor, text);
        return false;
    }
    unsigned char rgb[3];
    for (int i = 0; i < 3; ++i)
        if (!readFallBack(fallBack[i], rgb[i])) return false;
    float numbers[4];
    for (int i = 0; i < 4; ++i)
        if (!Core::Format::parseFloat(components[i], numbers[i])) return false; // nothing reads as 0

    int given = 0;
    while (given < 4 && !components[given].empty()) ++given;
    if (given == 0) {
        warn(IncompleteICCColor, text);
        return false;
    }
    int const count = given == 2 ? 1 : given; // Intended: of two components of an rgb-icc only the first counts
    SmartPtr<Drawing::ICCColor> const icc = new Drawing::ICCColor(count, numbers, new Drawing::ICCColorSpace(profile));
    icc->setFallBack(rgb[0], rgb[1], rgb[2]);
    color = icc;
    return true;
}

// A list cut at its first comma; what follows the comma is trimmed.
// Intended: blanks between the name of a spot colour and the comma belong to the name.
struct Cut {
    std::u16string_view first, rest;
    explicit Cut(std::u16string_view list) : first(list) {
        std::size_t const comma = list.find(u',');
        if (comma == std::u16string_view::npos) return;
        first = list.substr(0, comma);
        rest = Core::trim(list.substr(comma + 1));
    }
};

SmartPtr<Drawing::SpotColorFunction> blackFunction() {
    ColorPtr const black = new Drawing::RGBColor(0, 0, 0);
    return new Drawing::ExponentialSpotColorFunction(new Drawing::RGBColorSpace, black, black, 1);
}

bool readSpot(ColorPtr& color, std::u16string_view text) {
    std::size_t const open = text.find(u'('), close = text.rfind(u')');
    if (open == std::u16string_view::npos || close == std::u16string_view::npos || close < open + 2) return false;
    Cut const list(Core::trim(text.substr(open + 1, close - open - 1)));
    std::u16string_view const name = list.first;
    if (name.empty()) return false;

    float tint = 1;
    std::u16string_view alternate = list.rest;
    if (!alternate.empty()) {
        Cut const cut(alternate);
        // Intended: "%" does not scale the tint of a spot colour; that of "50%" is 50.
        if (Core::Format::parseFloat(Core::trim(cut.first), tint)) alternate = cut.rest;
    }
    SmartPtr<Drawing::SpotColorFunction> function;
    if (!alternate.empty()) function = Drawing::SpotColorFunction::parseColorFunctionString(alternate);
    if (!function) function = Drawing::SpotColorMapper::getFunction(name);
    if (!function) {
        warn(UnknownSpotColor, name);
        function = blackFunction();
    }
    color = new Drawing::SpotColor(name, tint, function);
    return true;
}

bool readName(ColorPtr& color, std::u16string_view text) {
    if (auto const rgb = Core::WordTable<colorNames, Core::Case::Any>::find(text)) {
        color = new Drawing::RGBColor(static_cast<unsigned char>(*rgb >> 16), static_cast<unsigned char>(*rgb >> 8),
                                      static_cast<unsigned char>(*rgb));
        return true;
    }
    if (Core::WordTable<noColorNames, Core::Case::Any>::find(text)) {
        color = nullptr;
        return true;
    }
    Core::String const system = Core::OSInfo::getSystemColor(text);
    return !system.empty() && Drawing::readRGB(color, system);
}

bool store(bool (*read)(ColorPtr&, std::u16string_view), Core::String const& text, ColorParse::Target* target) {
    ColorPtr color;
    if (!read(color, text)) return false;
    target->setValue(color);
    return true;
}

// What use() makes of an object as the class that it is of; an empty result without one, and for a class of somebody
// else. Nearly every object is of one of the classes itself, which is seen much sooner than that it is of a derived
// one.
template <class... Classes> struct OneOf {
    template <class Base, class Use> static auto visit(SmartPtr<Base> const& object, Use use) {
        using Result = std::common_type_t<std::invoke_result_t<Use, Classes const&>...>;
        return object ? visitExact<Result, Base, Use, Classes...>(*object.get(), use) : Result();
    }

private:
    template <class Result, class Base, class Use, class Class, class... Others>
    static Result visitExact(Base const& object, Use& use) {
        if (&typeid(object) == &typeid(Class)) return use(static_cast<Class const&>(object));
        if constexpr (sizeof...(Others) > 0)
            return visitExact<Result, Base, Use, Others...>(object, use);
        else
            return visitDerived<Result, Base, Use, Classes...>(object, use);
    }

    template <class Result, class Base, class Use, class Class, class... Others>
    static Result visitDerived(Base const& object, Use& use) {
        if (auto const* const derived = dynamic_cast<Class const*>(&object)) return use(*derived);
        if constexpr (sizeof...(Others) > 0)
            return visitDerived<Result, Base, Use, Others...>(object, use);
        else
            return Result();
    }
};
using AnyColor = OneOf<Drawing::RGBColor, Drawing::CMYKColor, Drawing::ICCColor, Drawing::SpotColor>;

Core::String print(Drawing::RGBColor const& color) {
    return Core::joined(u"rgb(", color.getR(), u",", color.getG(), u",", color.getB(), u")");
}

Core::String print(Drawing::CMYKColor const& color) {
    return Core::joined(u"cmyk(", color.getC(), u",", color.getM(), u",", color.getY(), u",", color.getK(), u")");
}

Core::String print(Drawing::ICCColor const& color) {
    SmartPtr<Drawing::ICCColorSpace> const space = color.getColorSpace();
    if (!space) return {};
    auto const with = [&](auto const&... components) {
        return Core::joined(u"rgb-icc(", color.getFallBackR(), u",", color.getFallBackG(), u",", color.getFallBackB(),
                            u",#", space->getProfileName(), u",", components..., u")");
    };
    float const first = color.getColor(0), second = color.getColor(1), third = color.getColor(2);
    switch (color.getCount()) {
    case 1: return with(first);
    case 3: return with(first, u", ", second, u", ", third);
    case 4: return with(first, u", ", second, u", ", third, u", ", color.getColor(3));
    }
    return {};
}

// Intended: an RGB end prints as cmyk(...) without its fourth number and a CMYK end as rgb(...)
// without its black; readers of such texts rely on it.
Core::String print(Drawing::SpotColor const& color) {
    auto const with = [&](auto const&... pieces) {
        return Core::joined(u"spot-color(", color.getColorName(), u",", color.getTint(), u",", pieces...);
    };
    return OneOf<Drawing::ExponentialSpotColorFunction>::visit(color.getFunction(), [&](auto const& function) {
        return OneOf<Drawing::RGBColor, Drawing::CMYKColor>::visit(
            function.getEndColor(), [&]<class End>(End const& end) {
                if constexpr (std::is_same_v<End, Drawing::RGBColor>)
                    return with(u"cmyk(", end.getR(), u",", end.getG(), u",", end.getB(), u",))");
                else
                    return with(u"rgb(", end.getC(), u",", end.getM(), u",", end.getY(), u"))");
            });
    });
}

void addColor(Parts& out, unsigned char r, unsigned char g, unsigned char b) {
    out.add(u"rgb") << r << u" " << g << u" " << b;
    out.rgb = std::uint32_t{r} << 16 | std::uint32_t{g} << 8 | b;
}

// How much light an ink and the black above it leave without a colour profile.
std::uint32_t shadeOf(double ink, double black) {
    auto const light = [](double part) { return 1 - std::clamp(part, 0.0, 1.0); };
    return static_cast<std::uint32_t>(std::lround(255 * light(ink) * light(black)));
}

void addParts(Parts& out, Drawing::RGBColor const& rgb) {
    out.add(u"kind") << u"RGB";
    addColor(out, rgb.getR(), rgb.getG(), rgb.getB());
}

void addParts(Parts& out, Drawing::CMYKColor const& cmyk) {
    double const c = cmyk.getC(), m = cmyk.getM(), y = cmyk.getY(), k = cmyk.getK();
    out.add(u"kind") << u"CMYK";
    out.add(u"cmyk") << c << u" " << m << u" " << y << u" " << k;
    out.rgb = shadeOf(c, k) << 16 | shadeOf(m, k) << 8 | shadeOf(y, k);
}

void addParts(Parts& out, Drawing::ICCColor const& icc) {
    out.add(u"kind") << u"ICC";
    addColor(out, icc.getFallBackR(), icc.getFallBackG(), icc.getFallBackB());
    if (auto const space = icc.getColorSpace()) out.add(u"profile") << space->getProfileName();
    for (int i = 0; i < std::min(icc.getCount(), 4); ++i)
        out.add(u"component") << icc.getColor(i); // all that there are
}

void addParts(Parts& out, Drawing::SpotColor const& spot) {
    out.add(u"kind") << u"spot";
    out.add(u"name") << spot.getColorName();
    out.add(u"tint") << spot.getTint();
}

} // namespace

bool AttributeTraits<ColorPtr>::parse(ColorPtr& value, std::u16string_view text) {
    if (text.starts_with(u'#')) return readHexa(value, text); // first, since it is the most frequent
    if (text.starts_with(u"rgb"sv))
        return text.substr(3).starts_with(u"-icc"sv) ? readICC(value, text) : Drawing::readRGB(value, text);
    if (text.starts_with(u"spot-color"sv)) return readSpot(value, text);
    if (text.starts_with(u"cmyk"sv)) return Drawing::readCMYK(value, text);
    return readName(value, text);
}

Core::String AttributeTraits<ColorPtr>::print(ColorPtr const& value) {
    return AnyColor::visit(value, [](auto const& color) { return Xml::print(color); });
}

bool ColorParse::parseHexaColor(Core::String const& text, Target* target) {
    return store(readHexa, text, target);
}

bool ColorParse::parseRGB(Core::String const& text, Target* target) {
    return store(Drawing::readRGB, text, target);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
bool ColorParse::parseCMYKString(Core::String text, Target* target) {
    return store(Drawing::readCMYK, text, target);
}

bool ColorParse::parseICCColor(Core::String const& text, Target* target) {
    return store(readICC, text, target);
}

bool ColorParse::parseSpotColor(Core::String const& text, Target* target) {
    return store(readSpot, text, target);
}

bool ColorParse::parseColorName(Core::String const& text, Target* target) {
    return store(readName, text, target);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
Core::String ColorParse::getColorAsString(ColorPtr color) {
    return AttributeTraits<ColorPtr>::print(color);
}

void AttributeTraits<ColorPtr>::words(Words& out) {
    out.addAll(noColorNames);
    out.addAll(colorNames);
}

void AttributeTraits<ColorPtr>::parts(ColorPtr const& value, Parts& out) {
    if (!value) out.add(u"kind") << u"no colour";
    AnyColor::visit(value, [&](auto const& color) { addParts(out, color); });
}

} // namespace Xml
