#include "xmlattr/drawing/ImageFilter.h"

#include "xmlattr/core/Text.h"

namespace Drawing {

namespace {

struct Row {
    std::u16string_view word;
    ImageFilter::Type type;
};

constexpr Row rows[] = {{u"nearest", ImageFilter::Nearest},
                        {u"bilinear", ImageFilter::Bilinear},
                        {u"bicubic", ImageFilter::Bicubic},
                        {u"auto", ImageFilter::Auto}};

} // namespace

bool ImageFilter::parseFilter(ImageFilter& filter, std::u16string_view text) {
    for (Row const& row : rows) {
        if (!Core::equalsNoCase(text, row.word)) continue;
        filter = row.type;
        return true;
    }
    return false;
}

Core::String ImageFilter::toString() const {
    for (Row const& row : rows)
        if (row.type == type) return row.word;
    return {};
}

} // namespace Drawing
