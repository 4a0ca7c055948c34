#include "xmlattr/measures/SLength.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/measures/Units.h"

namespace Xml {

namespace {

SLength asPercent(float number) {
    return {static_cast<float>(number / 100.0), SLength::Percent};
}

constexpr std::u16string_view none = u"none";

} // namespace

float SLength::pxSize() const {
    if (unit == UserUnit || unit == Percent) return size;
    std::size_t const row = rowOfUnit(unit);
    if (row != Core::noWord) return Units::value(row).toPixels.of(size);
    throw Core::UnreacheableCodeException("LengthAttribute", __LINE__);
}

bool SLength::parseSLength(SLength& out, Core::String const& text) {
    return AttributeTraits<SLength>::parse(out, text);
}

bool readWithUnit(SLength& out, std::u16string_view text) {
    UnitAtEnd<SLength::Unit> const end(text);
    std::size_t const suffix = end.length > 0 ? end.length : 2;
    float number = 0;
    if (text.size() <= suffix || !Core::Format::parseFloat(text.substr(0, text.size() - suffix), number)) return false;
    out = SLength(number, end.length > 0 ? end.unit : SLength::UserUnit);
    return true;
}

bool AttributeTraits<SLength>::parse(SLength& value, std::u16string_view text) {
    PlainMeasure const plain(text);
    if (plain.isBare())
        value = SLength(plain.number, SLength::UserUnit);
    else if (plain.isPercent())
        value = asPercent(plain.number);
    else if (auto const unit = plain.unit<SLength::Unit>(); unit != noUnit<SLength::Unit>)
        value = SLength(plain.number, unit);
    else
        return parseReference(value, text);
    return true;
}

bool AttributeTraits<SLength>::parseReference(SLength& value, std::u16string_view text) {
    if (text.empty()) return false;
    float number = 0;
    if (text.size() > 1 && text.back() == u'%') {
        if (!Core::Format::parseFloat(text.substr(0, text.size() - 1), number)) return false;
        value = asPercent(number);
        return true;
    }
    if (Core::isDigit(text.back())) {
        if (!Core::Format::parseFloat(text, number)) return false;
        value = SLength(number, SLength::UserUnit);
        return true;
    }
    return readWithUnit(value, text);
}

bool AttributeTraits<SNullableLength>::parse(SNullableLength& value, std::u16string_view text) {
    if (!AttributeTraits<SLength>::parse(value, text)) return false;
    value.setNull(false);
    return true;
}

bool AttributeTraits<Core::Vector<SLength>>::parse(Core::Vector<SLength>& value, std::u16string_view text) {
    Core::Vector<SLength> list;
    auto const separates = [](char16_t unit) { return unit == u',' || Core::isSpace(unit); };
    if (text != none) {
        for (TextCursor cursor{text};;) {
            cursor.takeWhile(separates);
            if (cursor.atEnd()) break;
            SLength length;
            auto const token = cursor.takeWhile([&](char16_t unit) { return !separates(unit); });
            if (!AttributeTraits<SLength>::parse(length, token)) return false;
            list.push_back(length);
        }
    }
    value = std::move(list);
    return true;
}

void AttributeTraits<SLength>::parts(SLength const& value, Parts& out) {
    out.add(u"size") << value;
    if (value.getUnit() != SLength::Percent) out.add(u"pixels") << value.pxSize();
}

void AttributeTraits<SNullableLength>::parts(SNullableLength const& value, Parts& out) {
    AttributeTraits<SLength>::parts(value, out);
}

void AttributeTraits<Core::Vector<SLength>>::words(Words& out) {
    out.add(none);
}

void AttributeTraits<Core::Vector<SLength>>::parts(Core::Vector<SLength> const& value, Parts& out) {
    out.add(u"items") << static_cast<int>(value.size());
    for (SLength const& length : value) AttributeTraits<SLength>::parts(length, out);
}

Parts& operator<<(Parts& out, SLength const& length) {
    if (length.getUnit() == SLength::Percent)
        return out << Core::Format::toMeasure(double{length.getSize()} * 100, u"%");
    out << length.getSize();
    std::size_t const row = rowOfUnit(length.getUnit());
    return length.getUnit() == SLength::UserUnit || row == Core::noWord ? out : out << Units::word(row);
}

} // namespace Xml
