#include "xmlattr/Instantiations.h"
#include "xmlattr/core/Log.h"

#include <gtest/gtest.h>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <algorithm>
#include <chrono>
#include <climits>
#include <ctime>
#include <string>
#include <string_view>

namespace Xml {
namespace {

// The system's part in the time of large blocks, which it hands out page by page, jumps at some sizes;
// where the test cannot have them kept, and in slow builds, it stays below.
#if defined(NDEBUG) && defined(__GLIBC__)
void keepBlocks() {
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
}
constexpr std::size_t largest = 1 << 20;
constexpr double floorOfNoise = 1000; // microseconds
#else
void keepBlocks() {}
constexpr std::size_t largest = 1 << 16;
constexpr double floorOfNoise = 5000;
#endif

// The time of the processor, where it can be had: a busy machine stops a program at any time.
double microsecondsNow() {
#if defined(__GLIBC__)
    std::timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
#else
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now().time_since_epoch()).count();
#endif
}

// Texts of these alone, repeated.
constexpr std::u16string_view pieces[] = {
    u"(",    u")",       u",",          u"-",           u"and",      u"M",   u"9",         u" ",
    u"url(", u".",       u"1,",         u"1 ",          u"-1e-9 ",   u"z",   u"m",         u"a1",
    u"none", u"'",       u"#",          u"match(a)and", u"f(",       u"()",  u"rotate(1)", u"matrix(",
    u"1px ", u"1,2%mm ", u"underline,", u"rgb(1,2,3) ", u"rgb-icc(", u"\xA0"};
// What stands before and after them, so that readers get as far as to them.
constexpr struct {
    std::u16string_view before, after;
} frames[] = {{u"url(", u""},        {u"rect(", u")"}, {u"spot-color(", u")"}, {u"rgb-icc(", u")"}, {u"M", u""},
              {u"translate(", u")"}, {u"1", u"px"},    {u"is-after(", u")"},   {u"year(", u")"}};

template <class T> double microseconds(Core::String const& text) {
    TXmlAttribute<T> attribute;
    double const start = microsecondsNow();
    attribute.parseValue(text);
    attribute.getValueAsString();
    return microsecondsNow() - start;
}

struct Type {
    char const* name;
    double (*microseconds)(Core::String const& text);
};

constexpr Type types[] = {
#define XMLATTR_PUBLIC_VALUE(...) {#__VA_ARGS__, microseconds<__VA_ARGS__>},
#define XMLATTR_INTERNAL_VALUE(...) {#__VA_ARGS__, microseconds<__VA_ARGS__>},
#include "xmlattr/ValueTypes.inc"
};

// Doubles the text of a shape for each type. What is below the floor is noise: a quadratic reader takes
// a thousand times as long in the end. What seems to take more than three times as long is measured
// again, since other programs use the same caches.
void expectLinear(std::u16string_view piece, std::u16string_view before, std::u16string_view after) {
    double last[std::size(types)];
    std::ranges::fill(last, floorOfNoise);
    Core::String text, shorter;
    std::u16string body(before);
    for (std::size_t size = 1 << 10; size <= largest; size *= 2) {
        while (body.size() < size) body += piece;
        text = Core::String(body) + after;
        for (std::size_t i = 0; i < std::size(types); ++i) {
            double time = std::max(types[i].microseconds(text), floorOfNoise);
            for (int retry = 0; time > 3 * last[i] && retry < 20; ++retry) {
                time = std::max(std::min(time, types[i].microseconds(text)), floorOfNoise);
                last[i] = std::max(last[i], types[i].microseconds(shorter));
            }
            ASSERT_LE(time, 3 * last[i]) << types[i].name << " takes too long for " << text.length() << " units of \""
                                         << Core::String(piece).toUtf8() << "\" after \""
                                         << Core::String(before).toUtf8() << '"';
            last[i] = time;
        }
        shorter = text;
    }
}

TEST(LinearTime, TimeDoublesWithTheText) {
    auto const handler = Core::Log::setHandler([](Core::String const&) {});
    keepBlocks();
    for (std::u16string_view const piece : pieces) expectLinear(piece, {}, {});
    for (auto const& [before, after] : frames)
        for (std::u16string_view const piece : {u",", u" ", u"9", u"(", u"-"}) expectLinear(piece, before, after);
    Core::Log::setHandler(handler);
}

} // namespace
} // namespace Xml
