#include "checking/Hints.h"

#include "text/Text.h"

#include "xmlattr/core/Text.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace Command {

namespace {

constexpr std::size_t longestGuess = 64; // a longer text is no mistyped word

std::size_t editDistance(std::u16string_view a, std::u16string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            std::size_t const replaced = diagonal + (Core::toLower(a[i]) == Core::toLower(b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

// How many units the two begin and end with alike.
std::size_t sharedEnds(std::u16string_view a, std::u16string_view b) {
    auto const isAlike = [](char16_t one, char16_t other) { return Core::toLower(one) == Core::toLower(other); };
    auto const [start, other] = std::ranges::mismatch(a, b, isAlike);
    std::u16string_view const restA(start, a.end()), restB(other, b.end());
    auto const end = std::mismatch(restA.rbegin(), restA.rend(), restB.rbegin(), restB.rend(), isAlike).first;
    return static_cast<std::size_t>((start - a.begin()) + (end - restA.rbegin()));
}

std::u16string without(std::u16string_view text, std::u16string_view units) {
    std::u16string rest(text);
    std::erase_if(rest, [&](char16_t unit) { return units.find(unit) != std::u16string_view::npos; });
    return rest;
}

// Texts that differ in what authors overlook: blanks, case, the decimal point, quotation marks, the unit.
std::vector<std::u16string> variantsOf(std::u16string_view text) {
    std::u16string const trimmed(Core::trim(text)), solid = without(trimmed, u" \t\n\r\u00A0");
    std::u16string lower = trimmed, solidLower = solid, pointed = trimmed;
    std::ranges::transform(lower, lower.begin(), Core::toLower);
    std::ranges::transform(solidLower, solidLower.begin(), Core::toLower);
    std::ranges::replace(pointed, u',', u'.');
    return {trimmed, solid, solidLower, lower, pointed, without(trimmed, u"\"'"), solidLower + u"pt"};
}

} // namespace

std::u16string_view nearestWord(std::u16string_view text, std::vector<std::u16string_view> const& words) {
    if (text.size() > longestGuess) return {};
    std::u16string_view nearest;
    std::pair best(longestGuess, std::size_t{0}); // the distance and what it leaves alike
    for (std::u16string_view const word : words) {
        std::pair const found(editDistance(text, word), sharedEnds(text, word));
        bool const isBetter = found.first < best.first || (found.first == best.first && found.second > best.second);
        if (found.first * 2 < word.size() && isBetter) {
            nearest = word;
            best = found;
        }
    }
    return nearest;
}

Hints hintsFor(Xml::AttributeType const& type, std::u16string_view text) {
    Hints hints;
    if (text.size() <= longestGuess)
        for (std::u16string const& variant : variantsOf(text))
            if (variant != text && type.accepts(variant)) {
                hints.variant = toUtf8(variant);
                break;
            }
    auto const words = type.words();
    if (type.isEnumeration())
        for (std::u16string_view const word : words) hints.accepted.push_back(toUtf8(word));
    if (hints.variant.empty()) hints.nearest = toUtf8(nearestWord(Core::trim(text), words));
    return hints;
}

} // namespace Command
