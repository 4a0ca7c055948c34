#include "xmlattr/svg/SPreserveAspectRatio.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

namespace {

enum Bit { None = 1, Meet = 2, Slice = 4, XMin = 8, XMid = 16, XMax = 32, YMin = 64, YMid = 128, YMax = 256 };

struct Alignment {
    std::u16string_view keyword;
    int bits;
};

constexpr Alignment alignments[] = {
    {u"xMinYMin", XMin | YMin}, {u"xMidYMin", XMid | YMin}, {u"xMaxYMin", XMax | YMin},
    {u"xMinYMid", XMin | YMid}, {u"xMidYMid", XMid | YMid}, {u"xMaxYMid", XMax | YMid},
    {u"xMinYMax", XMin | YMax}, {u"xMidYMax", XMid | YMax}, {u"xMaxYMax", XMax | YMax},
};

int alignmentOf(std::u16string_view word) {
    for (Alignment const& alignment : alignments)
        if (alignment.keyword == word) return alignment.bits;
    return XMid | YMid;
}

} // namespace

bool AttributeTraits<SPreserveAspectRatio>::parse(SPreserveAspectRatio& value, std::u16string_view text) {
    TextCursor cursor{text};
    auto const first = cursor.takeWord();
    auto const second = cursor.takeWord();
    int bits = None;
    if (first != u"none") {
        bits = alignmentOf(first);
        if (second.empty() || second == u"meet") bits |= Meet;
        if (second == u"slice") bits |= Slice;
    }
    value = SPreserveAspectRatio(bits);
    return true;
}

} // namespace Xml
