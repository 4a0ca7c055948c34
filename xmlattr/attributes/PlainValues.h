// The value types that are numbers, texts and filters of the lower floors as they are.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/drawing/ImageFilter.h"

namespace Xml {

// A decimal integer as Core::Format::parseInt reads it.
template <> struct XMLATTR_API AttributeTraits<int> {
    static bool parse(int& value, std::u16string_view text);
    static Core::String print(int const& value);
    static constexpr Description describe{{u"a whole number"}, {u"12", u"-3"}};
};

// A number as Core::Format::parseFloat reads it; prints the shortest text that reads back.
template <> struct XMLATTR_API AttributeTraits<float> {
    static bool parse(float& value, std::u16string_view text);
    static Core::String print(float const& value);
    static constexpr Description describe{{u"a number"}, {u"1.5", u"-2e3"}};
};

// Every text, untrimmed.
template <> struct XMLATTR_API AttributeTraits<Core::String> {
    static bool parse(Core::String& value, std::u16string_view text);
    static Core::String print(Core::String const& value);
    static constexpr Description describe{.forms = {u"any text"}, .examples = {u"Times"}, .readsAnyText = true};
};

// The words of Drawing::ImageFilter.
template <> struct XMLATTR_API AttributeTraits<Drawing::ImageFilter> {
    static bool parse(Drawing::ImageFilter& value, std::u16string_view text);
    static Core::String print(Drawing::ImageFilter const& value);
    static Drawing::ImageFilter seed() { return Drawing::ImageFilter::Auto; }
    static constexpr Description describe{};
    static void words(Words& out);
};

} // namespace Xml
