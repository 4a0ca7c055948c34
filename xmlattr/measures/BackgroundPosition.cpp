#include "xmlattr/measures/BackgroundPosition.h"

#include "xmlattr/measures/Reading.h"

namespace Xml {

namespace {

constexpr NamedMeasure<LengthOrPercent> words[] = {
    {u"left", 0.0f}, {u"top", 0.0f}, {u"center", 0.5f}, {u"right", 1.0f}, {u"bottom", 1.0f},
};

} // namespace

bool BackgroundPosition::readStringBackgroundPosition(BackgroundPosition& out, Core::String const& text) {
    return readAsWord(out, words, text);
}

bool AttributeTraits<BackgroundPosition>::parse(BackgroundPosition& value, std::u16string_view text) {
    return readAsWord(value, words, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<BackgroundPosition>::print(BackgroundPosition const& value) {
    if (auto const* const row = findMeasure<LengthOrPercent>(words, value)) return row->word;
    return LengthOrPercent::getValueAsString(value);
}

} // namespace Xml
