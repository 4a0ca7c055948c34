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

void AttributeTraits<SColor>::words(Words& out) {
    AttributeTraits<SmartPtr<Drawing::Color>>::words(out);
}

void AttributeTraits<SColor>::parts(SColor const& value, Parts& out) {
    switch (value.getType()) {
    case SColor::None: out.add(u"kind") << u"no paint"; break;
    case SColor::Url: out.add(u"reference") << value.getUrl(); break;
    case SColor::Color: return AttributeTraits<SmartPtr<Drawing::Color>>::parts(value.getColor(), out);
    }
}

void AttributeTraits<SNullableColor>::words(Words& out) {
    AttributeTraits<SColor>::words(out);
}

void AttributeTraits<SNullableColor>::parts(SNullableColor const& value, Parts& out) {
    AttributeTraits<SColor>::parts(value, out);
}

} // namespace Xml
