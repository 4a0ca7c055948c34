// The texts that are read. They are the same in every run and on every machine.
#pragma once

#include "xmlattr/core/String.h"

namespace Bench {

using Texts = Core::Vector<Core::String>;
using Words = Core::Vector<char const*>;

// Path data of about so many code units: all commands, in stretches of one manner of writing.
Texts mixedPath(std::size_t size);
// Short paths as drawing programs write them: mostly curves, with few decimals.
Texts iconPaths();
Texts transforms();
Texts pointLists();
// Numbers, each followed by one of the suffixes.
Texts numbersWith(Words const& suffixes);
Texts hexColors();
Texts rgbColors();
Texts cmykColors();
// The name of the profile and of the ink is "Fogra39".
Texts iccColors();
Texts spotColors();
Texts integers();
Texts shadows();
// Words drawn at random.
Texts drawWords(Words const& words);

extern Words const lengthUnits, sLengthUnits, bareAndPercent, colorNames, borderStyles, displays;

} // namespace Bench
