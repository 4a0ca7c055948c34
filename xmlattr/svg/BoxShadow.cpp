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
    value = std::move(shadow);
    return true;
}

Core::String AttributeTraits<BoxShadow>::print(BoxShadow const& value) {
    std::u16string out;
    out.reserve(64); // most shadows are shorter
    for (Length const* length : {&value.dx, &value.dy, &value.blurRadius}) {
        appendLength(out, *length);
        out += u' ';
    }
    out += AttributeTraits<SmartPtr<Drawing::Color>>::print(value.color);
    return Core::String(std::move(out));
}

void AttributeTraits<BoxShadow>::words(Words& out) {
    AttributeTraits<SmartPtr<Drawing::Color>>::words(out);
}

void AttributeTraits<BoxShadow>::parts(BoxShadow const& value, Parts& out) {
    out.add(u"offset") << Length::getValueAsString(value.getDx()) << u" " << Length::getValueAsString(value.getDy());
    out.add(u"blur") << Length::getValueAsString(value.getBlurRadius());
    AttributeTraits<SmartPtr<Drawing::Color>>::parts(value.getColor(), out);
}

} // namespace Xml
