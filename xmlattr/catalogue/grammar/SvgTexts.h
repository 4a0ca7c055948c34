// The values of SVG attributes that are a small language of their own and that no value type reads.
#pragma once

#include <string_view>

namespace Xml {

// When an animation begins or ends, by SVG 1.1, section 19.2.8: times, events and "indefinite", separated by ";". The
// names of events and of what they happen to are not known: "zzz+1s" is one.
bool readTimingList(std::u16string_view text);

// The code points of a font, by CSS 2, section 15.3.2: "U+20-7E, U+4??".
bool readUnicodeRanges(std::u16string_view text);

} // namespace Xml
