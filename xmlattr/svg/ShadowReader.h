// The parts of a shadow, for the two types that differ in their lengths and colours only.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"

namespace Xml {

// Reads parts between single blanks: lengths fill `lengths` in their order, and takeColor(part) gets
// the first part that is no length. The text ends, for the reader, at the first part that
// nothing takes and at an empty one, which two blanks in a row or a blank at either end make.
// Intended: whatever was read until then stands, and the text is accepted; only the empty text,
// which has no part at all, is refused.
template <class L, std::size_t n, class TakeColor>
bool readShadow(std::u16string_view text, L* const (&lengths)[n], TakeColor takeColor) {
    if (text.empty()) return false;
    std::size_t lengthCount = 0;
    bool hasColor = false;
    for (;;) {
        std::size_t const blank = text.find(u' ');
        std::u16string_view const part = text.substr(0, blank);
        if (part.empty()) return true;
        if (lengthCount < n && AttributeTraits<L>::parse(*lengths[lengthCount], part))
            ++lengthCount;
        else if (hasColor || !takeColor(part))
            return true;
        else
            hasColor = true;
        if (blank == std::u16string_view::npos) return true;
        text.remove_prefix(blank + 1);
    }
}

} // namespace Xml
