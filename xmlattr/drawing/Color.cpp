#include "xmlattr/drawing/Color.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace Drawing {

Color::~Color() = default;

SmartPtr<Color> Color::clone() const {
    return nullptr;
}

RGBColor::~RGBColor() = default;

SmartPtr<Color> RGBColor::clone() const {
    return new RGBColor(*this);
}

CMYKColor::~CMYKColor() = default;

SmartPtr<Color> CMYKColor::clone() const {
    return new CMYKColor(*this);
}

ICCColor::ICCColor(int count, float const (&components)[4], SmartPtr<ICCColorSpace> colorSpace)
    : count(count), colorSpace(std::move(colorSpace)) {
    std::copy(std::begin(components), std::end(components), this->components);
}

ICCColor::~ICCColor() = default;

float ICCColor::getColor(int index) const {
    if (index < 0 || index >= std::ssize(components)) throw std::out_of_range("ICCColor::getColor");
    return components[index];
}

SmartPtr<Color> ICCColor::clone() const {
    return new ICCColor(*this);
}

} // namespace Drawing
