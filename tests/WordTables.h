// Tries a word table with texts that differ little from its words.
#pragma once

#include "xmlattr/core/String.h"
#include "xmlattr/core/WordTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Testing {

// The word with each letter changed, dropped, doubled and its case flipped; cut, extended, in the other case; and
// with letters of the same low byte.
template <class Unit> std::vector<std::basic_string<Unit>> mutations(std::basic_string_view<Unit> word) {
    using Text = std::basic_string<Unit>;
    std::vector<Text> texts{Text(), Text(1, Unit{}) + Text(word), Text(word) + Unit{}};
    for (char const c : {' ', 'a', '('}) texts.insert(texts.end(), {Text(word) + Unit(c), Unit(c) + Text(word)});
    Text flipped(word);
    auto const flip = [](Unit& unit) {
        bool const isLetter = (unit | 0x20) >= 'a' && (unit | 0x20) <= 'z';
        if (isLetter) unit = static_cast<Unit>(unit ^ 0x20);
    };
    for (Unit& unit : flipped) flip(unit);
    texts.push_back(flipped);
    for (std::size_t i = 0; i < word.size(); ++i) {
        Text const before(word.substr(0, i)), after(word.substr(i + 1));
        for (int const change : {1, 2, 0x20, 0x100, 0x2000})
            texts.push_back(before + static_cast<Unit>(word[i] ^ change) + after);
        Unit other = word[i];
        flip(other);
        texts.insert(texts.end(), {before, before + after, before + word[i] + word[i] + after, before + other + after});
    }
    return texts;
}

inline std::string readable(std::string_view text) {
    return std::string(text);
}
inline std::string readable(std::u16string_view text) {
    return Core::String(text).toUtf8();
}

template <class Text> bool isSame(Core::Case rule, Text word, Text text) {
    if (rule == Core::Case::Exact || word.size() != text.size()) return word == text;
    return std::equal(word.begin(), word.end(), text.begin(),
                      [](char16_t a, char16_t b) { return Core::toLower(a) == Core::toLower(b); });
}

// Looks up the mutations of each word and compares with a search of every word.
template <class Text> void checkIndex(Core::Case rule, std::vector<Text> const& words, std::size_t (*indexOf)(Text)) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        ASSERT_EQ(indexOf(words[i]), i) << readable(words[i]);
        for (auto const& text : mutations(words[i])) {
            std::size_t row = 0;
            while (row < words.size() && !isSame<Text>(rule, words[row], text)) ++row;
            ASSERT_EQ(indexOf(text), row < words.size() ? row : Core::noWord) << readable(text);
        }
    }
}

template <auto const& rows, Core::Case rule = Core::Case::Exact> void checkTable(std::string const& name) {
    using Table = Core::WordTable<rows, rule>;
    SCOPED_TRACE(name);
    std::vector<typename Table::Text> words;
    for (auto const& row : rows) {
        ASSERT_EQ(Table::word(words.size()), row.word);
        words.push_back(row.word);
    }
    checkIndex(rule, words, &Table::indexOf);
}

} // namespace Testing
