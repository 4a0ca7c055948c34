#include "xmlattr/color/SColor.h"

#include "xmlattr/attributes/TextCursor.h"

#include <algorithm>

namespace Xml {

bool SColor::parseSColor(SColor& value, Core::String const& text) {
    return AttributeTraits<SColor>::parse(value, text);
}

bool AttributeTraits<SColor>::parse(SColor& value, std::u16string_view text) {
    if (text.size() > 3 && text.starts_with(u"url")) {
        std::size_t const hash = text.find(u'#', std::min(text.find(u'('), text.size()));
        if (hash == std::u16string_view::npos) return false;
        TextCursor cursor{text, static_cast<int>(hash)};
        value = SColor(cursor.takeWhile([](char16_t unit) { return unit != u')' && !Core::isSpace(unit); }));
        return true;
    }
    SmartPtr<Drawing::Color> color;
    if (!AttributeTraits<SmartPtr<Drawing::Color>>::parse(color, text)) return false;
    value = color ? SColor(color) : SColor();
    return true;
}

bool AttributeTraits<SNullableColor>::parse(SNullableColor& value, std::u16string_view text) {
    if (!AttributeTraits<SColor>::parse(value, text)) return false;
    value.setNull(false);
    return true;
}

} // namespace Xml
