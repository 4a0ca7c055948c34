// Defaults of properties, each an attribute of the property's type: the value of a property that a document does
// not set, which other values are compared with. Not every attribute of the catalogue has one.
//
// They never change once the library is loaded, and any thread may read them. Those of keywords,
// numbers and measures need no code when it is loaded; the others are built then, in one order, and
// destroyed in the reverse order when it is unloaded. Two take their value from the configuration as
// it is at that time: DefaultFontFamily from "DefaultFontFamily" ("Times" without it) and
// DefaultFontSize from "DefaultFontSize", in points (10 without it).
//
// Keywords and numbers each have a value of their own. A value of a class is the neutral one of its
// type, what the type gives without arguments, unless a name below says the value. It need not be the
// initial value that XSL-FO 1.1 or SVG 1.1 gives the property.
//
// The shared library does not export the attributes of internal types, such as those of int: programs read the value of
// such a constant, or use it as an XmlAttribute const&.
#pragma once

#include "xmlattr/Instantiations.h"

namespace Xml {

// Declares a constant of the list that follows.
#define XMLATTR_DEFAULT(type, name) extern XMLATTR_API TXmlAttribute<type> const name;
#include "xmlattr/defaults/DefaultAttributes.inc"

} // namespace Xml
