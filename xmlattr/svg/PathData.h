// The path data of SVG.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/measures/SLength.h"

#include <cstdint>

namespace Xml {

// Unscoped, so that its enumerators compare with the integers they are, but only with their scope.
namespace PathCommandKinds {
// The commands; a relative one has the number of its absolute one.
enum XMLATTR_API PathCommandKind : std::int32_t {
    MoveTo = 2,
    ClosePath = 3,
    LineTo = 4,
    HorizontalLineTo = 5,
    VerticalLineTo = 6,
    CurveTo = 7,
    SmoothCurveTo = 8,
    QuadraticCurveTo = 9,
    SmoothQuadraticCurveTo = 10,
    ArcTo = 11,
};
} // namespace PathCommandKinds
using PathCommandKinds::PathCommandKind;

// One command as it was written: relative coordinates are not resolved. What its kind does not use
// is zero.
struct XMLATTR_API PathDataCommand {
    std::int32_t kind = 0; // a PathCommandKind
    bool relative = false; // a lower-case letter; "z" is not relative
    SLength x1{}, y1{}, x2{}, y2{}, x{}, y{}, rx{}, ry{};
    float xAxisRotation = 0; // of an arc, in degrees
    bool largeArc = false, sweep = false;

    constexpr bool operator==(PathDataCommand const&) const = default;
};

static_assert(sizeof(PathDataCommand) == 80);

// The commands of SVG 1.1. White space and commas may stand between any two things; of the former only that of XML
// ends a number. A letter may be left out where it repeats the one before; after "M" that is a line. Coordinates are SVG
// lengths, so they may have units. Never refuses a text: a number that is missing or no length is 0. Where no letter
// holds, at the start and after "Z", a code unit that is no letter of a command ends the data, and what was read before
// it is kept. The list is replaced. There is no printer.
//
// Intended: every letter of a command ends a number, but for "c" and "m" before an "m" and "t" after
// a "p". The last "m" of "mm", "cm" and "em" therefore begins a command: at the end of the text,
// "10mm" is the number "10m" and a relative move.
template <> struct XMLATTR_API AttributeTraits<Core::Vector<PathDataCommand>> {
    static bool parse(Core::Vector<PathDataCommand>& value, std::u16string_view text);
    static constexpr bool refusesComparison = true;
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"the path data of SVG 1.1"},
                                          .examples = {u"M10,20 l3-4 C1 2 3 4 5 6z a1,1 0 01 3,4", u"m0 0h1v1"},
                                          .readsList = true};
    static void parts(Core::Vector<PathDataCommand> const& value, Parts& out);
};

} // namespace Xml
