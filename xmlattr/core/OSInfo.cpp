#include "xmlattr/core/OSInfo.h"

#include "xmlattr/core/Append.h"
#include "xmlattr/core/SystemColors.h"
#include "xmlattr/core/Text.h"

#include <mutex>
#include <shared_mutex>
#include <utility>

namespace Core {

namespace {

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
    auto const rgb = WordTable<systemColors, Case::Any>::find(name);
    if (!rgb) return {};
    auto const component = [&](int shift) { return *rgb >> shift & 0xFF; };
    return joined(u"rgb(", component(16), u",", component(8), u",", component(0), u")");
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
