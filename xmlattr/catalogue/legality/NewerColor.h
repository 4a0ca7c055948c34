// Colours as CSS 3 and CSS 4 write them, for advice.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Xml {

struct NewerColor {
    std::uint32_t rgb = 0;
    bool isOpaque = true; // else the alpha is lost where only the three components are written
};

// Of "#rgba", "#rrggbbaa", "rebeccapurple" and calls of rgb, rgba, hsl, hsla and hwb, with commas or with blanks and an
// alpha after a slash, every component brought into its range and rounded. Nothing for any other text.
std::optional<NewerColor> readNewerColor(std::u16string_view text);

} // namespace Xml
