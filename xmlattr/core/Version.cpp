#include "xmlattr/core/Version.h"

#define XMLATTR_TEXT(number) #number
#define XMLATTR_VERSION_TEXT(major, minor, patch) XMLATTR_TEXT(major) "." XMLATTR_TEXT(minor) "." XMLATTR_TEXT(patch)

namespace Core {

char const* version() noexcept {
    return XMLATTR_VERSION_TEXT(XMLATTR_VERSION_MAJOR, XMLATTR_VERSION_MINOR, XMLATTR_VERSION_PATCH);
}

} // namespace Core
