#include "xmlattr/measures/FontSize.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

namespace {

template <class LengthType, class Measure, class T> bool readSize(T& value, std::u16string_view text) {
    if (auto const points = Core::WordTable<absoluteFontSizes>::find(text)) {
        value = T(Measure(LengthType(*points, LengthType::Pt)));
        return true;
    }
    return readAs<RelativeFontSize>(value, text) || readAs<Measure>(value, text);
}

} // namespace

bool AttributeTraits<FontSize>::parse(FontSize& value, std::u16string_view text) {
    return readSize<Length, LengthOrPercent>(value, text);
}

Core::String AttributeTraits<FontSize>::print(FontSize const& value) {
    if (value.isAbsoluteSize()) return LengthOrPercent::getValueAsString(value.getAbsoluteSize());
    return AttributeTraits<RelativeFontSize>::print(value.getRelativeSize());
}

bool AttributeTraits<SFontSize>::parse(SFontSize& value, std::u16string_view text) {
    return readSize<SLength, SLengthOrPercent>(value, text);
}

} // namespace Xml
