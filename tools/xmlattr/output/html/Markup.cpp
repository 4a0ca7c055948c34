#include "output/html/Markup.h"

#include "text/Text.h"
#include "xmlattr/core/Format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Command {

namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool isUnseen(char16_t unit) {
    return (unit < 0x20 && unit != u'\n' && unit != u'\t') || (unit >= 0x7F && unit < 0xA0) || unit == 0x200E ||
           unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069) || unit == 0xFEFF;
}

} // namespace

std::string escaped(std::string_view text) {
    std::u16string out;
    for (char16_t const unit : toUtf16(text)) {
        switch (unit) {
        case u'&': out += u"&amp;"; continue;
        case u'<': out += u"&lt;"; continue;
        case u'>': out += u"&gt;"; continue;
        case u'"': out += u"&quot;"; continue;
        case u'\'': out += u"&#39;"; continue;
        }
        if (!isUnseen(unit)) {
            out += unit;
            continue;
        }
        std::array<char, 4> digits;
        char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), int{unit}, 16).ptr;
        out.append(u"\\u{").append(digits.data(), end).append(u"}");
    }
    return toUtf8(out);
}

std::string cutAtEnd(std::string_view text, std::size_t most) {
    std::size_t end = 0;
    for (std::size_t count = 0; end < text.size(); ++end)
        if (!isContinuation(text[end]) && count++ == most) break;
    return std::string(text.substr(0, end)) + (end < text.size() ? "…" : "");
}

std::string cutAtStart(std::string_view text, std::size_t most) {
    std::size_t first = text.size();
    for (std::size_t count = 0; first > 0 && count < most;)
        if (!isContinuation(text[--first])) ++count;
    return (first > 0 ? "…" : "") + std::string(text.substr(first));
}

std::string bar(double part, std::string_view color) {
    double const width = part == 0 ? 0 : std::clamp(std::abs(part) * 100, 0.6, 100.0);
    std::string out("<svg class='bar ");
    out.append(color).append("' viewBox='0 0 100 8' preserveAspectRatio='none' aria-hidden='true'><rect width='");
    return out.append(number(width)).append("' height='8'/></svg>");
}

std::string number(double value) {
    return Core::Format::toShortest(static_cast<float>(value)).toUtf8();
}

std::string grouped(std::uint64_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, 1, ',');
    return digits;
}

std::string counted(std::uint64_t number, std::string_view noun) {
    return grouped(number).append(" ").append(noun).append(number == 1 ? "" : "s");
}

} // namespace Command
