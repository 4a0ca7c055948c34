// The long lists of SVG attributes, read as the recommendation means them and compared with what the value types hold.
//
// Path data, points and transforms have the grammars of SVG 1.1, sections 8.3.9, 9.7.1 and 7.6, the other lists that
// of section 4.2. In all of them a number may touch the one before it where no unit of the two could belong to both, as
// in SVG 2: ".5.5" and "1-1" are two numbers. White space is that of XML; it may stand around every list.
// Numbers are rounded once to single precision; one that is too large for it is never what a value type holds.
#pragma once

#include "xmlattr/svg/PathData.h"
#include "xmlattr/svg/Point.h"
#include "xmlattr/svg/Transform.h"
#include "xmlattr/svg/ViewBox.h"

#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Xml {

// What a list is by the recommendation, and what a value type made of it.
struct SvgReading {
    enum class Outcome : std::uint8_t {
        Same,    // legal, and the value type holds what it means
        Differs, // legal, and the value type holds something else
        Illegal,
    };

    Outcome outcome = Outcome::Same;
    // In code units: the first part that is illegal, or that is held otherwise. Where something is missing at the end
    // of the text, the length is 0.
    std::size_t offset = 0, length = 0;
    std::string_view problem; // of an illegal text, in plain words: "expected a number"
    std::string held;         // of another value, what the value type holds for the part: "0", "12pt", "nothing"

    bool isLegal() const { return outcome != Outcome::Illegal; }
    bool operator==(SvgReading const&) const = default;
};

// As path data has it: "M", or "m" where the command is relative.
constexpr char letterOf(PathDataCommand const& command) {
    constexpr std::string_view letters = "MZLHVCSQTA"; // by kind
    char const letter = letters[static_cast<std::size_t>(command.kind - PathCommandKind::MoveTo)];
    bool const isLower = command.relative && command.kind != PathCommandKind::ClosePath;
    return isLower ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

// What the items of a list of numbers or lengths may be.
struct SvgListRule {
    bool units = false;        // lengths and percentages; else numbers
    bool whole = false;        // integers
    bool none = false;         // the word "none" stands for the empty list
    float minimum = -FLT_MAX;  // of each number
    bool aboveMinimum = false; // the minimum itself is an error
    std::size_t fewest = 1;    // so many items at least
    std::size_t most = SIZE_MAX;

    static constexpr SvgListRule numbers() { return {}; }
    static constexpr SvgListRule lengths() { return {.units = true}; }
    static constexpr SvgListRule dashes() { return {.units = true, .none = true, .minimum = 0}; }
    // One number or two: <number-optional-number>.
    static constexpr SvgListRule numberPair() { return {.most = 2}; }
};

// Whether a text is legal.
bool readPathData(std::u16string_view text);
bool readPoints(std::u16string_view text);
bool readTransformList(std::u16string_view text);
bool readViewBox(std::u16string_view text);
bool readSvgList(std::u16string_view text, SvgListRule const& rule);

// Whether path data is legal and written so that the value type reads what it means, which is then known without
// reading it: the fast path for most of it. False says nothing; compare() tells.
bool isPlainPathData(std::u16string_view text);

// Whether a text is legal and means what a value type holds that read it into a fresh attribute. One pass, which
// allocates nothing but the words about a difference.
SvgReading compare(std::u16string_view text, Core::Vector<PathDataCommand> const& held);
SvgReading compare(std::u16string_view text, Core::Vector<Point> const& held);
SvgReading compare(std::u16string_view text, Core::Vector<Transform> const& held);
SvgReading compare(std::u16string_view text, ViewBox const& held);
SvgReading compare(std::u16string_view text, Core::Vector<SLength> const& held, SvgListRule const& rule);

// The text with the fewest separators and forms of numbers changed that make its value type read what it means; the
// same text when that is so already. Nothing for an illegal text and for one that the value type cannot hold. Each
// result has been read by the value type and compared.
std::optional<std::u16string> rewritePathData(std::u16string_view text);
std::optional<std::u16string> rewritePoints(std::u16string_view text);
std::optional<std::u16string> rewriteTransformList(std::u16string_view text);
std::optional<std::u16string> rewriteViewBox(std::u16string_view text);
std::optional<std::u16string> rewriteSvgList(std::u16string_view text, SvgListRule const& rule);

} // namespace Xml
