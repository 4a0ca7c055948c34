// How values print elsewhere: the floor, which is std::to_chars into a buffer that is there, and {fmt}, with formats
// that are compiled, into a string like those of the library. Both write three decimals where the library leaves out
// trailing zeros.
#pragma once

#include "xmlattr/xmlattr.h"

#include <string>

namespace Bench {

namespace Floors {

// Each writes a value at `out`, which has room for it, and gives the end. What a value is made of is known: colours are
// of one class, a shadow's is RGB, and names are `name`.
inline constexpr std::string_view name = "Fogra39";
char* print(char* out, int value);
char* print(char* out, float value);
char* print(char* out, Xml::Length const& value);
char* print(char* out, Xml::LengthOrPercent const& value);
char* print(char* out, Core::Vector<Xml::Point> const& value);
char* print(char* out, Xml::BoxShadow const& value);
char* print(char* out, Drawing::RGBColor const& value);
char* print(char* out, Drawing::CMYKColor const& value);
char* print(char* out, Drawing::ICCColor const& value);
char* print(char* out, Drawing::SpotColor const& value);

} // namespace Floors

// The same by {fmt}: only where it is installed.
namespace Fmt {

std::u16string print(int value);
std::u16string print(float value);
std::u16string print(Xml::Length const& value);
std::u16string print(Xml::LengthOrPercent const& value);
std::u16string print(Core::Vector<Xml::Point> const& value);
std::u16string print(Xml::BoxShadow const& value);
std::u16string print(Drawing::RGBColor const& value);
std::u16string print(Drawing::CMYKColor const& value);
std::u16string print(Drawing::ICCColor const& value);
std::u16string print(Drawing::SpotColor const& value);

} // namespace Fmt

} // namespace Bench
