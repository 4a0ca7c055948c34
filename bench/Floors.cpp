#include "Floors.h"

#include "xmlattr/core/Text.h"

#include <cstdint>
#include <cstring>

namespace Bench::Floors {

namespace {

constexpr double tens[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10};

} // namespace

void readNumbers(Core::String const& text, Core::Vector<float>& numbers) {
    std::u16string_view const units = text;
    char16_t const *unit = units.data(), *const end = unit + units.size();
    while (unit != end) {
        if (!Core::isDigit(*unit) && *unit != u'-' && *unit != u'.') {
            ++unit;
            continue;
        }
        bool const negative = *unit == u'-';
        unit += negative;
        std::int64_t mantissa = 0;
        while (unit != end && Core::isDigit(*unit)) mantissa = mantissa * 10 + (*unit++ - u'0');
        std::ptrdiff_t decimals = 0;
        if (unit != end && *unit == u'.') {
            char16_t const* const fraction = ++unit;
            while (unit != end && Core::isDigit(*unit)) mantissa = mantissa * 10 + (*unit++ - u'0');
            decimals = unit - fraction;
        }
        double const value = static_cast<double>(mantissa) / tens[decimals];
        numbers.push_back(static_cast<float>(negative ? -value : value));
    }
}

unsigned int readHex(Core::String const& text) {
    std::u16string_view const units = text;
    unsigned int value = 0;
    bool const isShort = units.size() == 4;
    for (std::size_t i = 1; i < units.size(); ++i) {
        unsigned int const digit = (units[i] & 15u) + 9u * (units[i] >> 6);
        value = isShort ? value << 8 | digit * 17 : value << 4 | digit;
    }
    return value;
}

bool isRightWord(Core::String const& text, Core::String const& word) {
    std::u16string_view const a = text, b = word;
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0;
}

} // namespace Bench::Floors
