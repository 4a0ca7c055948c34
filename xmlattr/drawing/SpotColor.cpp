#include "xmlattr/drawing/SpotColor.h"

#include "xmlattr/drawing/ColorText.h"

#include <functional>
#include <map>
#include <mutex>
#include <shared_mutex>
#include <utility>

namespace Drawing {

namespace {

struct Registry {
    std::shared_mutex mutex;
    std::map<std::u16string, SmartPtr<SpotColorFunction>, std::less<>> functions;
};

Registry& registry() {
    static Registry instance;
    return instance;
}

} // namespace

SpotColorFunction::~SpotColorFunction() = default;

SmartPtr<SpotColorFunction> SpotColorFunction::parseColorFunctionString(std::u16string_view text) {
    SmartPtr<Color> color;
    if (text.starts_with(u"rgb") && !text.starts_with(u"rgb-icc") && readRGB(color, text))
        return new ExponentialSpotColorFunction(new RGBColorSpace, new RGBColor(255, 255, 255), color, 1);
    if (text.starts_with(u"cmyk") && readCMYK(color, text))
        return new ExponentialSpotColorFunction(new CMYKColorSpace, new CMYKColor(0, 0, 0, 0), color, 1);
    return {};
}

ExponentialSpotColorFunction::ExponentialSpotColorFunction(SmartPtr<ColorSpace> colorSpace, SmartPtr<Color> startColor,
                                                           SmartPtr<Color> endColor, double exponent)
    : colorSpace(std::move(colorSpace)),
      startColor(std::move(startColor)),
      endColor(std::move(endColor)),
      exponent(exponent) {}
ExponentialSpotColorFunction::~ExponentialSpotColorFunction() = default;

SpotColor::SpotColor(Core::String colorName, float tint, SmartPtr<SpotColorFunction> function)
    : colorName(std::move(colorName)), tint(tint), function(std::move(function)) {}
SpotColor::~SpotColor() = default;

SmartPtr<Color> SpotColor::clone() const {
    return new SpotColor(*this);
}

SmartPtr<SpotColorFunction> SpotColorMapper::getFunction(std::u16string_view name) {
    std::shared_lock const lock(registry().mutex);
    auto const found = registry().functions.find(name);
    return found == registry().functions.end() ? SmartPtr<SpotColorFunction>() : found->second;
}

void SpotColorMapper::setFunction(std::u16string_view name, SmartPtr<SpotColorFunction> function) {
    std::unique_lock const lock(registry().mutex);
    if (function)
        registry().functions.insert_or_assign(std::u16string(name), std::move(function));
    else
        registry().functions.erase(std::u16string(name));
}

void SpotColorMapper::clear() {
    std::unique_lock const lock(registry().mutex);
    registry().functions.clear();
}

} // namespace Drawing
