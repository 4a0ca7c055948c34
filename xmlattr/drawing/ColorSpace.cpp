#include "xmlattr/drawing/ColorSpace.h"

namespace Drawing {

ColorSpace::~ColorSpace() = default;
RGBColorSpace::~RGBColorSpace() = default;
CMYKColorSpace::~CMYKColorSpace() = default;

ICCColorSpace::ICCColorSpace(std::u16string_view profile)
    : profileName(profile.starts_with(u'#') ? profile.substr(1) : profile) {}
ICCColorSpace::~ICCColorSpace() = default;

} // namespace Drawing
