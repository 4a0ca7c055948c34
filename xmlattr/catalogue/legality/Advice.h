// What to say of a text that is not read as it is written, and what to write instead.
#pragma once

#include "xmlattr/catalogue/legality/Judge.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Xml {

// What to tell the author of a text.
struct Advice {
    // What the value type makes of the text, or of the judgement's part, as it prints it; empty when it takes nothing
    // or prints nothing.
    std::u16string held;
    // What the recommendation allows there, in a line: "auto, a length or a percentage".
    std::string expected;

    // The whole text to write instead, which has been judged as read; empty when none is known.
    std::u16string replacement;
    // Whether the replacement means what the text means. Else it is what the author may have wanted.
    bool isExact = false;
    // The range of code units of the text that the replacement changes, and what it has in their place.
    std::size_t offset = 0, length = 0;
    // Lives as long as the advice.
    std::u16string_view inserted() const {
        return std::u16string_view(replacement).substr(offset, replacement.size() - unchangedEnd - offset);
    }

    std::size_t unchangedEnd = 0; // how much of the text after the range stays
};

// Of a text and what judge() says of it when it is a fault. Linear in the text for misread lists; of longer texts than
// a word or two nothing is guessed.
[[nodiscard]] XMLATTR_API Advice advise(CatalogueEntry const& entry, std::u16string_view text, Notation notation,
                                        Judgement const& judgement);

// Texts that differ from this one in what authors overlook: blanks around it, case, quotation marks, the decimal point,
// the unit of a number or how it is written, blanks inside a word. Whether they are legal anywhere is not asked.
XMLATTR_API std::vector<std::u16string> variantsOf(std::u16string_view text);

// The word of a list that was meant: one or two letters away, by its length. Of words as near, the one that begins and
// ends more like the text: "gren" is green, not grey. Empty when there is none.
XMLATTR_API std::u16string_view nearestWord(std::u16string_view text, std::span<std::u16string_view const> words);

} // namespace Xml
