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

template <class Measure> void addParts(FontSizeOf<Measure> const& size, Parts& out) {
    if (size.isRelativeSize())
        out.add(u"relative") << AttributeTraits<RelativeFontSize>::print(size.getRelativeSize());
    else
        AttributeTraits<Measure>::parts(size.getAbsoluteSize(), out);
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

void AttributeTraits<FontSize>::words(Words& out) {
    out.addAll(absoluteFontSizes);
    out.addAll(Keywords<RelativeFontSize>::rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

void AttributeTraits<FontSize>::parts(FontSize const& value, Parts& out) {
    addParts(value, out);
}

void AttributeTraits<SFontSize>::words(Words& out) {
    out.addAll(absoluteFontSizes);
    out.addAll(Keywords<RelativeFontSize>::rows);
}

void AttributeTraits<SFontSize>::parts(SFontSize const& value, Parts& out) {
    addParts(value, out);
}

} // namespace Xml
