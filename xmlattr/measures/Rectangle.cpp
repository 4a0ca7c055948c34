#include "xmlattr/measures/Rectangle.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/measures/Length.h"

#include <iterator>

namespace Xml {

bool AttributeTraits<Drawing::RectF>::parse(Drawing::RectF& value, std::u16string_view text) {
    constexpr std::u16string_view opening = u"rect(";
    if (!text.starts_with(opening) || !text.ends_with(u')')) return false;
    text.remove_prefix(opening.size());
    text.remove_suffix(1);

    float pixels[4];
    std::size_t count = 0;
    for (TextCursor cursor{text}; !cursor.atEnd(); cursor.take(u',')) {
        std::u16string_view const piece = cursor.takeWhile([](char16_t unit) { return unit != u','; });
        if (piece.empty()) continue; // Intended: commas side by side count as one
        Length length;
        if (count == std::size(pixels) || !AttributeTraits<Length>::parse(length, Core::trim(piece))) return false;
        pixels[count++] = length.pxSize();
    }
    if (count != std::size(pixels)) return false;
    value = Drawing::RectF(pixels[0], pixels[1], pixels[2], pixels[3]);
    return true;
}

void AttributeTraits<Drawing::RectF>::parts(Drawing::RectF const& value, Parts& out) {
    out.add(u"top") << value.getTop();
    out.add(u"right") << value.getRight();
    out.add(u"bottom") << value.getBottom();
    out.add(u"left") << value.getLeft();
}

} // namespace Xml
