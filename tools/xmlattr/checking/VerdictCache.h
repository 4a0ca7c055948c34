// Remembers what was found of short texts, since documents say the same thing over and over.
#pragma once

#include "xmlattr/catalogue/legality/Judge.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace Command {

class VerdictCache {
    struct Key {
        Xml::CatalogueEntry const* entry = nullptr;
        Xml::Notation notation{};
        std::array<std::uint64_t, 3> text{}; // the bytes, zeros after them
        bool operator==(Key const&) const = default;
    };
    struct Row {
        Key key;
        Xml::Verdict verdict{};
    };

public:
    // What `judge()` gives for the entry and the text; it is not asked again for a text of up to
    // 24 bytes that was no fault a short while ago.
    template <class Judge>
    Xml::Verdict find(Xml::CatalogueEntry const& entry, Xml::Notation notation, std::string_view text, Judge judge) {
        Key key{&entry, notation, {}};
        if (text.size() > sizeof key.text) return judge();
        std::memcpy(key.text.data(), text.data(), text.size());
        auto hash =
            static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(&entry)) + static_cast<unsigned>(notation);
        for (std::uint64_t const part : key.text) hash = (hash ^ part) * 0x9E3779B97F4A7C15u;
        Row& row = rows[static_cast<std::size_t>(hash >> 53)];
        if (row.key == key) return row.verdict;
        Xml::Verdict const verdict = judge();
        if (!Xml::isFault(verdict)) row = {key, verdict};
        return verdict;
    }

private:
    std::vector<Row> rows = std::vector<Row>(2048);
};

} // namespace Command
