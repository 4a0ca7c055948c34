#include "fixing/Changes.h"

#include "text/Text.h"
#include "xml/Encoding.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace Command {

namespace {

constexpr std::size_t furthest = 48; // that texts are searched for a place where they agree again
constexpr std::size_t anchor = 2;    // characters that agree there, if there are so many

// How much is to be left out of each text before they agree again, as little as possible; nothing when they do not.
std::optional<std::pair<std::size_t, std::size_t>> skipToAgreement(std::u32string_view from, std::u32string_view to) {
    // What separates two values most often.
    if (to.size() > 1 && to[0] == U' ' && !from.empty() && to[1] == from[0]) return std::pair(0, 1);
    for (std::size_t both = 1; both <= furthest; ++both) {
        for (std::size_t ofFrom = 0; ofFrom <= both; ++ofFrom) {
            std::size_t const ofTo = both - ofFrom;
            if (ofFrom > from.size() || ofTo > to.size()) continue;
            std::u32string_view const next = from.substr(ofFrom).substr(0, anchor);
            if (next == to.substr(ofTo).substr(0, anchor)) return std::pair(ofFrom, ofTo);
        }
    }
    return std::nullopt;
}

} // namespace

std::vector<Change> changesBetween(std::string_view from, std::string_view to) {
    std::u32string const fromText = decode(from, ByteEncoding::Utf8), toText = decode(to, ByteEncoding::Utf8);
    std::u32string_view before = fromText, after = toText;
    auto const end = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
    before.remove_suffix(static_cast<std::size_t>(end.first - before.rbegin()));
    after.remove_suffix(static_cast<std::size_t>(end.second - after.rbegin()));

    std::vector<Change> changes;
    std::size_t offset = 0;
    while (!before.empty() || !after.empty()) {
        if (!before.empty() && !after.empty() && before[0] == after[0]) {
            offset += utf8Length(before[0]);
            before.remove_prefix(1);
            after.remove_prefix(1);
            continue;
        }
        auto const [ofBefore, ofAfter] =
            skipToAgreement(before, after).value_or(std::pair(before.size(), after.size()));
        std::size_t const length = encodedLength(before.substr(0, ofBefore), ByteEncoding::Utf8);
        changes.push_back({offset, length, std::u32string(after.substr(0, ofAfter))});
        offset += length;
        before.remove_prefix(ofBefore);
        after.remove_prefix(ofAfter);
    }
    return changes;
}

} // namespace Command
