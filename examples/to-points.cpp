// A table of lengths in points, as an author would want it who has them in all kinds of units.
//
//   to-points LENGTH...
#include <xmlattr/xmlattr.h>

#include <iomanip>
#include <iostream>

namespace {

using Xml::Length;

// Lengths convert through pixels. A formatter that knows the font resolves em and ex first, since here
// they are fixed parts of a pixel.
Length inPoints(Length const& length) {
    return {Length::pxSizeToUnitSize(length.pxSize(), Length::Pt), Length::Pt};
}

} // namespace

int main(int argc, char** argv) {
    int refused = 0;
    Length sum(0, Length::Pt);
    for (int i = 1; i < argc; ++i) {
        std::cout << std::setw(12) << argv[i] << "  ";
        Xml::TXmlAttribute<Length> length;
        if (!length.parseValue(Core::String::fromUtf8(argv[i]))) {
            // The attribute still holds what it held before, here 0px.
            std::cout << "is no length\n";
            ++refused;
            continue;
        }
        sum += *length;
        std::cout << Length::getValueAsString(inPoints(*length)).toUtf8() << "\n";
    }
    // The sum has the unit of its left operand.
    std::cout << std::setw(12) << "together"
              << "  " << Length::getValueAsString(sum).toUtf8() << "\n";
    return refused == 0 ? 0 : 1;
}
