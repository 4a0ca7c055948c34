#include "xmlattr/measures/Spacing.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/measures/Reading.h"

namespace Xml {

namespace {

constexpr std::u16string_view normal = u"normal";

} // namespace

bool AttributeTraits<LetterSpacing>::parse(LetterSpacing& value, std::u16string_view text) {
    if (!Core::equalsNoCase(text, normal)) return readAs<Length>(value, text);
    value = LetterSpacing();
    return true;
}

Core::String AttributeTraits<LetterSpacing>::print(LetterSpacing const& value) {
    return value.isNormal() ? Core::String(normal) : Length::getValueAsString(value.getLength());
}

bool AttributeTraits<SSpacing>::parse(SSpacing& value, std::u16string_view text) {
    if (text != normal) return readAs<SLength>(value, text); // Intended: exact, unlike LetterSpacing
    value = SSpacing();
    return true;
}

void AttributeTraits<LetterSpacing>::words(Words& out) {
    out.add(normal);
}

void AttributeTraits<SSpacing>::words(Words& out) {
    out.add(normal);
}

void AttributeTraits<SSpacing>::parts(SSpacing const& value, Parts& out) {
    if (value.isNormal())
        out.add(u"kind") << normal;
    else
        AttributeTraits<SLength>::parts(value.getSLength(), out);
}

} // namespace Xml
