#include "xmlattr/svg/SPreserveAspectRatio.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

bool AttributeTraits<SPreserveAspectRatio>::parse(SPreserveAspectRatio& value, std::u16string_view text) {
    TextCursor cursor{text};
    auto const first = cursor.takeWord();
    auto const second = cursor.takeWord();
    int bits = Core::WordTable<words>::find(first).value_or(XMid | YMid);
    if (bits != None) bits |= second.empty() ? Meet : Core::WordTable<secondWords>::find(second).value_or(0);
    value = SPreserveAspectRatio(bits);
    return true;
}

} // namespace Xml
