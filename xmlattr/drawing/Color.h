// Colour objects. They are shared through SmartPtr; a null pointer means no colour.
#pragma once

#include "xmlattr/drawing/ColorSpace.h"

namespace Drawing {

// What all colours have in common; the class of the object tells the rest.
class XMLATTR_API Color : public Core::Object {
public:
    ~Color() override;
    // A new colour of the same class and contents, with no reference yet but the result; null for a
    // class that cannot be copied.
    virtual SmartPtr<Color> clone() const;

protected:
    Color() = default;
    Color(Color const&) = default;
};

// Components from 0 to 255.
class XMLATTR_API RGBColor : public Color {
public:
    RGBColor(unsigned char newR, unsigned char newG, unsigned char newB) : r(newR), g(newG), b(newB) {}
    RGBColor(RGBColor const&) = default;
    ~RGBColor() override;

    unsigned char getR() const { return r; }
    unsigned char getG() const { return g; }
    unsigned char getB() const { return b; }

    SmartPtr<Color> clone() const override;

private:
    unsigned char r, g, b;
};

// Fractions of full ink, 0 to 1; values outside are kept as they are.
class XMLATTR_API CMYKColor : public Color {
public:
    CMYKColor(double newC, double newM, double newY, double newK) : c(newC), m(newM), y(newY), k(newK) {}
    CMYKColor(CMYKColor const&) = default;
    ~CMYKColor() override;

    double getC() const { return c; }
    double getM() const { return m; }
    double getY() const { return y; }
    double getK() const { return k; }

    SmartPtr<Color> clone() const override;

private:
    double c, m, y, k;
};

// Components in the space of an ICC profile, and the RGB colour for devices without that profile.
class XMLATTR_API ICCColor : public Color {
public:
    // `count` says how many of the four components the profile has. The fallback starts black.
    ICCColor(int count, float const (&components)[4], SmartPtr<ICCColorSpace> colorSpace);
    ICCColor(ICCColor const&) = default;
    ~ICCColor() override;

    int getCount() const { return count; }
    // Component 0 to 3; throws std::out_of_range elsewhere.
    float getColor(int index) const;
    SmartPtr<ICCColorSpace> getColorSpace() const { return colorSpace; }

    void setFallBack(unsigned char r, unsigned char g, unsigned char b) {
        fallBackR = r;
        fallBackG = g;
        fallBackB = b;
    }
    unsigned char getFallBackR() const { return fallBackR; }
    unsigned char getFallBackG() const { return fallBackG; }
    unsigned char getFallBackB() const { return fallBackB; }

    SmartPtr<Color> clone() const override;

private:
    int count;
    float components[4];
    SmartPtr<ICCColorSpace> colorSpace;
    unsigned char fallBackR = 0, fallBackG = 0, fallBackB = 0;
};

} // namespace Drawing
