// The UTF-16 string in which every attribute text is passed, and the list type of list-valued
// attributes.
#pragma once

#include "xmlattr/core/Export.h"

#include <concepts>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Core {

// The list type of list-valued attributes.
template <class T> using Vector = std::vector<T>;

// A sequence of UTF-16 code units; positions are `int` indexes in code units, and lone surrogates
// are kept as they are. Converts to std::u16string_view, on which all scanning works.
class XMLATTR_API String {
public:
    String() = default;
    String(char16_t const* text) : units(text) {}
    String(std::u16string_view text) : units(text) {}
    String(std::u16string const& text) : units(text) {}
    explicit String(std::u16string&& text) noexcept : units(std::move(text)) {}

    // Malformed UTF-8 and lone surrogates become U+FFFD, one for each maximal ill-formed part.
    static String fromUtf8(std::string_view text);
    // A lone surrogate becomes U+FFFD.
    std::string toUtf8() const;

    operator std::u16string_view() const noexcept { return units; }

    // In code units.
    int length() const noexcept { return static_cast<int>(units.size()); }
    // Whether there is no code unit.
    bool empty() const noexcept { return units.empty(); }
    // The code unit at an index inside the text; throws std::out_of_range elsewhere.
    char16_t operator[](int index) const { return units.at(static_cast<std::size_t>(index)); }

    // Negative, zero or positive as this text sorts before, equal to or after the other, by code units.
    int compare(std::u16string_view other) const noexcept;
    // The same with ASCII letters folded to lower case.
    int compareNoCase(std::u16string_view other) const noexcept;
    // Exact in case; every text starts and ends with the empty one.
    bool startsWith(std::u16string_view prefix) const noexcept;
    bool endsIn(std::u16string_view suffix) const noexcept;

    // The first or last index at which the part stands, or -1.
    int find(std::u16string_view part, int from = 0) const noexcept;
    int rFind(std::u16string_view part) const noexcept;

    // The code units from `start`, at most `count` of them; what lies outside the text is left out.
    String subString(int start) const;
    String subString(int start, int count) const;
    // The pieces between code units that stand in `separators`, without the empty ones.
    Vector<String> split(std::u16string_view separators) const;

    // Without the white space of isSpace at both ends, or at the end alone.
    String trim() const;
    String trimEnd() const;
    // ASCII letters only.
    String toLower() const;

    String& operator+=(std::u16string_view text);
    friend String operator+(String left, std::u16string_view right) { return left += right; }

    // The seven white-space code units: space, U+0009 to U+000D and the no-break space.
    static bool isSpace(char16_t unit) noexcept;
    // The ASCII digits.
    static bool isDigit(char16_t unit) noexcept;

    // The message with this id, or the empty text.
    static String loadString(int id);

    friend bool operator==(String const& a, String const& b) noexcept { return a.units == b.units; }
    // For strings alone: an attribute that converts to one has its own comparisons.
    template <std::same_as<String> S> friend bool operator==(S const& a, std::u16string_view b) noexcept {
        return a.units == b;
    }
    template <std::same_as<String> S> friend bool operator==(S const& a, char16_t const* b) noexcept {
        return a.units == b;
    }
    friend bool operator<(String const& a, String const& b) noexcept { return a.units < b.units; }

private:
    std::u16string units;
};

} // namespace Core
