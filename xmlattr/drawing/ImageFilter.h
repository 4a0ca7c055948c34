// How an image is resampled when it is scaled.
#pragma once

#include "xmlattr/core/String.h"
#include "xmlattr/core/WordTable.h"

#include <cstdint>
#include <string_view>

namespace Drawing {

// "nearest", "bilinear", "bicubic" or "auto", in any case.
class XMLATTR_API ImageFilter {
public:
    // The numbers are shared with the renderers.
    enum Type : std::int32_t { Nearest = 0, Bilinear = 1, Bicubic = 2, Auto = 3 };
    static constexpr Core::WordRow<Type> rows[] = {
        {u"nearest", Nearest}, {u"bilinear", Bilinear}, {u"bicubic", Bicubic}, {u"auto", Auto}};

    constexpr ImageFilter() = default;
    constexpr ImageFilter(Type newType) : type(newType) {}

    constexpr Type getType() const { return type; }
    constexpr bool operator==(ImageFilter const&) const = default;

    // False for any other word; then `filter` is untouched.
    static bool parseFilter(ImageFilter& filter, std::u16string_view text);
    // The word of the type; empty for an out-of-range type.
    Core::String toString() const;

private:
    Type type = Auto;
};

} // namespace Drawing
