// What a recommendation allows for an attribute and the attribute's value type does not read, as the catalogue's rows
// say it: words and kinds of values.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace Xml {

struct LegalToken {
    enum class Kind : std::uint8_t {
        Word,           // auto
        Call,           // rect(): a call of this name, alone or after another legal value
        List,           // <list>: several values, each of them legal alone, separated by blanks or commas
        Number,         // <number>
        FourNumbers,    // <number>{4}
        SeveralNumbers, // <number>{2,}
        Integer,        // <integer>
        Percentage,     // <percentage>
        Angle,          // <angle>
        Color,          // <color>
        Uri,            // <uri>
        Language        // <language>
    };

    Kind kind;
    std::string_view text; // as the row has it; ASCII

    // The token of this text; nothing for "<nubmer>", which is none of those above.
    static constexpr std::optional<LegalToken> parse(std::string_view text);
};

constexpr std::optional<LegalToken> LegalToken::parse(std::string_view text) {
    constexpr LegalToken kinds[] = {
        {Kind::List, "<list>"},
        {Kind::Number, "<number>"},
        {Kind::FourNumbers, "<number>{4}"},
        {Kind::SeveralNumbers, "<number>{2,}"},
        {Kind::Integer, "<integer>"},
        {Kind::Percentage, "<percentage>"},
        {Kind::Angle, "<angle>"},
        {Kind::Color, "<color>"},
        {Kind::Uri, "<uri>"},
        {Kind::Language, "<language>"},
    };
    for (LegalToken const& token : kinds)
        if (token.text == text) return LegalToken{token.kind, text};
    bool const isCall = text.ends_with("()");
    std::string_view const word = isCall ? text.substr(0, text.size() - 2) : text;
    for (char const c : word) {
        bool const isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!isLetter && c != '-') return std::nullopt;
    }
    if (word.empty()) return std::nullopt;
    return LegalToken{isCall ? Kind::Call : Kind::Word, text};
}

} // namespace Xml
