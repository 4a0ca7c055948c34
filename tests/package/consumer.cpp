#include <xmlattr/xmlattr.h>

#include <cstdio>

int main() {
    using namespace Xml;
    TXmlAttribute<Length> width;
    XmlAttribute& attribute = width;
    if (!attribute.parseValue(u"12.5pt") || !attribute.isEqual(u"12.50pt")) return 1;
    TXmlAttribute<SmartPtr<Drawing::Color>> color;
    color.copyFrom(DefaultManagedBackground);
    if (color.getValueAsString() != u"rgb(255,255,255)") return 1;

    // The library keeps some value types to itself, but not the values of their constants.
    if (DefaultWidowsAndOrphans.getValue() != 2 || DefaultFontFamily->length() != 5) return 1;
    if (*DefaultFOVisibilityAttribute != Visibility::Visible || DefaultAspect3DShading != 0.75f) return 1;
    try {
        Length(1, static_cast<Length::Unit>(99)).pxSize();
        return 1;
    } catch (Core::UnreacheableCodeException const& exception) {
        std::printf("%s, %s\n", attribute.getValueAsString().toUtf8().c_str(), exception.what());
    }
    return 0;
}
