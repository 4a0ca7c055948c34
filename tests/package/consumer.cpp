#include <xmlattr/xmlattr.h>

#include <cstdio>

int main() {
    Xml::TXmlAttribute<Xml::Length> width;
    Xml::XmlAttribute& attribute = width;
    if (!attribute.parseValue(u"12.5pt") || !attribute.isEqual(u"12.50pt")) return 1;
    try {
        Xml::Length(1, static_cast<Xml::Length::Unit>(99)).pxSize();
        return 1;
    } catch (Core::UnreacheableCodeException const& exception) {
        std::printf("%s, %s\n", attribute.getValueAsString().toUtf8().c_str(), exception.what());
    }
    return 0;
}
