// What a debugger stops in: it must see the values.
#include "xmlattr/Instantiations.h"

int main() {
    Xml::TXmlAttribute<Xml::Length> width;
    width.parseValue(u"12pt"); // line 6, where the debugger stops
    return 0;
}
