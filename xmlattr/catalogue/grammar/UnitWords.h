// The units of the recommendations: XSL-FO 1.1, CSS 2 and SVG 1.1. The value types read their own, which may be others.
#pragma once

#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/core/WordTable.h"

namespace Xml {

inline constexpr Core::WordRow<ItemKind> unitWords[] = {
    {u"px", ItemKind::Length},     {u"pt", ItemKind::Length},  {u"pc", ItemKind::Length},
    {u"cm", ItemKind::Length},     {u"mm", ItemKind::Length},  {u"in", ItemKind::Length},
    {u"em", ItemKind::Length},     {u"ex", ItemKind::Length},  {u"%", ItemKind::Percentage},
    {u"deg", ItemKind::Angle},     {u"grad", ItemKind::Angle}, {u"rad", ItemKind::Angle},
    {u"s", ItemKind::Time},        {u"ms", ItemKind::Time},    {u"Hz", ItemKind::Frequency},
    {u"kHz", ItemKind::Frequency},
};

// What authors write for a unit, in lower case.
inline constexpr Core::WordRow<std::u16string_view> unitNames[] = {
    {u"inch", u"in"},    {u"inches", u"in"},   {u"\"", u"in"},     {u"point", u"pt"},  {u"points", u"pt"},
    {u"pts", u"pt"},     {u"pixel", u"px"},    {u"pixels", u"px"}, {u"pica", u"pc"},   {u"picas", u"pc"},
    {u"degree", u"deg"}, {u"degrees", u"deg"}, {u"°", u"deg"},     {u"percent", u"%"}, {u"pct", u"%"},
};

} // namespace Xml
