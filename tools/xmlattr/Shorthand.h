// Attributes that set several others at once, taken apart.
#pragma once

#include "Property.h"

#include <string>
#include <string_view>
#include <vector>

namespace Command {

// What became of a shorthand: Checked when a value type read one part at least, NotCovered when
// there is none for any part.
struct ShorthandVerdict {
    Verdict verdict;
    // Of a refusal: the part, and the types none of which reads it. No types: the whole is wrong,
    // and `problem` says why.
    std::string part;
    std::vector<ValueType const*> types;
    std::string problem;
};

// The parts of a value, slices of it: what stands between blanks, expressions of XSL-FO kept whole.
std::vector<std::u16string_view> splitParts(std::u16string_view text);

ShorthandVerdict judgeShorthand(Xml::CatalogueEntry const& entry, std::u16string_view text);

} // namespace Command
