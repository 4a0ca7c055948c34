// The only source that compiles the attribute of each value type.
#include "xmlattr/Instantiations.h"

#include "xmlattr/attributes/TXmlAttributeImpl.h"

namespace Xml {

#define XMLATTR_PUBLIC_VALUE(...) template class TXmlAttribute<__VA_ARGS__>;
#define XMLATTR_INTERNAL_VALUE(...) template class TXmlAttribute<__VA_ARGS__>;
#include "xmlattr/ValueTypes.inc"

} // namespace Xml
