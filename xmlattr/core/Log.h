// The warnings of the library: of the colour parser, and of a configuration file that cannot be read or has a
// malformed line.
#pragma once

#include "xmlattr/core/String.h"

#include <functional>

namespace Core {

// Where warnings go. Any thread may call either function.
class XMLATTR_API Log {
public:
    // Gets the text of a warning, without a line break.
    using Handler = std::function<void(String const&)>;

    // Every warning goes to this handler from now on; without one (as at first, or for an empty
    // function) it goes to standard error, a line each. Returns the handler that it replaces. A handler
    // may be called by any thread that parses.
    static Handler setHandler(Handler handler);

    // Passes a warning to the handler.
    static void warning(String const& message);
};

} // namespace Core
