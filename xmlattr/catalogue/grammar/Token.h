// The tokens that a grammar may name: the kinds of values that have a reader, and the productions that are short for
// a piece of grammar.
#pragma once

#include "xmlattr/core/Export.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace Xml {

// The kinds of values that have a reader.
enum class Token : std::uint8_t {
    Number,     // 1.5
    Integer,    // -3
    Length,     // 12pt; a bare 0 in XSL-FO, every bare number in SVG
    Percentage, // 50%
    Angle,      // 90deg, grad or rad; in SVG also a bare number
    Time,       // 2s or 200ms
    Frequency,  // 100Hz or 1kHz
    ClockValue, // 02:30:03.5, 30:12 or 1.5h, min, s, ms and seconds without a unit (SVG animation)
    Color,      // every form but the words transparent and currentColor, which grammars write out
    Uri,        // url(...)
    Reference,  // a bare reference without blanks
    Iri,        // a bare reference: any text
    String,     // in quotation marks
    Name,       // an NCName
    Id,         // an NCName that names its element
    IdRef,      // an NCName that another element has as its id
    Language,   // a tag such as en-GB
    Country,    // two or three letters
    Script,     // four letters
    Character,  // one code point, which may be white space
    FamilyName, // a string, or anything up to a comma
    Text,       // all the rest, also nothing
    Empty,      // nothing
    PathData,   // the rest, as SvgLists.h has it; likewise the next two
    Points,
    TransformList,
    TimingList,   // the rest, as SvgTexts.h has it
    UnicodeRange, // one, as SvgTexts.h has it
    ContentType,  // content-type:text/xml or namespace-prefix:svg (XSL-FO)
};

namespace TokenTables {

// What a grammar calls a token.
struct Name {
    std::string_view name;
    Token token;
};
// Every token once.
inline constexpr Name names[] = {
    {"number", Token::Number},
    {"integer", Token::Integer},
    {"length", Token::Length},
    {"percentage", Token::Percentage},
    {"angle", Token::Angle},
    {"time", Token::Time},
    {"frequency", Token::Frequency},
    {"clock-value", Token::ClockValue},
    {"color", Token::Color},
    {"uri", Token::Uri},
    {"reference", Token::Reference},
    {"iri", Token::Iri},
    {"string", Token::String},
    {"name", Token::Name},
    {"id", Token::Id},
    {"idref", Token::IdRef},
    {"language", Token::Language},
    {"country", Token::Country},
    {"script", Token::Script},
    {"character", Token::Character},
    {"family-name", Token::FamilyName},
    {"text", Token::Text},
    {"empty", Token::Empty},
    {"path-data", Token::PathData},
    {"points", Token::Points},
    {"transform-list", Token::TransformList},
    {"timing-list", Token::TimingList},
    {"unicode-range", Token::UnicodeRange},
    {"content-type", Token::ContentType},
};

// A name that stands for a grammar.
struct Production {
    std::string_view name, grammar;
};
// A production may name those before it.
inline constexpr Production productions[] = {
    {"absolute-size", "xx-small | x-small | small | medium | large | x-large | xx-large"},
    {"relative-size", "larger | smaller"},
    {"font-size", "<absolute-size> | <relative-size> | <length [0,]> | <percentage [0,]>"},
    {"font-style", "normal | italic | oblique"},
    {"font-weight", "normal | bold | bolder | lighter | 100 | 200 | 300 | 400 | 500 | 600 | 700 | 800 | 900"},
    {"font-stretch", "normal | wider | narrower | ultra-condensed | extra-condensed | condensed | semi-condensed | "
                     "semi-expanded | expanded | extra-expanded | ultra-expanded"},
    {"border-style", "none | hidden | dotted | dashed | solid | double | groove | ridge | inset | outset"},
    {"border-width", "thin | medium | thick | <length [0,]>"},
    {"padding-width", "<length [0,]> | <percentage [0,]>"},
    {"margin-width", "auto | <length> | <percentage>"},
    {"clip-side", "<length> | auto"},
    // CSS 2 describes the sides separated by commas, XSL-FO and the examples of CSS 2 also by blanks.
    {"clip-shape", "rect( [ <clip-side>#{4} | <clip-side>{4} ] )"},
    {"icc-color", "icc-color( <name> [ ~ <number> ]+ )"},
    {"paint", "none | currentColor | <color> <icc-color>? | <uri> [ none | currentColor | <color> <icc-color>? ]?"},
    {"number-optional-number", "<number>~{1,2}"},
    {"list-of-numbers", "<number>~"},
    {"list-of-lengths", "<length>~"},
    {"view-box", "<number> ~ <number> ~ <number [0,]> ~ <number [0,]>"},
};

} // namespace TokenTables

// By the name that a grammar writes between "<" and ">".
constexpr std::optional<Token> findToken(std::string_view name) {
    for (TokenTables::Name const& row : TokenTables::names)
        if (row.name == name) return row.token;
    return std::nullopt;
}

// The grammar that a name is short for; empty when it is no production.
constexpr std::string_view findProduction(std::string_view name) {
    for (TokenTables::Production const& row : TokenTables::productions)
        if (row.name == name) return row.grammar;
    return {};
}

} // namespace Xml
