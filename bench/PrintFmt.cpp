#include "Printers.h"

#include <fmt/compile.h>

namespace Bench::Fmt {

namespace {

using View = std::u16string_view;

// Formats into a buffer and makes the string of it: less work than to let the string grow.
template <class Format, class... Arguments> std::u16string print(Format const& format, Arguments const&... arguments) {
    char16_t buffer[256];
    return {buffer, fmt::format_to(buffer, format, arguments...)};
}

constexpr View units[] = {u"px", u"pt", u"pc", u"cm", u"mm", u"in", u"em", u"ex"}; // in the order of Length::Unit

View unitOf(Xml::Length const& length) {
    return units[length.getUnit()];
}

Drawing::RGBColor const& asRGB(Core::SmartPtr<Drawing::Color> const& color) {
    return static_cast<Drawing::RGBColor const&>(*color);
}

} // namespace

std::u16string print(int value) {
    return print(FMT_COMPILE(u"{}"), value);
}

std::u16string print(float value) {
    return print(FMT_COMPILE(u"{}"), value);
}

std::u16string print(Xml::Length const& value) {
    return print(FMT_COMPILE(u"{:.3f}{}"), value.getSize(), unitOf(value));
}

std::u16string print(Xml::LengthOrPercent const& value) {
    if (!value.isPercent()) return print(value.getLength());
    return print(FMT_COMPILE(u"{:.3f}%"), value.getPercent() * 100.0);
}

std::u16string print(Core::Vector<Xml::Point> const& value) {
    fmt::basic_memory_buffer<char16_t> out;
    for (Xml::Point const& point : value)
        fmt::format_to(std::back_inserter(out), FMT_COMPILE(u"{} {},"), point.x.getSize(), point.y.getSize());
    return {out.data(), out.size() - 1};
}

std::u16string print(Xml::BoxShadow const& value) {
    Xml::Length const dx = value.getDx(), dy = value.getDy(), blur = value.getBlurRadius();
    auto const color = value.getColor();
    Drawing::RGBColor const& rgb = asRGB(color);
    return print(FMT_COMPILE(u"{:.3f}{} {:.3f}{} {:.3f}{} rgb({},{},{})"), dx.getSize(), unitOf(dx), dy.getSize(),
                 unitOf(dy), blur.getSize(), unitOf(blur), rgb.getR(), rgb.getG(), rgb.getB());
}

std::u16string print(Drawing::RGBColor const& value) {
    return print(FMT_COMPILE(u"rgb({},{},{})"), value.getR(), value.getG(), value.getB());
}

std::u16string print(Drawing::CMYKColor const& value) {
    return print(FMT_COMPILE(u"cmyk({},{},{},{})"), value.getC(), value.getM(), value.getY(), value.getK());
}

std::u16string print(Drawing::ICCColor const& value) {
    auto const space = value.getColorSpace();
    return print(FMT_COMPILE(u"rgb-icc({},{},{},#{},{}, {}, {}, {})"), value.getFallBackR(), value.getFallBackG(),
                 value.getFallBackB(), View(space->getProfileName()), value.getColor(0), value.getColor(1),
                 value.getColor(2), value.getColor(3));
}

std::u16string print(Drawing::SpotColor const& value) {
    auto const function = value.getFunction();
    auto const end = static_cast<Drawing::ExponentialSpotColorFunction const&>(*function).getEndColor();
    Drawing::RGBColor const& rgb = asRGB(end);
    return print(FMT_COMPILE(u"spot-color({},{},cmyk({},{},{},))"), View(value.getColorName()), value.getTint(),
                 rgb.getR(), rgb.getG(), rgb.getB());
}

} // namespace Bench::Fmt
