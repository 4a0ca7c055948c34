// What an input begins with, for each fuzzer: the few bytes that pick a type, a row or numbers, after which the text
// follows. Lines of fuzz/seeds say in words what these bytes say, so that they hold when a type or a row joins.
#pragma once

#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/Judge.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <istream>
#include <limits>
#include <optional>
#include <string>

namespace Heads {

// Of fuzz_values, a type: "Length".
struct Type {
    static constexpr std::size_t size = 1;
    std::size_t number; // in the order of ValueTypes.inc

    static Type ofBytes(std::uint8_t const* bytes) { return {*bytes % Xml::AttributeType::all().size()}; }
    static std::optional<Type> ofWords(std::istream& words) {
        std::string name;
        words >> name;
        auto const* const type = Xml::AttributeType::find(name);
        if (!type) return std::nullopt;
        return Type{static_cast<std::size_t>(type - Xml::AttributeType::all().data())};
    }
    std::string bytes() const { return {static_cast<char>(number)}; }
    std::string words() const { return std::string(Xml::AttributeType::all()[number].name()); }
};

// Of fuzz_judge, a row of the catalogue by its first element: "fo * font-size", and "svg * fill:" in a style attribute.
struct Row {
    static constexpr std::size_t size = 3;
    Xml::CatalogueEntry const* entry;
    Xml::Notation notation;

    static Row ofBytes(std::uint8_t const* bytes) {
        auto const entries = Xml::Catalogue::entries();
        return {&entries[(bytes[0] * 256u + bytes[1]) % entries.size()],
                bytes[2] % 4 == 0 ? Xml::Notation::Declaration : Xml::Notation::Attribute};
    }
    static std::optional<Row> ofWords(std::istream& words) {
        std::string vocabulary, element, attribute;
        words >> vocabulary >> element >> attribute;
        bool const isDeclaration = attribute.ends_with(':');
        if (isDeclaration) attribute.pop_back();
        for (Xml::Vocabulary const known : {Xml::Vocabulary::Fo, Xml::Vocabulary::Svg}) {
            if (Xml::Catalogue::name(known) != vocabulary) continue;
            auto const* const entry = Xml::Catalogue::find(known, element, attribute);
            if (entry) return Row{entry, isDeclaration ? Xml::Notation::Declaration : Xml::Notation::Attribute};
        }
        return std::nullopt;
    }
    std::string bytes() const {
        auto const number = static_cast<std::size_t>(entry - Xml::Catalogue::entries().data());
        return {static_cast<char>(number >> 8), static_cast<char>(number), notation == Xml::Notation::Attribute};
    }
    std::string words() const {
        std::string words(Xml::Catalogue::name(entry->vocabulary));
        words.append(" ").append(entry->elements.front()).append(" ").append(entry->attribute);
        return notation == Xml::Notation::Declaration ? words + ":" : words;
    }
};

// Of fuzz_numbers, a float and a double to write: "1.5 -2e+300". All that are not finite are "inf".
struct Numbers {
    static constexpr std::size_t size = sizeof(float) + sizeof(double);
    float single;
    double twice;

    static Numbers ofBytes(std::uint8_t const* bytes) {
        Numbers numbers;
        std::memcpy(&numbers.single, bytes, sizeof numbers.single);
        std::memcpy(&numbers.twice, bytes + sizeof numbers.single, sizeof numbers.twice);
        return numbers;
    }
    static std::optional<Numbers> ofWords(std::istream& words) {
        std::string single, twice;
        words >> single >> twice;
        Numbers numbers;
        if (!read(single, numbers.single) || !read(twice, numbers.twice)) return std::nullopt;
        return numbers;
    }
    std::string bytes() const {
        std::string bytes(size, '\0');
        std::memcpy(bytes.data(), &single, sizeof single);
        std::memcpy(bytes.data() + sizeof single, &twice, sizeof twice);
        return bytes;
    }
    std::string words() const { return written(single) + " " + written(twice); }

private:
    template <class T> static bool read(std::string const& word, T& number) {
        char const* const end = word.data() + word.size();
        auto const result = std::from_chars(word.data(), end, number);
        return result.ec == std::errc() && result.ptr == end;
    }
    template <class T> static std::string written(T number) {
        char buffer[32];
        T const told = std::isfinite(number) ? number : std::numeric_limits<T>::infinity();
        return {buffer, std::to_chars(buffer, buffer + sizeof buffer, told).ptr};
    }
};

// Of fuzz_command and fuzz_fix, nothing.
struct Nothing {
    static constexpr std::size_t size = 0;

    static Nothing ofBytes(std::uint8_t const*) { return {}; }
    static std::optional<Nothing> ofWords(std::istream&) { return Nothing(); }
    std::string bytes() const { return {}; }
    std::string words() const { return {}; }
};

} // namespace Heads
