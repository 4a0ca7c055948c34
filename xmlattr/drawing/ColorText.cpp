#include "xmlattr/drawing/ColorText.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"

#include <algorithm>

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

// Takes up to three digits, with at least two code units left. How many digits there are cannot be predicted, and
// needs no branch here.
int takeDigits(char16_t const*& unit, char16_t const* end) {
    int number = 0, taken = 0, isDigit = 1;
    auto const take = [&](char16_t next) {
        isDigit &= int{Core::isDigit(next)};
        taken += isDigit;
        number += isDigit * (number * 9 + next - u'0');
    };
    take(unit[0]);
    take(unit[1]);
    take(end - unit > 2 ? unit[2] : u'\0');
    unit += taken;
    return number;
}

// Reads the components in one pass, without cutting them out first. Takes only what readRGBComponent
// takes in the same way: few digits, which are the number whether it is read as an int or a float, or
// a plain number directly before a "%"; then the delimiter. False when there is anything else.
bool readPlainRGB(std::u16string_view text, unsigned char (&values)[3]) {
    char16_t const *unit = text.data(), *const end = unit + text.size();
    unit = std::find(unit, end, u'(');
    for (int i = 0; i < 3; ++i) {
        if (unit != end) ++unit; // the delimiter before the component
        while (unit != end && Core::isSpace(*unit)) ++unit;
        char16_t const* const start = unit;
        if (end - unit < 2) return false;
        int const number = takeDigits(unit, end);
        if (unit == start || unit == end) return false;
        char16_t const delimiter = i < 2 ? u',' : u')';
        values[i] = static_cast<unsigned char>(number);
        if (*unit == delimiter) continue;
        auto percentage = static_cast<float>(number);
        if (*unit == u'.') unit = Core::scanPlain(start, end, percentage);
        if (!unit || end - unit < 2 || unit[0] != u'%' || unit[1] != delimiter) return false;
        values[i] = ofPercentage(percentage);
        ++unit;
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
