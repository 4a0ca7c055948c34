// The only source that sees every value type: each instantiation of the attribute is compiled here,
// and the public ones are exported.

#include "xmlattr/Values.h"
#include "xmlattr/attributes/TXmlAttributeImpl.h"

namespace Xml {

#define XMLATTR_PUBLIC_VALUE(...) template class XMLATTR_API TXmlAttribute<__VA_ARGS__>;
#define XMLATTR_INTERNAL_VALUE(...) template class TXmlAttribute<__VA_ARGS__>;
#include "xmlattr/ValueTypes.inc"

} // namespace Xml
