// What the library asks of the operating system.
#pragma once

#include "xmlattr/core/String.h"

namespace Core {

// Any thread may call any of these functions.
class XMLATTR_API OSInfo {
public:
    // The colour of a part of the user interface as "rgb(r,g,b)", or the empty text. Knows the
    // system colours of CSS 2, in any case of letters, with the values of a plain desktop, and what
    // the program has set.
    static String getSystemColor(std::u16string_view name);

    // From now on the name, in any case, gives this text: the colours of the user's own desktop, or
    // names beyond CSS 2. The empty text makes the name unknown.
    static void setSystemColor(std::u16string_view name, std::u16string_view color);
    // Forgets what the program has set.
    static void clearSystemColors();
};

} // namespace Core
