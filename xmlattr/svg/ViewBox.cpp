#include "xmlattr/svg/ViewBox.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

bool AttributeTraits<ViewBox>::parse(ViewBox& value, std::u16string_view text) {
    TextCursor cursor{text};
    ViewBox read;
    for (SLengthOrPercent* side : {&read.x, &read.y, &read.width, &read.height})
        if (!AttributeTraits<SLengthOrPercent>::parse(*side, cursor.takeWord())) return false;
    value = read;
    return true;
}

} // namespace Xml
