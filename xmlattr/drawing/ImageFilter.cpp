#include "xmlattr/drawing/ImageFilter.h"

namespace Drawing {

using Words = Core::WordTable<ImageFilter::rows, Core::Case::Any>;

bool ImageFilter::parseFilter(ImageFilter& filter, std::u16string_view text) {
    auto const type = Words::find(text);
    if (type) filter = *type;
    return type.has_value();
}

Core::String ImageFilter::toString() const {
    std::size_t const row = Words::findValue(type);
    return row == Core::noWord ? std::u16string_view() : Words::word(row);
}

} // namespace Drawing
