// The warnings of the library: of the colour parser, and of a configuration file that cannot be read or has a
// malformed line.
#pragma once

#include "xmlattr/core/String.h"

#include <functional>

namespace Core {

class XMLATTR_API Log {
public:
    using Handler = std::function<void(String const&)>;

    // Every warning goes to this handler from now on; without one (as at first, or for an empty
    // function) it goes to standard error, a line each. Returns the handler that it replaces. A handler
    // may be called by any thread that parses.
    static Handler setHandler(Handler handler);

    static void warning(String const& message);
};

} // namespace Core
