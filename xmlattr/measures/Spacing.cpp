#include "xmlattr/measures/Spacing.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<LetterSpacing>::parse(LetterSpacing& value, std::u16string_view text) {
    if (!Core::equalsNoCase(text, u"normal")) return readAs<Length>(value, text);
    value = LetterSpacing();
    return true;
}

Core::String AttributeTraits<LetterSpacing>::print(LetterSpacing const& value) {
    return value.isNormal() ? u"normal" : Length::getValueAsString(value.getLength());
}

bool AttributeTraits<SSpacing>::parse(SSpacing& value, std::u16string_view text) {
    if (text != u"normal") return readAs<SLength>(value, text); // Intended: exact, unlike LetterSpacing
    value = SSpacing();
    return true;
}

} // namespace Xml
