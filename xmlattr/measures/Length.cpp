#include "xmlattr/measures/Length.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/core/Append.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/measures/Units.h"

namespace Xml {

namespace {

std::size_t rowOf(Length::Unit unit) {
    std::size_t const row = rowOfUnit(unit);
    if (row != Core::noWord) return row;
    throw Core::UnreacheableCodeException("LengthAttribute", __LINE__);
}

std::u16string_view wordOf(Length const& length) {
    return Units::word(rowOf(length.getUnit()));
}

} // namespace

void appendLength(std::u16string& out, Length const& length) {
    Core::append(out, Core::Measure{length.getSize()}, wordOf(length));
}

float Length::pxSize() const {
    return Units::value(rowOf(unit)).toPixels.of(size);
}

float Length::pxSizeToUnitSize(float px, Unit unit) {
    return Units::value(rowOf(unit)).fromPixels.of(px);
}

Length Length::operator+(Length const& other) const {
    return {pxSizeToUnitSize(pxSize() + other.pxSize(), unit), unit};
}

Length Length::operator-(Length const& other) const {
    return {pxSizeToUnitSize(pxSize() - other.pxSize(), unit), unit};
}

bool Length::parseLength(Length& out, Core::String const& text) {
    return AttributeTraits<Length>::parse(out, text);
}

Core::String Length::getValueAsString(Length const& length) {
    return Core::joined(Core::Measure{length.getSize()}, wordOf(length));
}

bool AttributeTraits<Length>::parse(Length& value, std::u16string_view text) {
    PlainMeasure const plain(text);
    auto const unit = plain.unit<Length::Unit>();
    if (unit == noUnit<Length::Unit>) return parseReference(value, text);
    value = Length(plain.number, unit);
    return true;
}

bool AttributeTraits<Length>::parseReference(Length& value, std::u16string_view text) {
    if (!startsLikeNumber(text)) return false;
    if (text == u"0") {
        value = Length(0, Length::Pt); // Intended: points, not the pixels of the default length
        return true;
    }
    UnitAtEnd<Length::Unit> const end(text);
    float size = 0;
    if (end.length == 0 || !Core::Format::parseFloat(text.substr(0, text.size() - end.length), size)) return false;
    value = Length(size, end.unit);
    return true;
}

Core::String AttributeTraits<Length>::print(Length const& value) {
    return Length::getValueAsString(value);
}

bool AttributeTraits<DLength>::parse(DLength& value, std::u16string_view text) {
    TextCursor cursor{text};
    std::u16string_view const first = cursor.takeWord();
    std::u16string_view const second = cursor.takeWord();
    if (!cursor.takeWord().empty()) return false;
    Length read;
    if (!AttributeTraits<Length>::parse(read, first)) return false;
    value = DLength(read, second.empty() ? read : value.getSecond());
    if (second.empty()) return true;
    if (!AttributeTraits<Length>::parse(read, second)) return false;
    value = DLength(value.getFirst(), read);
    return true;
}

Core::String AttributeTraits<DLength>::print(DLength const& value) {
    Length const first = value.getFirst(), second = value.getSecond();
    return Core::joined(Core::Measure{first.getSize()}, wordOf(first), u" ", Core::Measure{second.getSize()},
                        wordOf(second));
}

void AttributeTraits<Length>::parts(Length const& value, Parts& out) {
    out.add(u"pixels") << value.pxSize();
}

void AttributeTraits<DLength>::parts(DLength const& value, Parts& out) {
    AttributeTraits<Length>::parts(value.getFirst(), out);
    AttributeTraits<Length>::parts(value.getSecond(), out);
}

} // namespace Xml
