// Prints the two constants that take their value from the configuration.
#include <xmlattr/xmlattr.h>

#include <cstdio>

int main() {
    std::printf("%s, %s\n", Xml::DefaultFontSize.getValueAsString().toUtf8().c_str(),
                Xml::DefaultFontFamily.getValue().toUtf8().c_str());
}
