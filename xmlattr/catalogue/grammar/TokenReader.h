// Reads the values that tokens of a grammar stand for.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/Text.h"

namespace Xml {

// A place in the text that is read.
struct ValueCursor {
    std::u16string_view text;
    Dialect dialect;
    Ranges ranges = Ranges::Kept;
    std::size_t index = 0;

    bool atEnd() const { return index == text.size(); }
    // U+0000, which no document has, at the end.
    char16_t peek(std::size_t ahead = 0) const { return index + ahead < text.size() ? text[index + ahead] : u'\0'; }
    std::u16string_view rest() const { return text.substr(index); }

    void skipSpace() {
        while (!atEnd() && isXmlSpace(text[index])) ++index;
    }
    bool take(char16_t unit) {
        if (peek() != unit || atEnd()) return false;
        ++index;
        return true;
    }
    // The word, in any case where the dialect has it so, whatever follows.
    bool takeWord(std::string_view word) {
        if (text.size() - index < word.size()) return false;
        for (std::size_t i = 0; i < word.size(); ++i) {
            auto const expected = static_cast<unsigned char>(word[i]);
            char16_t const unit = text[index + i];
            if (unit != expected && (dialect != Dialect::SvgStyle || Core::toLower(unit) != Core::toLower(expected)))
                return false;
        }
        index += word.size();
        return true;
    }
    bool allows(GrammarStep const& step, float number) const {
        return ranges == Ranges::Ignored || step.isInRange(number);
    }
    // Whether a value may end here.
    bool atBoundary() const {
        if (atEnd()) return true;
        char16_t const unit = text[index];
        return isXmlSpace(unit) || unit == u',' || unit == u')' || unit == u'/' || unit == u';';
    }
    // All up to the next boundary.
    std::u16string_view takeRun() {
        std::size_t const first = index;
        while (!atBoundary()) ++index;
        return text.substr(first, index - first);
    }
};

// Reads the value of a step at the cursor, which stands after white space, up to the value's end. False when
// there is none; then the cursor is anywhere.
bool readValue(Item& item, GrammarStep const& step, ValueCursor& cursor);

// A number as the dialect has it, whatever follows; false when there is none.
bool readNumber(float& number, ValueCursor& cursor, bool* isInteger = nullptr);

// A colour; false when there is none.
bool readColor(Item& item, ValueCursor& cursor);

} // namespace Xml
