#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/Exceptions.h"

namespace Xml::detail {

void throwUnknownKeyword() {
    throw Core::UnreacheableCodeException("MiscAttributes", __LINE__);
}

} // namespace Xml::detail
