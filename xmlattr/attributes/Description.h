// What a value type says about itself: what it reads, its words, and what a value consists of.
#pragma once

#include "xmlattr/core/String.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Xml {

// What a value type reads. Stands beside the type as AttributeTraits<T>::describe; the lists of types,
// the hints and the fuzzers' seeds are made from it.
struct Description {
    // What the type reads besides its words, each in plain words ("a length", "a percentage"): they are
    // shown to the authors of documents, who know no class. Empty for a type that reads words alone.
    std::array<std::u16string_view, 10> forms{};
    // Texts that the type reads.
    std::array<std::u16string_view, 4> examples{};
    // Whether a line about the type begins with its words: not where they are too many, or only parts
    // of a text.
    bool listsWords = true;
    // A value holds as many items as the text gives, and takes many times the text's memory.
    bool readsList = false;
    // Nearly every text is taken, so that being accepted says little about a text.
    bool readsAnyText = false;
};

// The fixed texts, or parts of a text, that a type reads: AttributeTraits<T>::words adds them one by one.
// They live as long as the program.
struct XMLATTR_API Words {
    Core::Vector<std::u16string_view> list;

    // The word is not copied.
    void add(std::u16string_view word);
    // The words of a table, except those that only begin a call.
    template <class Rows> void addAll(Rows const& rows) {
        for (auto const& row : rows)
            if (!row.word.ends_with(u'(')) add(row.word);
    }
};

// A part of a value under a name, "pixels" for instance.
struct Part {
    std::u16string_view name; // lives as long as the program
    std::u16string value;
};

// What a value consists of: AttributeTraits<T>::parts adds one part after the other.
//
//   out.add(u"offset") << dx << u" " << dy;
struct XMLATTR_API Parts {
    Core::Vector<Part> list;
    std::optional<std::uint32_t> rgb; // 0xRRGGBB, of a colour

    // Begins a part; what is written then belongs to it.
    Parts& add(std::u16string_view name);
    Parts& operator<<(std::u16string_view text);
    // A number prints as the shortest text that reads back.
    Parts& operator<<(float number);
    Parts& operator<<(double number);
    Parts& operator<<(int number);
};

} // namespace Xml
