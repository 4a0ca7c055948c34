#include "text/Hints.h"

#include "text/Text.h"
#include "xmlattr/catalogue/legality/Advice.h"
#include "xmlattr/catalogue/text/Words.h"

namespace Command {

Hints hintsFor(Xml::AttributeType const& type, std::u16string_view text) {
    constexpr std::size_t longestGuess = 64; // a longer text is no mistyped value
    Hints hints;
    if (text.size() > longestGuess) return hints;
    for (std::u16string const& variant : Xml::variantsOf(text))
        if (variant != text && type.accepts(variant)) {
            hints.variant = toUtf8(variant);
            return hints;
        }
    auto const words = type.words();
    hints.nearest = toUtf8(Xml::nearestWord(Xml::trimXmlSpace(text), {words.data(), words.size()}));
    return hints;
}

} // namespace Command
