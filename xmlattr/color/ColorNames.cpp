#include "xmlattr/color/ColorNames.h"

#include <array>
#include <cstdint>
#include <iterator>

namespace Xml {

namespace {

// A word of up to 24 letters, five bits each, in lower case. Two words are equal when their numbers
// are; none is zero.
struct PackedWord {
    std::uint64_t front = 0, back = 0;
    constexpr bool operator==(PackedWord const&) const = default;
};

constexpr bool appendLetters(std::uint64_t& letters, std::u16string_view text) {
    for (char16_t const unit : text) {
        unsigned int const letter = (unit | 0x20u) - u'a'; // folds exactly the ASCII letters
        if (letter >= 26) return false;
        letters = letters << 5 | (letter + 1);
    }
    return true;
}

// False for a text that is too long or holds anything but ASCII letters.
constexpr bool pack(std::u16string_view text, PackedWord& word) {
    constexpr std::size_t half = 12;
    if (text.size() <= half) return appendLetters(word.front, text);
    return text.size() <= 2 * half && appendLetters(word.front, text.substr(0, half)) &&
           appendLetters(word.back, text.substr(half));
}

// A hash table without pointers, so that loading the library has nothing to relocate.
struct Table {
    struct Row {
        PackedWord word;
        unsigned int rgb;
    };

    static constexpr int slotBits = 9; // less than a third is taken
    static constexpr std::uint8_t free = 0xFF;

    std::array<Row, std::size(colorNames)> rows{};
    std::array<std::uint8_t, 1 << slotBits> slots{};

    consteval Table() {
        static_assert(std::size(colorNames) < free);
        slots.fill(free);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].rgb = colorNames[i].rgb;
            if (!pack(colorNames[i].name, rows[i].word)) throw "a name is no word of letters";
            std::size_t slot = slotOf(rows[i].word);
            while (slots[slot] != free) slot = next(slot);
            slots[slot] = static_cast<std::uint8_t>(i);
        }
    }

    static constexpr std::size_t slotOf(PackedWord word) {
        constexpr std::uint64_t golden = 0x9E37'79B9'7F4A'7C15;
        return static_cast<std::size_t>((word.front ^ word.back * golden) * golden >> (64 - slotBits));
    }
    static constexpr std::size_t next(std::size_t slot) { return (slot + 1) % (std::size_t{1} << slotBits); }

    constexpr Row const* find(PackedWord word) const {
        for (std::size_t slot = slotOf(word); slots[slot] != free; slot = next(slot))
            if (rows[slots[slot]].word == word) return &rows[slots[slot]];
        return nullptr;
    }
};

constexpr Table table;

} // namespace

std::optional<unsigned int> findColorName(std::u16string_view name) {
    PackedWord word;
    if (!pack(name, word)) return std::nullopt;
    Table::Row const* const row = table.find(word);
    return row ? std::optional(row->rgb) : std::nullopt;
}

} // namespace Xml
