#include "xmlattr/drawing/ColorText.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace Drawing {

namespace {

// The components of a call: after the first "(" each runs to the next ",", the last one to ")".
template <std::size_t n> bool splitCall(std::u16string_view text, std::u16string_view (&components)[n]) {
    std::size_t at = text.find(u'(');
    for (std::size_t i = 0; i < n; ++i) {
        if (at == std::u16string_view::npos) return false;
        std::size_t const start = at + 1;
        at = text.find(i + 1 < n ? u',' : u')', start);
        components[i] = text.substr(start, at - start);
    }
    return at != std::u16string_view::npos;
}

// Intended: the factor is 2.56 in single precision, widened, so that 50% is 127.
unsigned char ofPercentage(float percentage) {
    return static_cast<unsigned char>(std::clamp(percentage * double{2.56f}, 0.0, 255.0));
}

bool readRGBComponent(std::u16string_view text, unsigned char& value) {
    if (text.ends_with(u'%')) {
        float percentage = 0;
        if (!Core::Format::parseFloat(text, percentage)) return false;
        value = ofPercentage(percentage);
        return true;
    }
    int number = 0;
    if (!Core::Format::parseInt(text, number)) return false;
    // Intended: unlike a percentage, an integer is not held in range; 300 is 44 and -1 is 255.
    value = static_cast<unsigned char>(number);
    return true;
}

// How many digits, at most three, begin the four units, and their number; without branches, since neither can be
// predicted.
struct FewDigits {
    unsigned int number, count;

    explicit FewDigits(std::uint64_t units) {
        std::uint64_t const values = units ^ Core::fourUnits(u"0000");
        // The highest bit of each unit that is no digit; a carry changes only those after one. The fourth is taken for
        // none.
        std::uint64_t const others =
            ((values + 0x7FF6'7FF6'7FF6'7FF6) | values | 0x8000'0000'0000'0000) & 0x8000'8000'8000'8000;
        count = static_cast<unsigned int>(std::countr_zero(others)) / 16;
        // The digits as the highest of four, times 1, 10 and 100 in the highest place.
        number = static_cast<unsigned int>((values << 16 << (48 - 16 * count)) * 0x0000'0064'000A'0001 >> 48);
    }
};

// Reads the components in one pass, without cutting them out first. Takes only what readRGBComponent
// takes in the same way: few digits, which are the number whether it is read as an int or a float, or
// a plain number directly before a "%"; then the delimiter. False when there is anything else.
bool readPlainRGB(std::u16string_view text, unsigned char (&values)[3]) {
    if (text.size() < 5 || Core::fourUnits(text.data()) != Core::fourUnits(u"rgb(")) return false;
    char16_t const *unit = text.data() + 4, *const end = text.data() + text.size();
    for (int i = 0; i < 3; ++i) {
        while (unit != end && Core::isSpace(*unit)) ++unit;
        // The next four units, or zeros after the last ones of the text.
        auto const missing = std::max<std::ptrdiff_t>(4 - (end - unit), 0);
        if (missing == 4) return false;
        FewDigits const digits(Core::fourUnits(unit - missing) >> 16 * missing);
        if (digits.count == 0) return false;
        auto percentage = static_cast<float>(digits.number);
        char16_t const* after = unit + digits.count;
        if (after != end && *after == u'.') {
            after = Core::scanPlain(unit, end, percentage);
            if (!after || after == end || *after != u'%') return false;
        }
        if (after == end) return false;
        bool const isPercentage = *after == u'%';
        values[i] = isPercentage ? ofPercentage(percentage) : static_cast<unsigned char>(digits.number);
        unit = after + isPercentage;
        if (unit == end || *unit++ != (i < 2 ? u',' : u')')) return false;
    }
    return true;
}

} // namespace

bool readRGBReference(SmartPtr<Color>& color, std::u16string_view text) {
    std::u16string_view texts[3];
    unsigned char values[3];
    if (!splitCall(text, texts)) return false;
    for (int i = 0; i < 3; ++i)
        if (!readRGBComponent(texts[i], values[i])) return false;
    color = new RGBColor(values[0], values[1], values[2]);
    return true;
}

bool readRGB(SmartPtr<Color>& color, std::u16string_view text) {
    unsigned char values[3];
    if (!readPlainRGB(text, values)) return readRGBReference(color, text);
    color = new RGBColor(values[0], values[1], values[2]);
    return true;
}

bool readCMYK(SmartPtr<Color>& color, std::u16string_view text) {
    std::u16string_view texts[4];
    float numbers[4];
    double values[4];
    if (!splitCall(text, texts)) return false;
    for (int i = 0; i < 4; ++i)
        if (!Core::Format::parseFloat(texts[i], numbers[i])) return false;
    // Intended: the number of a percentage counts here too, so 50% makes the others parts of 255.
    bool const isOf255 = std::any_of(numbers, numbers + 4, [](float number) { return number > 1; });
    for (int i = 0; i < 4; ++i) {
        double const scale = texts[i].ends_with(u'%') ? 100 : isOf255 ? 255 : 1;
        values[i] = numbers[i] / scale;
    }
    color = new CMYKColor(values[0], values[1], values[2], values[3]);
    return true;
}

} // namespace Drawing
