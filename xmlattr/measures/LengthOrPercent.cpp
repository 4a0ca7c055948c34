#include "xmlattr/measures/LengthOrPercent.h"

#include "xmlattr/core/Application.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/measures/Reading.h"
#include "xmlattr/measures/Units.h"

#include <algorithm>

namespace Xml {

namespace {

// A number before a unit. Intended: two code units that name no unit count as pixels, and a text
// without anything before them ("-x", "+") has the number 0.
bool readLength(LengthOrPercent& value, std::u16string_view text) {
    UnitAtEnd<Length::Unit> const end(text);
    std::size_t const suffix = end.length > 0 ? end.length : std::min<std::size_t>(text.size(), 2);
    float number = 0;
    if (!Core::Format::parseFloat(text.substr(0, text.size() - suffix), number)) return false;
    value = LengthOrPercent(Length(number, end.length > 0 ? end.unit : Length::Px));
    return true;
}

constexpr std::u16string_view automatic = u"auto", normal = u"normal";

} // namespace

bool LengthOrPercent::parseLengthOrPercent(LengthOrPercent& out, Core::String const& text, bool bareNumberIsRatio) {
    return AttributeTraits<LengthOrPercent>::parse(out, text, bareNumberIsRatio);
}

Core::String LengthOrPercent::getValueAsString(LengthOrPercent const& value) {
    if (value.isPercent()) return Core::Format::toMeasure(double{value.getPercent()} * 100, u"%");
    return Length::getValueAsString(value.getLength());
}

bool AttributeTraits<LengthOrPercent>::parse(LengthOrPercent& value, std::u16string_view text, bool bareNumberIsRatio) {
    if (text == normal) { // Intended: also where no line height is meant
        value = LengthOrPercent(1.2f);
        return true;
    }
    if (!startsLikeNumber(text)) return false;
    float number = 0;
    char16_t const last = text.back();
    if (last == u'%') {
        if (!Core::Format::parseFloat(text.substr(0, text.size() - 1), number)) return false;
        value = LengthOrPercent(number * 0.01f); // Intended: multiplied in single precision, unlike FloatOrPercent
        return true;
    }
    if (last != u'.' && !Core::isDigit(last)) return readLength(value, text);
    if (!Core::Format::parseFloat(text, number)) return false;
    bool const isInPoints = !bareNumberIsRatio && Core::Application::isConfigValue(u"MeasurementUnit", u"Points");
    value = isInPoints ? LengthOrPercent(Length(number, Length::Pt)) : LengthOrPercent(number);
    return true;
}

Core::String AttributeTraits<LengthOrPercent>::print(LengthOrPercent const& value) {
    return LengthOrPercent::getValueAsString(value);
}

Core::String AutoOrMeasurePrinter::print(AutoOrMeasure const& value) {
    if (value.isAuto()) return {};
    return LengthOrPercent::getValueAsString(value.getLengthOrPercent());
}

bool LengthOrPercentAuto::parseLengthOrPercentAuto(LengthOrPercentAuto& out, Core::String const& text) {
    return AttributeTraits<LengthOrPercentAuto>::parse(out, text);
}

bool AttributeTraits<LengthOrPercentAuto>::parse(LengthOrPercentAuto& value, std::u16string_view text) {
    if (!Core::equalsNoCase(text, u"auto")) return readAs<LengthOrPercent>(value, text);
    value.setAuto(true); // Intended: the measure stays
    return true;
}

Core::String AttributeTraits<LengthOrPercentAuto>::print(LengthOrPercentAuto const& value) {
    return value.isAuto() ? u"auto" : AutoOrMeasurePrinter::print(value);
}

bool Margin::parseMargin(Margin& out, Core::String const& text) {
    return AttributeTraits<Margin>::parse(out, text);
}

bool AttributeTraits<Margin>::parse(Margin& value, std::u16string_view text) {
    return readAs<LengthOrPercent>(value, text);
}

void AttributeTraits<LengthOrPercent>::parts(LengthOrPercent const& value, Parts& out) {
    if (value.isPercent())
        out.add(u"fraction") << value.getPercent();
    else
        AttributeTraits<Length>::parts(value.getLength(), out);
}

void AttributeTraits<LengthOrPercentAuto>::words(Words& out) {
    out.add(automatic);
    AttributeTraits<LengthOrPercent>::words(out);
}

void AttributeTraits<Margin>::words(Words& out) {
    AttributeTraits<LengthOrPercent>::words(out);
}

void AttributeTraits<LengthOrPercent>::words(Words& out) {
    out.add(normal);
}

void AutoOrMeasureParts::parts(AutoOrMeasure const& value, Parts& out) {
    if (value.isAuto())
        out.add(u"automatic") << u"yes";
    else
        AttributeTraits<LengthOrPercent>::parts(value.getLengthOrPercent(), out);
}

} // namespace Xml
