#include "xmlattr/attributes/PlainValues.h"

#include "xmlattr/core/Format.h"

namespace Xml {

bool AttributeTraits<int>::parse(int& value, std::u16string_view text) {
    return Core::Format::parseInt(text, value);
}

Core::String AttributeTraits<int>::print(int const& value) {
    return Core::Format::toShortest(value);
}

bool AttributeTraits<float>::parse(float& value, std::u16string_view text) {
    return Core::Format::parseFloat(text, value);
}

Core::String AttributeTraits<float>::print(float const& value) {
    return Core::Format::toShortest(value);
}

bool AttributeTraits<Core::String>::parse(Core::String& value, std::u16string_view text) {
    value = text;
    return true;
}

Core::String AttributeTraits<Core::String>::print(Core::String const& value) {
    return value;
}

bool AttributeTraits<Drawing::ImageFilter>::parse(Drawing::ImageFilter& value, std::u16string_view text) {
    return Drawing::ImageFilter::parseFilter(value, text);
}

Core::String AttributeTraits<Drawing::ImageFilter>::print(Drawing::ImageFilter const& value) {
    return value.toString();
}

void AttributeTraits<Drawing::ImageFilter>::words(Words& out) {
    out.addAll(Drawing::ImageFilter::rows);
}

} // namespace Xml
