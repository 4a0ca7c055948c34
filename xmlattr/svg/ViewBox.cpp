#include "xmlattr/svg/ViewBox.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/measures/Units.h"

namespace Xml {

namespace {

Parts& operator<<(Parts& out, SLengthOrPercent const& measure) {
    return out << (measure.isPercent() ? SLength(measure.getPercent(), SLength::Percent) : measure.getLength());
}

} // namespace

bool AttributeTraits<ViewBox>::parse(ViewBox& value, std::u16string_view text) {
    TextCursor cursor{text};
    ViewBox read;
    for (SLengthOrPercent* side : {&read.x, &read.y, &read.width, &read.height})
        if (!AttributeTraits<SLengthOrPercent>::parse(*side, cursor.takeWord())) return false;
    value = read;
    return true;
}

void AttributeTraits<ViewBox>::parts(ViewBox const& value, Parts& out) {
    out.add(u"corner") << value.x << u" " << value.y;
    out.add(u"size") << value.width << u" " << value.height;
}

} // namespace Xml
