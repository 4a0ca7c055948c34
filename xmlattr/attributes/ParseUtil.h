// White space, words and calls in an attribute text.
#pragma once

#include "xmlattr/core/String.h"

namespace Xml {

// Each function starts at `index`, which must not be negative, and leaves it at the first code unit
// that it did not consume. At the end of the text the results are false and the empty text.
struct XMLATTR_API ParseUtil {
    // True when at least one code unit was skipped.
    static bool skipWhiteSpace(Core::String const& text, int& index);
    static bool skipNonWhiteSpace(Core::String const& text, int& index);

    // Skips white space, then takes everything up to the next white space.
    static Core::String extractWord(Core::String const& text, int& index);
    // The same, but a "(" makes the token a call that runs to the first ")" after it, white space
    // included, or to the end of the text. Calls do not nest: "f(g(x))" gives "f(g(x)".
    static Core::String extractWordOrFunction(Core::String const& text, int& index);
};

// Whether the text equals the literal code unit by code unit.
XMLATTR_API bool equalsText(Core::String const& text, char16_t const* literal);

} // namespace Xml
