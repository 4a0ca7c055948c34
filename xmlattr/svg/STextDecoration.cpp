#include "xmlattr/svg/STextDecoration.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

bool AttributeTraits<STextDecoration>::parse(STextDecoration& value, std::u16string_view text) {
    if (text.empty()) return false;
    // Intended: "none" anywhere behind the first code unit means no decoration, and at the very
    // start it is a keyword like any unknown one, so "none" is refused and " none" is not.
    std::size_t const none = text.find(u"none");
    if (none != std::u16string_view::npos && none > 0) {
        value = STextDecoration();
        return true;
    }
    bool underline = false, overline = false, lineThrough = false;
    for (TextCursor cursor{text}; !cursor.atEnd(); cursor.take(u',')) {
        cursor.skipSpace();
        std::u16string_view const keyword = cursor.takeWhile([](char16_t unit) { return unit != u','; });
        if (keyword == u"underline")
            underline = true;
        else if (keyword == u"overline")
            overline = true;
        else if (keyword == u"line-through")
            lineThrough = true;
        else
            return false;
    }
    value = STextDecoration(underline, overline, lineThrough);
    return true;
}

} // namespace Xml
