// The values that are a language of their own: the data of paths, the points of polygons and lists of transforms.
#pragma once

#include <string_view>

namespace Xml {

// Whether the text is one by SVG 1.1. White space of XML may stand around it.
bool readPathData(std::u16string_view text);
bool readPoints(std::u16string_view text);
bool readTransformList(std::u16string_view text);

} // namespace Xml
