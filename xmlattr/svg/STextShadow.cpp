#include "xmlattr/svg/STextShadow.h"

#include "xmlattr/measures/Units.h"
#include "xmlattr/svg/ShadowReader.h"

namespace Xml {

bool STextShadow::read(std::u16string_view text) {
    return readShadow(text, {&dx, &dy, &blurRadius},
                      [this](std::u16string_view part) { return AttributeTraits<SNullableColor>::parse(color, part); });
}

bool STextShadow::readFromString(Core::String const& text) {
    return read(text);
}

bool AttributeTraits<STextShadow>::parse(STextShadow& value, std::u16string_view text) {
    STextShadow shadow;
    if (!shadow.read(text)) return false;
    value = std::move(shadow);
    return true;
}

void AttributeTraits<STextShadow>::words(Words& out) {
    AttributeTraits<SNullableColor>::words(out);
}

void AttributeTraits<STextShadow>::parts(STextShadow const& value, Parts& out) {
    out.add(u"offset") << value.getDx() << u" " << value.getDy();
    out.add(u"blur") << value.getBlurRadius();
    AttributeTraits<SNullableColor>::parts(value.getColor(), out);
}

} // namespace Xml
