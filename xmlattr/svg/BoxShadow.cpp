#include "xmlattr/svg/BoxShadow.h"

#include "xmlattr/measures/Units.h"
#include "xmlattr/svg/ShadowReader.h"

namespace Xml {

bool BoxShadow::read(std::u16string_view text) {
    return readShadow(text, {&dx, &dy, &blurRadius}, [this](std::u16string_view part) {
        SmartPtr<Drawing::Color> parsed;
        if (!AttributeTraits<SmartPtr<Drawing::Color>>::parse(parsed, part)) return false;
        color = parsed ? parsed->clone() : nullptr;
        return true;
    });
}

bool BoxShadow::readFromString(Core::String const& text) {
    return read(text);
}

bool AttributeTraits<BoxShadow>::parse(BoxShadow& value, std::u16string_view text) {
    BoxShadow shadow;
    if (!shadow.read(text)) return false;
    value = shadow;
    return true;
}

Core::String AttributeTraits<BoxShadow>::print(BoxShadow const& value) {
    std::u16string out;
    for (Length const& length : {value.getDx(), value.getDy(), value.getBlurRadius()}) {
        appendLength(out, length);
        out += u' ';
    }
    out += ColorParse::getColorAsString(value.getColor());
    return Core::String(std::move(out));
}

} // namespace Xml
