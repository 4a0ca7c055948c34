// The spaces in which the components of a colour are measured.
#pragma once

#include "xmlattr/core/Object.h"
#include "xmlattr/core/String.h"

namespace Drawing {

using Core::SmartPtr;

// What all colour spaces have in common.
class XMLATTR_API ColorSpace : public Core::Object {
public:
    ~ColorSpace() override;

protected:
    ColorSpace() = default;
};

// Red, green and blue light, as sRGB measures them.
class XMLATTR_API RGBColorSpace : public ColorSpace {
public:
    ~RGBColorSpace() override;
};

// Cyan, magenta, yellow and black ink, of no particular device.
class XMLATTR_API CMYKColorSpace : public ColorSpace {
public:
    ~CMYKColorSpace() override;
};

// The space of an ICC profile, known by the profile's name.
class XMLATTR_API ICCColorSpace : public ColorSpace {
public:
    // Takes the profile as colour texts write it: one leading "#" is no part of the name.
    explicit ICCColorSpace(std::u16string_view profile);
    ~ICCColorSpace() override;

    Core::String const& getProfileName() const { return profileName; }

private:
    Core::String profileName;
};

} // namespace Drawing
