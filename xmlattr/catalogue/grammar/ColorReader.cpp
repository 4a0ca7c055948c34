#include "xmlattr/catalogue/grammar/TokenReader.h"

#include "xmlattr/color/ColorNames.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <cmath>

namespace Xml {

namespace {

bool readHexColor(Item& item, std::u16string_view digits) {
    if ((digits.size() != 3 && digits.size() != 6) ||
        !std::ranges::all_of(digits, [](char16_t unit) { return Core::hexDigit(unit) >= 0; }))
        return false;
    bool const isShort = digits.size() == 3;
    for (char16_t const digit : digits) {
        auto const value = static_cast<std::uint32_t>(Core::hexDigit(digit));
        item.rgb = isShort ? item.rgb << 8 | value * 0x11 : item.rgb << 4 | value;
    }
    return true;
}

// Three numbers or three percentages with commas between them, each brought into its range. SVG has integers only.
bool readComponents(Item& item, ValueCursor& cursor) {
    bool arePercentages = false;
    for (int i = 0; i < 3; ++i) {
        float number = 0;
        bool isInteger = false;
        cursor.skipSpace();
        if (!readNumber(number, cursor, &isInteger)) return false;
        bool const isPercentage = cursor.take(u'%');
        if (i > 0 && isPercentage != arePercentages) return false;
        arePercentages = isPercentage;
        if (!isPercentage && !isInteger && cursor.dialect != Dialect::Fo) return false;
        if (!isInteger) item.number = 1;
        float const component = std::clamp(isPercentage ? number * 2.55f : number, 0.0f, 255.0f);
        item.rgb = item.rgb << 8 | static_cast<std::uint32_t>(std::lround(component));
        cursor.skipSpace();
        if (i < 2 && !cursor.take(u',')) return false;
    }
    // Implementations round percentages to bytes in different ways.
    if (arePercentages) item.number = 1;
    return true;
}

bool takeArgument(ValueCursor& cursor) {
    cursor.skipSpace();
    bool const hasOne = !cursor.takeRun().empty();
    cursor.skipSpace();
    return hasOne;
}

// The name of a profile, a set of inks or a system colour; formatters have some that begin with "#".
bool takeNameArgument(ValueCursor& cursor) {
    cursor.skipSpace();
    char16_t const first = cursor.peek();
    bool const isName = Core::isLetter(first) || first >= 0x80 ||
                        std::u16string_view(u"_#'\"").find(first) != std::u16string_view::npos;
    return isName && takeArgument(cursor);
}

// The arguments after the RGB colour of a call: a name, and others up to as many as that in all.
bool takeArguments(ValueCursor& cursor, int most) {
    if (!cursor.take(u',') || !takeNameArgument(cursor)) return false;
    int count = 1;
    while (cursor.take(u',')) {
        ++count;
        if (!takeArgument(cursor)) return false;
    }
    return count <= most && cursor.take(u')');
}

bool readNamedColor(Item& item, std::u16string_view name) {
    constexpr std::size_t longest = 32; // more than any name has
    if (name.empty() || name.size() > longest) return false;
    if (auto const rgb = Core::WordTable<colorNames, Core::Case::Any>::find(name)) {
        item.rgb = *rgb;
        return true;
    }
    // The value of a system colour is not known here, so it counts as a word.
    item.kind = ItemKind::Word;
    return !Core::OSInfo::getSystemColor(Core::String(name)).empty();
}

} // namespace

bool readColor(Item& item, ValueCursor& cursor) {
    std::size_t const first = cursor.index;
    auto const withText = [&](bool isColor) {
        item.text = cursor.text.substr(first, cursor.index - first);
        return isColor;
    };
    item.kind = ItemKind::Color;
    if (cursor.take(u'#')) return withText(readHexColor(item, cursor.takeRun()));
    while (cursor.peek() == u'-' || Core::isLetter(cursor.peek())) ++cursor.index;
    std::u16string_view const name = cursor.text.substr(first, cursor.index - first);
    if (!cursor.take(u'(')) return withText(readNamedColor(item, name));
    bool const isFo = cursor.dialect == Dialect::Fo;
    if (equalsWord(name, "rgb", !isFo)) return withText(readComponents(item, cursor) && cursor.take(u')'));
    if (!isFo) return false;
    if (name == u"rgb-icc") return withText(readComponents(item, cursor) && takeArguments(cursor, 64));
    if (name == u"rgb-named-color") return withText(readComponents(item, cursor) && takeArguments(cursor, 2));
    if (name != u"system-color") return false;
    item.kind = ItemKind::Word;
    return withText(takeNameArgument(cursor) && cursor.take(u')'));
}

} // namespace Xml
