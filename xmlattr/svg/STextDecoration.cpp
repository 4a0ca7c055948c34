#include "xmlattr/svg/STextDecoration.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

bool AttributeTraits<STextDecoration>::parse(STextDecoration& value, std::u16string_view text) {
    if (text.empty()) return false;
    // Intended: "none" anywhere after the first code unit means no decoration, and at the very
    // start it is a keyword like any unknown one, so "none" is refused and " none" is not.
    std::size_t const none = text.find(u"none");
    if (none != std::u16string_view::npos && none > 0) {
        value = STextDecoration();
        return true;
    }
    int lines = 0;
    for (TextCursor cursor{text}; !cursor.atEnd(); cursor.take(u',')) {
        cursor.skipSpace();
        auto const line = Core::WordTable<rows>::find(cursor.takeWhile([](char16_t unit) { return unit != u','; }));
        if (!line) return false;
        lines |= *line;
    }
    value = STextDecoration(lines & Underline, lines & Overline, lines & LineThrough);
    return true;
}

void AttributeTraits<STextDecoration>::words(Words& out) {
    out.addAll(rows);
}

void AttributeTraits<STextDecoration>::parts(STextDecoration const& value, Parts& out) {
    using Lines = Core::WordTable<rows>;
    auto const add = [&](bool isHeld, Line line) {
        if (isHeld) out.add(u"line") << Lines::word(Lines::findValue(line));
    };
    add(value.isUnderline(), Underline);
    add(value.isOverline(), Overline);
    add(value.isLineThrough(), LineThrough);
}

} // namespace Xml
