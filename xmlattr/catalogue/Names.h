// What is known of a name that a document uses: whether the vocabulary has it, whether a newer recommendation
// does, and which known name stands nearest.
#pragma once

#include "xmlattr/catalogue/Catalogue.h"

namespace Xml {

// Who knows a name.
enum class NameStanding : std::uint8_t {
    Known, // the vocabulary has it, on some element at least
    Newer, // a newer recommendation has it: SVG 2, SVG Tiny 1.2, CSS
    Open,  // of a family that anybody may add to: data-*, aria-*, event handlers, -vendor-property, --property
    Unknown
};

// What is known of a name. Its text lives as long as the program.
struct NameFact {
    NameStanding standing;
    // Of a newer name: the recommendation that has it. Of an unknown one: the known name that differs in case only,
    // lost its prefix (space for xml:space) or is one letter away, exchanged neighbours included; or nothing.
    std::string_view text;
};

// Local names; those of the XML and XLink namespaces with their usual prefix. Known names are found in
// constant time, others in time linear in the vocabulary; nothing is allocated.
class XMLATTR_API Names {
public:
    // Names are exact in case.
    static NameFact ofElement(Vocabulary vocabulary, std::string_view element) noexcept;
    static NameFact ofAttribute(Vocabulary vocabulary, std::string_view attribute) noexcept;
    // Whether SVG 2 gives the element of SVG 1.1 an attribute that SVG 1.1 has on others alone: class, style,
    // lang and the presentation attributes on every element, pathLength on every shape, and the like.
    static bool isNewerOn(std::string_view element, std::string_view attribute) noexcept;
    // A property in a style attribute of SVG, where case does not matter.
    static NameFact ofProperty(std::string_view property) noexcept;
    // A namespace: known are those of XSL-FO, SVG, XLink and XSLT. Another one is unknown when it is nearly one of
    // these, its scheme and a slash at its end apart, and else open.
    static NameFact ofNamespace(std::string_view name) noexcept;
};

} // namespace Xml
