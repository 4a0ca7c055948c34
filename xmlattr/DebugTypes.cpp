// Describes every attribute to debuggers. The instantiations are declared extern, so compilers leave the
// description of an attribute to the library; this source is compiled to that description alone, without code.
#include "xmlattr/Instantiations.h"

namespace Xml {

namespace {

[[gnu::used]] void nameEveryAttribute() {
#define XMLATTR_PUBLIC_VALUE(...)                                                                                      \
    { [[maybe_unused]] TXmlAttribute<__VA_ARGS__>* attribute; }
#define XMLATTR_INTERNAL_VALUE(...) XMLATTR_PUBLIC_VALUE(__VA_ARGS__)
#include "xmlattr/ValueTypes.inc"
}

} // namespace

} // namespace Xml
