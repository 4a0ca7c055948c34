// The only source that sees every value type: each instantiation of the attribute is compiled here,
// and the public ones are exported.

#include "xmlattr/Values.h"
#include "xmlattr/attributes/TXmlAttributeImpl.h"

namespace Xml {

// Transform.h has exported the attribute of SLength already, and g++ warns of saying so again.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattributes"
#define XMLATTR_PUBLIC_VALUE(...) template class XMLATTR_API TXmlAttribute<__VA_ARGS__>;
#define XMLATTR_INTERNAL_VALUE(...) template class TXmlAttribute<__VA_ARGS__>;
#include "xmlattr/ValueTypes.inc"
#pragma GCC diagnostic pop

// A line that is missing in the list, or a misspelt rule of a keyword table, changes a count.
inline constexpr int keywordEnumerations = 0
#define XMLATTR_PUBLIC_VALUE(...) +KeywordEnumeration<__VA_ARGS__>
#define XMLATTR_INTERNAL_VALUE(...)
#include "xmlattr/ValueTypes.inc"
    ;
inline constexpr int internalKeywordEnumerations = 0
#define XMLATTR_PUBLIC_VALUE(...)
#define XMLATTR_INTERNAL_VALUE(...) +KeywordEnumeration<__VA_ARGS__>
#include "xmlattr/ValueTypes.inc"
    ;
inline constexpr int keywordsWithoutPrinter = 0
#define XMLATTR_PUBLIC_VALUE(...) +(KeywordEnumeration<__VA_ARGS__> && !Prints<__VA_ARGS__>)
#define XMLATTR_INTERNAL_VALUE(...) +(KeywordEnumeration<__VA_ARGS__> && !Prints<__VA_ARGS__>)
#include "xmlattr/ValueTypes.inc"
    ;
static_assert(keywordEnumerations == 112 && internalKeywordEnumerations == 16 && keywordsWithoutPrinter == 49);

} // namespace Xml
