// What the machine allows: the least work with which the texts could be read. Nothing here checks
// what it reads.
#pragma once

#include "xmlattr/core/String.h"

namespace Bench::Floors {

// Stores every number of the text, digits gathered in an integer and scaled once.
void readNumbers(Core::String const& text, Core::Vector<float>& numbers);
// "#rgb" or "#rrggbb" as 0xRRGGBB.
unsigned int readHex(Core::String const& text);
// Compares with the one word that is known to match.
bool isRightWord(Core::String const& text, Core::String const& word);

} // namespace Bench::Floors
