// Spot colours: inks known by name, and the functions that render them on other devices.
#pragma once

#include "xmlattr/drawing/Color.h"

namespace Drawing {

// How a spot colour looks at each tint where its ink is not at hand.
class XMLATTR_API SpotColorFunction : public Core::Object {
public:
    ~SpotColorFunction() override;

    // Reads an alternate colour, rgb(...) or cmyk(...) as colour attributes write them: the
    // function that goes from white, or from no ink, straight to that colour. Null for every other
    // text.
    static SmartPtr<SpotColorFunction> parseColorFunctionString(std::u16string_view text);

protected:
    SpotColorFunction() = default;
};

// At tint t each component is start + t^exponent * (end - start), in the given space.
class XMLATTR_API ExponentialSpotColorFunction : public SpotColorFunction {
public:
    ExponentialSpotColorFunction(SmartPtr<ColorSpace> colorSpace, SmartPtr<Color> startColor, SmartPtr<Color> endColor,
                                 double exponent);
    ~ExponentialSpotColorFunction() override;

    SmartPtr<ColorSpace> getColorSpace() const { return colorSpace; }
    SmartPtr<Color> getStartColor() const { return startColor; }
    SmartPtr<Color> getEndColor() const { return endColor; }
    double getExponent() const { return exponent; }

private:
    SmartPtr<ColorSpace> colorSpace;
    SmartPtr<Color> startColor, endColor;
    double exponent;
};

// A tint of an ink, 1 for all of it, and how it looks where the ink is not at hand; the function may be null.
class XMLATTR_API SpotColor : public Color {
public:
    SpotColor(Core::String colorName, float tint, SmartPtr<SpotColorFunction> function);
    SpotColor(SpotColor const&) = default;
    ~SpotColor() override;

    Core::String const& getColorName() const { return colorName; }
    float getTint() const { return tint; }
    SmartPtr<SpotColorFunction> getFunction() const { return function; }

    SmartPtr<Color> clone() const override;

private:
    Core::String colorName;
    float tint;
    SmartPtr<SpotColorFunction> function;
};

// The spot colours that the program knows; none at first. Names are exact in case and blanks. Any
// thread may call any of these functions.
class XMLATTR_API SpotColorMapper {
public:
    // Null for a name that is not registered.
    static SmartPtr<SpotColorFunction> getFunction(std::u16string_view name);

    // Replaces the function that the name had; a null function makes the name unknown again.
    static void setFunction(std::u16string_view name, SmartPtr<SpotColorFunction> function);
    // Forgets every name.
    static void clear();
};

} // namespace Drawing
