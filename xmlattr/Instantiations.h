// Every value type and its attribute, declared extern: the library contains them, so that programs need not
// compile them again.
#pragma once

#include "xmlattr/ValueTypes.inc"
#include "xmlattr/attributes/TXmlAttribute.h"

namespace Xml {

// Transform.h has already given the attribute of SLength its export mark, which GCC reports. Clang reports the
// destructor of TXmlAttribute here again.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattributes"
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#define XMLATTR_PUBLIC_VALUE(...) extern template class XMLATTR_API TXmlAttribute<__VA_ARGS__>;
// The constants of internal types stay readable without the library's help.
#define XMLATTR_INTERNAL_VALUE(...)
#include "xmlattr/ValueTypes.inc"
#pragma GCC diagnostic pop

} // namespace Xml
