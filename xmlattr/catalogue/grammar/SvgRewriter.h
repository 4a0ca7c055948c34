// What the rewritings of SVG lists share.
#pragma once

#include "xmlattr/catalogue/grammar/SvgComparison.h"

#include <optional>
#include <string>
#include <string_view>

namespace Xml {

// A text that is copied but for some changes, made from its start to its end.
class SvgRewriter {
public:
    explicit SvgRewriter(std::u16string_view newText) : text(newText), copied(newText.data()) {}

    void replace(char16_t const* begin, char16_t const* end, std::u16string_view with) {
        out.append(copied, begin);
        out += with;
        copied = end;
    }

    // Separates a number from the one that it touches.
    void insertSpace(char16_t const* before) { replace(before, before, u" "); }

    // Takes the white space before the comma of a separator away, and where the value type does not know commas the
    // comma as well.
    void mendSeparator(char16_t const* begin, char16_t const* end, bool knowsCommas = true);

    // Writes a number as the reader of SVG lengths takes it, if that does not read it as it is. `minusEnds`: for the
    // value type a minus sign ends a number, also that of an exponent.
    void mendNumber(SvgNumber const& number, bool minusEnds = false);

    std::u16string finish() {
        char16_t const* const end = text.data() + text.size();
        replace(end, end, {});
        return std::move(out);
    }

private:
    std::u16string_view text;
    char16_t const* copied;
    std::u16string out;
};

// The rewritten text, if it is legal, means the same as the text, and the value type holds that after reading it.
// `compareText` compares a text with a value.
template <class Value, class List, class Rewriting, class CompareText>
std::optional<std::u16string> rewriteList(List const& list, std::u16string_view text, Rewriting&& rewriting,
                                          CompareText compareText) {
    SvgScanner scanner(text);
    if (!list.read(scanner, rewriting)) return std::nullopt;
    std::u16string rewritten = rewriting.finish();
    Value value;
    auto const isHeld = [&](std::u16string_view of) {
        return compareText(of, value).outcome == SvgReading::Outcome::Same;
    };
    if (!AttributeTraits<Value>::parse(value, rewritten) || !isHeld(text) || !isHeld(rewritten)) return std::nullopt;
    return rewritten;
}

} // namespace Xml
