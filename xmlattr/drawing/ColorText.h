// The readers of rgb(...) and cmyk(...), which colour attributes and the alternates of spot colours
// share.
#pragma once

#include "xmlattr/drawing/Color.h"

#include <string_view>

namespace Drawing {

// Both take what stands between the first "(" and the ")" that closes the last component; what
// stands before and after is ignored. False leaves `color` as it was.

// Three components, each an integer, of which the low 8 bits count, or a percentage, which is held
// within 0 to 255.
bool readRGB(SmartPtr<Color>& color, std::u16string_view text);

// The same without the fast path for plain components: the reference.
bool readRGBReference(SmartPtr<Color>& color, std::u16string_view text);

// Four numbers: percentages, and either fractions or, when any of the four exceeds 1, parts of 255.
bool readCMYK(SmartPtr<Color>& color, std::u16string_view text);

} // namespace Drawing
