#include "xmlattr/svg/SPreserveAspectRatio.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

bool AttributeTraits<SPreserveAspectRatio>::parse(SPreserveAspectRatio& value, std::u16string_view text) {
    TextCursor cursor{text};
    auto const first = cursor.takeWord();
    auto const second = cursor.takeWord();
    int bits = Core::WordTable<rows>::find(first).value_or(XMid | YMid);
    if (bits != None) bits |= second.empty() ? Meet : Core::WordTable<secondWords>::find(second).value_or(0);
    value = SPreserveAspectRatio(bits);
    return true;
}

void AttributeTraits<SPreserveAspectRatio>::words(Words& out) {
    out.addAll(rows);
    out.addAll(secondWords);
}

void AttributeTraits<SPreserveAspectRatio>::parts(SPreserveAspectRatio const& value, Parts& out) {
    struct Row {
        Bit bit;
        std::u16string_view word;
    };
    constexpr Row held[] = {{None, u"none"}, {Meet, u"meet"}, {Slice, u"slice"}, {XMin, u"xMin"}, {XMid, u"xMid"},
                            {XMax, u"xMax"}, {YMin, u"YMin"}, {YMid, u"YMid"},   {YMax, u"YMax"}};
    out.add(u"fit");
    std::u16string_view separator;
    for (auto const& [bit, word] : held) {
        if (!(value.getAspectRatio() & bit)) continue;
        out << separator << word;
        separator = u" ";
    }
}

} // namespace Xml
