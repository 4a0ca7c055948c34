#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/Exceptions.h"

namespace Xml::detail {

void throwUnknownKeyword() {
    throw Core::UnreacheableCodeException("KeywordTable", __LINE__);
}

} // namespace Xml::detail
