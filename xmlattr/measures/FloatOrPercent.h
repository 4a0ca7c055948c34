// A number that may be written as a percentage.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

namespace Xml {

// A number, or a number with "%", which is held as its fraction: "50%" and "0.5" are one value. A
// failed parse changes nothing; there is no printer.
class XMLATTR_API FloatOrPercent {
public:
    constexpr FloatOrPercent() = default;
    constexpr FloatOrPercent(float newValue) : value(newValue) {}

    constexpr float getValue() const { return value; }

    constexpr bool operator==(FloatOrPercent const&) const = default;

private:
    float value = 0;
};

static_assert(sizeof(FloatOrPercent) == 4);

template <> struct XMLATTR_API AttributeTraits<FloatOrPercent> {
    static bool parse(FloatOrPercent& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{{u"a number", u"a percentage"}, {u"0.5", u"50%"}};
    static void parts(FloatOrPercent const& value, Parts& out);
};

} // namespace Xml
