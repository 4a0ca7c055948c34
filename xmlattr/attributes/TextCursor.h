// A position in a text, from which the list parsers take one thing after the other.
#pragma once

#include "xmlattr/core/Text.h"

#include <iterator>
#include <string_view>

namespace Xml {

// Every token is a slice of the text, never a copy. Nothing moves past the end.
struct TextCursor {
    std::u16string_view text;
    int index = 0;

    bool atEnd() const { return index >= std::ssize(text); }
    // The code unit at the position, which must not be the end.
    char16_t peek() const { return text[static_cast<std::size_t>(index)]; }

    bool take(char16_t unit) {
        if (atEnd() || peek() != unit) return false;
        ++index;
        return true;
    }

    // Moves over code units as long as `belongs` holds and gives them back.
    template <class Belongs> std::u16string_view takeWhile(Belongs belongs) {
        int const start = index;
        while (!atEnd() && belongs(peek())) ++index;
        return since(start);
    }

    // True when at least one code unit was skipped.
    bool skipSpace() { return !takeWhile(Core::isSpace).empty(); }

    // Skips white space, then takes everything up to the next white space.
    std::u16string_view takeWord() {
        skipSpace();
        return takeWhile([](char16_t unit) { return !Core::isSpace(unit); });
    }

    // The same, but a "(" makes the token a call that runs to the first ")" or to the end.
    std::u16string_view takeWordOrFunction() {
        skipSpace();
        int const start = index;
        takeWhile([](char16_t unit) { return !Core::isSpace(unit) && unit != u'('; });
        if (take(u'(')) {
            takeWhile([](char16_t unit) { return unit != u')'; });
            take(u')');
        }
        return since(start);
    }

    // The code units from `start` up to the position.
    std::u16string_view since(int start) const {
        if (start == index) return {};
        return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(index - start));
    }
};

} // namespace Xml
