#include "xmlattr/core/OSInfo.h"

#include "xmlattr/core/StringFormatStream.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <mutex>
#include <shared_mutex>
#include <utility>

namespace Core {

namespace {

// Holds its word, so that loading the library has nothing to relocate.
struct SystemColor {
    char16_t word[20]{};
    unsigned char length, r, g, b;

    template <std::size_t n>
    consteval SystemColor(char16_t const (&name)[n], unsigned char r, unsigned char g, unsigned char b)
        : length(n - 1), r(r), g(g), b(b) {
        std::copy(name, name + n, word);
    }

    std::u16string_view name() const { return {word, length}; }
};

constexpr SystemColor systemColors[] = {
    {u"ActiveBorder", 180, 180, 180},
    {u"ActiveCaption", 153, 180, 209},
    {u"AppWorkspace", 171, 171, 171},
    {u"Background", 0, 0, 0},
    {u"ButtonFace", 240, 240, 240},
    {u"ButtonHighlight", 255, 255, 255},
    {u"ButtonShadow", 160, 160, 160},
    {u"ButtonText", 0, 0, 0},
    {u"CaptionText", 0, 0, 0},
    {u"GrayText", 109, 109, 109},
    {u"Highlight", 0, 120, 215},
    {u"HighlightText", 255, 255, 255},
    {u"InactiveBorder", 244, 247, 252},
    {u"InactiveCaption", 191, 205, 219},
    {u"InactiveCaptionText", 0, 0, 0},
    {u"InfoBackground", 255, 255, 225},
    {u"InfoText", 0, 0, 0},
    {u"Menu", 240, 240, 240},
    {u"MenuText", 0, 0, 0},
    {u"Scrollbar", 200, 200, 200},
    {u"ThreeDDarkShadow", 105, 105, 105},
    {u"ThreeDFace", 240, 240, 240},
    {u"ThreeDHighlight", 255, 255, 255},
    {u"ThreeDLightShadow", 227, 227, 227},
    {u"ThreeDShadow", 160, 160, 160},
    {u"Window", 255, 255, 255},
    {u"WindowFrame", 100, 100, 100},
    {u"WindowText", 0, 0, 0},
};

struct Overrides {
    std::shared_mutex mutex;
    Vector<std::pair<String, String>> colors; // name and text

    String* find(std::u16string_view name) {
        for (auto& [known, color] : colors)
            if (equalsNoCase(known, name)) return &color;
        return nullptr;
    }
};

Overrides& overrides() {
    static Overrides instance;
    return instance;
}

} // namespace

String OSInfo::getSystemColor(std::u16string_view name) {
    {
        std::shared_lock const lock(overrides().mutex);
        if (String const* color = overrides().find(name)) return *color;
    }
    for (SystemColor const& color : systemColors)
        if (equalsNoCase(color.name(), name)) return formatText(u"rgb({0},{1},{2})", {color.r, color.g, color.b});
    return {};
}

void OSInfo::setSystemColor(std::u16string_view name, std::u16string_view color) {
    std::unique_lock const lock(overrides().mutex);
    if (String* known = overrides().find(name))
        *known = color;
    else
        overrides().colors.emplace_back(name, color);
}

void OSInfo::clearSystemColors() {
    std::unique_lock const lock(overrides().mutex);
    overrides().colors.clear();
}

} // namespace Core
