// What the comparisons of SVG lists with held values share.
#pragma once

#include "xmlattr/catalogue/grammar/SvgLists.h"
#include "xmlattr/catalogue/grammar/SvgScanner.h"

#include <string>
#include <utility>

namespace Xml {

// For a message: "10", "10pt", "50%".
std::string heldText(SLength const& held);
std::string heldText(double held);

// Keeps the first difference between a text and the value that is held of it.
class SvgComparison {
public:
    explicit SvgComparison(char16_t const* newText) : text(newText) {}

    bool differs() const { return reading.outcome == SvgReading::Outcome::Differs; }

    void differ(std::u16string_view part, std::string held) {
        differ(part.data(), part.data() + part.size(), std::move(held));
    }
    void differ(char16_t const* begin, char16_t const* end, std::string held) {
        if (differs()) return;
        reading.outcome = SvgReading::Outcome::Differs;
        reading.offset = static_cast<std::size_t>(begin - text);
        reading.length = static_cast<std::size_t>(end - begin);
        reading.held = std::move(held);
    }

    void expect(SvgNumber const& number, SLength const& held) {
        expect(number, number.end, SLength(number.value, SLength::UserUnit), held);
    }
    // The same for a number whose unit ends at `end`.
    void expect(SvgNumber const& number, char16_t const* end, SLength const& meant, SLength const& held) {
        if (held != meant) differ(number.begin, end, heldText(held));
    }
    void expect(SvgNumber const& number, double held) {
        if (held != double{number.value}) differ(number.begin, number.end, heldText(held));
    }

    SvgReading const& result() const { return reading; }

private:
    char16_t const* text;
    SvgReading reading;
};

// The reading of a text by a list, with what its comparison found unless it is illegal. A list has `read`, which gives
// the parts of the text one after the other to a visitor and stops where the text is illegal.
template <class List, class Comparison>
SvgReading compareList(List const& list, std::u16string_view text, Comparison&& comparison) {
    SvgScanner scanner(text);
    if (list.read(scanner, comparison)) {
        comparison.finish(scanner.end());
        return comparison.result();
    }
    SvgReading reading;
    reading.outcome = SvgReading::Outcome::Illegal;
    reading.offset = static_cast<std::size_t>(scanner.at - scanner.begin());
    reading.length = static_cast<std::size_t>(scanner.problemEnd - scanner.at);
    reading.problem = scanner.problem;
    return reading;
}

template <class List> bool isLegalList(List const& list, std::u16string_view text) {
    SvgScanner scanner(text);
    typename List::Visitor nothing;
    return list.read(scanner, nothing);
}

} // namespace Xml
