// The value types that are numbers, texts and filters of the lower floors as they are.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/drawing/ImageFilter.h"

namespace Xml {

// A decimal integer as Core::Format::parseInt reads it.
template <> struct AttributeTraits<int> {
    static bool parse(int& value, std::u16string_view text);
    static Core::String print(int const& value);
};

// A number as Core::Format::parseFloat reads it; prints the shortest text that reads back.
template <> struct AttributeTraits<float> {
    static bool parse(float& value, std::u16string_view text);
    static Core::String print(float const& value);
};

// Every text, untrimmed.
template <> struct AttributeTraits<Core::String> {
    static bool parse(Core::String& value, std::u16string_view text);
    static Core::String print(Core::String const& value);
};

// The words of Drawing::ImageFilter.
template <> struct AttributeTraits<Drawing::ImageFilter> {
    static bool parse(Drawing::ImageFilter& value, std::u16string_view text);
    static Core::String print(Drawing::ImageFilter const& value);
    static Drawing::ImageFilter seed() { return Drawing::ImageFilter::Auto; }
};

} // namespace Xml
