// What somebody else's program does with the library: it reads, prints, compares, copies a constant and, where it is
// compiled with exceptions, catches one. Compiled into programs, into libraries that programs link, and into plugins
// that they load; USE is then the name by which each calls its own.
#include <xmlattr/xmlattr.h>

#include <cstdio>
#include <cstring>

#ifndef USE
#define USE use
#endif
#ifdef _WIN32
#define VISIBLE __declspec(dllexport)
#else
#define VISIBLE __attribute__((visibility("default")))
#endif

#define REQUIRE(condition)                                                                                             \
    if (!(condition)) {                                                                                                \
        std::fprintf(stderr, "use.cpp:%d: not so: %s\n", __LINE__, #condition);                                        \
        return 1;                                                                                                      \
    }

extern "C" VISIBLE int USE();

int USE() {
    using namespace Xml;
    REQUIRE(XMLATTR_VERSION >= 20000);
    REQUIRE(Core::version() && std::strncmp(Core::version(), "2.", 2) == 0);

    TXmlAttribute<Length> width;
    XmlAttribute& attribute = width;
    REQUIRE(attribute.parseValue(u"12.5pt") && attribute.isEqual(u"12.50pt") && !attribute.isEqual(u"13pt"));
    REQUIRE(attribute.getValueAsString() == u"12.5pt");
    REQUIRE(!attribute.parseValue(u"5 parsecs") && attribute.getValueAsString() == u"12.5pt");

    TXmlAttribute<SmartPtr<Drawing::Color>> color;
    color.copyFrom(DefaultManagedBackground);
    REQUIRE(color.getValueAsString() == u"rgb(255,255,255)");
    REQUIRE(color.parseValue(u"DarkOrange") && color.getValueAsString() == u"rgb(255,140,0)");
    TXmlAttribute<BorderStyle> style;
    REQUIRE(style.parseValue(u"dashed") && style.getValueAsString() == u"dashed");

    // The library keeps some value types to itself, but not the values of their constants.
    REQUIRE(DefaultWidowsAndOrphans.getValue() == 2 && DefaultFontFamily->length() == 5);
    REQUIRE(*DefaultFOVisibilityAttribute == Visibility::Visible && DefaultAspect3DShading == 0.75f);

#ifdef __cpp_exceptions
    bool caught = false;
    try {
        Length(1, static_cast<Length::Unit>(99)).pxSize();
    } catch (Core::UnreacheableCodeException const& exception) {
        caught = std::strlen(exception.what()) > 0;
    }
    REQUIRE(caught);
#endif
    return 0;
}
