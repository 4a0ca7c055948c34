#include "Printers.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

namespace Bench::Floors {

namespace {

// A number with three decimals.
struct Measure {
    double value;
};

constexpr std::ptrdiff_t longest = 64; // one number

char* put(char* out, std::string_view text) {
    return std::copy(text.begin(), text.end(), out);
}

char* put(char* out, Measure measure) {
    return std::to_chars(out, out + longest, measure.value, std::chars_format::fixed, 3).ptr;
}

template <class Number>
requires std::is_arithmetic_v<Number>
char* put(char* out, Number number) {
    return std::to_chars(out, out + longest, number).ptr;
}

template <class... Pieces> char* putAll(char* out, Pieces const&... pieces) {
    ((out = put(out, pieces)), ...);
    return out;
}

constexpr std::string_view units[] = {"px", "pt", "pc", "cm", "mm", "in", "em", "ex"}; // in the order of Length::Unit

Drawing::RGBColor const& asRGB(Core::SmartPtr<Drawing::Color> const& color) {
    return static_cast<Drawing::RGBColor const&>(*color);
}

} // namespace

char* print(char* out, int value) {
    return put(out, value);
}

char* print(char* out, float value) {
    return put(out, value);
}

char* print(char* out, Xml::Length const& value) {
    return putAll(out, Measure{value.getSize()}, units[value.getUnit()]);
}

char* print(char* out, Xml::LengthOrPercent const& value) {
    return value.isPercent() ? putAll(out, Measure{value.getPercent() * 100.0}, "%") : print(out, value.getLength());
}

char* print(char* out, Core::Vector<Xml::Point> const& value) {
    for (Xml::Point const& point : value) out = putAll(out, point.x.getSize(), " ", point.y.getSize(), ",");
    return out - 1;
}

char* print(char* out, Xml::BoxShadow const& value) {
    for (Xml::Length const& length : {value.getDx(), value.getDy(), value.getBlurRadius()})
        out = putAll(print(out, length), " ");
    return print(out, asRGB(value.getColor()));
}

char* print(char* out, Drawing::RGBColor const& value) {
    return putAll(out, "rgb(", value.getR(), ",", value.getG(), ",", value.getB(), ")");
}

char* print(char* out, Drawing::CMYKColor const& value) {
    return putAll(out, "cmyk(", value.getC(), ",", value.getM(), ",", value.getY(), ",", value.getK(), ")");
}

char* print(char* out, Drawing::ICCColor const& value) {
    return putAll(out, "rgb-icc(", value.getFallBackR(), ",", value.getFallBackG(), ",", value.getFallBackB(), ",#",
                  name, ",", value.getColor(0), ", ", value.getColor(1), ", ", value.getColor(2), ", ",
                  value.getColor(3), ")");
}

char* print(char* out, Drawing::SpotColor const& value) {
    auto const function = value.getFunction();
    auto const end = static_cast<Drawing::ExponentialSpotColorFunction const&>(*function).getEndColor();
    Drawing::RGBColor const& rgb = asRGB(end);
    return putAll(out, "spot-color(", name, ",", value.getTint(), ",cmyk(", rgb.getR(), ",", rgb.getG(), ",",
                  rgb.getB(), ",))");
}

} // namespace Bench::Floors
