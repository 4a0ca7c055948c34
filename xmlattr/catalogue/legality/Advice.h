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

// What to say of a text in which judge() found a fault. Takes time linear in the text; what the author may have wanted
// is guessed for short texts only.
[[nodiscard]] XMLATTR_API Advice advise(CatalogueEntry const& entry, std::u16string_view text, Notation notation,
                                        Judgement const& judgement);

// Texts that differ from this one in what authors overlook: blanks around it, case, quotation marks, the decimal point,
// the unit of a number or how it is written, blanks inside a word, a closing parenthesis. They need not be legal.
XMLATTR_API std::vector<std::u16string> variantsOf(std::u16string_view text);

// The word of a list that was probably meant: it differs by one letter, or by two if it has five letters or more. Of
// equally near words, the one whose beginning and end are more like the text: "gren" is green, not grey. Empty when no
// word is near.
XMLATTR_API std::u16string_view nearestWord(std::u16string_view text, std::span<std::u16string_view const> words);

} // namespace Xml
