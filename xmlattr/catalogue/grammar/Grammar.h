// The grammar of an attribute's value, in the value definition syntax of CSS, compiled when the library is.
#pragma once

#include "xmlattr/catalogue/grammar/Token.h"

#include <bit>
#include <cstdint>
#include <span>
#include <string_view>

namespace Xml {

// A step of a compiled grammar; each names the step that comes next.
struct GrammarStep {
    // What the step takes from the text.
    enum Kind : std::uint8_t {
        Accept,    // the text must end here
        Value,     // a value of the token, within the range
        Word,      // the word
        Call,      // the word and "(", with nothing between them
        Mark,      // the one character in `word`
        Separator, // white space with at most one comma in it, or nothing between numbers that cannot be joined
        Choice,    // `next`, or else `other`
        Begin,     // of options in any order, none of them taken yet
        Option,    // `next`, unless it was taken, or else `other`
        End        // of those options, of which one at least must have been taken
    };

    Kind kind = Accept;
    Token token{};
    bool aboveLeast = false, belowMost = false; // whether the limits are themselves out of range
    bool separated = false;                     // a Separator follows, so that the value may touch the next one
    std::uint8_t set = 0, option = 0;           // how deep in nested sets of options, and which one
    std::uint16_t next = 0, other = 0;
    // Infinite where there is no limit; <limits> would not compile after other people's macros.
    float least = -std::bit_cast<float>(0x7F80'0000), most = std::bit_cast<float>(0x7F80'0000);
    std::string_view word{};

    constexpr bool isInRange(float number) const {
        return (aboveLeast ? number > least : number >= least) && (belowMost ? number < most : number <= most);
    }
};

// Written as a literal of GrammarCompiler.h, which compiles only if it is well formed and names known tokens:
//
//   "auto | <length [0,]> | <percentage>"_grammar
//
//   word 'any text'    themselves; a word followed by "(" is a call up to its ")"
//   , / ;              themselves
//   <token>            a kind of value or a production of Token.h
//   <token [0,9]>      with its range; either limit may be missing, "(0" and "9)" exclude it
//   a b   a || b   a | b   [ a ]
//                      in this order; some of them in any order; one of them; grouped (binding in this order)
//   a? a* a+ a{2} a{1,4} a{2,}
//                      how often
//   a# a#{2,}          the same with commas between
//   a~ a~{1,2}         with what SVG allows between the numbers of a list; "~" by itself is that separator
//
// What the recommendations allow everywhere, such as "inherit", is left out of grammars.
class Grammar {
public:
    // Without steps: nothing is known of the attribute.
    constexpr Grammar() = default;
    constexpr Grammar(std::string_view text, std::span<GrammarStep const> steps) : source(text), program(steps) {}

    constexpr explicit operator bool() const { return !program.empty(); }
    // As it is written in the catalogue.
    constexpr std::string_view text() const { return source; }
    // The last one is the first to take, and the first one accepts.
    constexpr std::span<GrammarStep const> steps() const { return program; }

private:
    std::string_view source;
    std::span<GrammarStep const> program;
};

} // namespace Xml
