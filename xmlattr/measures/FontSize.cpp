#include "xmlattr/measures/FontSize.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

namespace {

constexpr NamedMeasure<float> pointSizes[] = {
    {u"xx-small", 6}, {u"x-small", 8},   {u"small", 10}, {u"medium", 12}, {u"large", 16}, // Intended: no step of 14
    {u"x-large", 18}, {u"xx-large", 20},
};

template <class LengthType, class Measure, class T> bool readSize(T& value, std::u16string_view text) {
    if (auto const* const row = findWord(pointSizes, text)) {
        value = T(Measure(LengthType(row->measure, LengthType::Pt)));
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
