// The values of SVG attributes that are a small language of their own and that no value type reads.
#pragma once

#include <string_view>

namespace Xml {

// When an animation begins or ends, by SVG 1.1, section 19.2.8: times, events and "indefinite", separated by ";". The
// names of events and of what they happen to are not known: "zzz+1s" is one.
bool readTimingList(std::u16string_view text);

// Code points of a font, by CSS 2, section 15.3.2: one like "U+26", those that differ in the digits "?" only, or those
// from the first to the second, like "U+20-7E".
bool readUnicodeRange(std::u16string_view text);

} // namespace Xml
