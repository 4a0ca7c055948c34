#include "xmlattr/core/Format.h"

#include "Support.h"
#include "xmlattr/core/Append.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/StringFormatStream.h"

#include <bit>
#include <cfloat>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <random>

namespace Core {
namespace {

std::u16string wide(std::string_view text) {
    return {text.begin(), text.end()};
}

// Texts of numbers of every kind: any float in short and long form, halfway points between two
// floats, and random digits with and without point and exponent.
class NumberTexts {
public:
    std::string next() {
        char buffer[256];
        char* end = buffer;
        switch (pick(4)) {
        case 0: end = std::to_chars(buffer, std::end(buffer), anyFloat()).ptr; break;
        case 1: {
            float const low = anyFloat();
            double const halfway = (double{low} + std::nextafter(low, FLT_MAX)) / 2;
            end = std::to_chars(buffer, std::end(buffer), halfway, std::chars_format::scientific, 10 + pick(120)).ptr;
            break;
        }
        case 2: end = std::to_chars(buffer, std::end(buffer), random() >> pick(60)).ptr; break;
        default: return digits();
        }
        return {buffer, end};
    }

    float anyFloat() {
        float const value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        return std::isfinite(value) ? value : 1.5f;
    }

private:
    int pick(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

    std::string digits() {
        std::string text = pick(2) ? "-" : "";
        int const length = 1 + (pick(20) ? pick(22) : pick(200)), point = pick(length + 1);
        for (int i = 0; i < length; ++i) {
            if (i == point) text += '.';
            text += static_cast<char>('0' + (pick(3) ? pick(10) : 0));
        }
        if (pick(2)) text.append("e").append(std::to_string(pick(100) - 50 - point));
        return text;
    }

    std::mt19937_64 random{20200131};
};

TEST(Format, ReadsAMillionNumbersLikeTheStandardLibrary) {
    NumberTexts texts;
    for (int i = 0; i < 1'000'000; ++i) {
        std::string const text = texts.next();
        float const expected = std::strtof(text.c_str(), nullptr);
        bool const accepted = std::isfinite(expected);
        float value = 42;
        std::u16string const units = wide(text);
        ASSERT_EQ(Format::parseFloat(units, value), accepted) << text;
        ASSERT_EQ(value, accepted ? expected : 42) << text;

        float reference = 42;
        ASSERT_EQ(toFloatReference(scanDecimal(units), reference), accepted) << text;
        ASSERT_EQ(reference, value) << text;

        float plain = 42;
        char16_t const *const begin = units.data(), *const after = scanPlain(begin, begin + units.size(), plain);
        ASSERT_TRUE(!after || isDigit(after[-1])) << text;
        ASSERT_TRUE(!after || toFloatReference(scanDecimal({begin, after}), reference)) << text;
        ASSERT_EQ(std::bit_cast<std::uint32_t>(plain), std::bit_cast<std::uint32_t>(after ? reference : 42)) << text;
    }
}

TEST(Format, EveryPrintedFloatReadsBackBitForBit) {
    NumberTexts texts;
    for (int i = 0; i < 300'000; ++i) {
        float const value = texts.anyFloat();
        float back = 0;
        ASSERT_TRUE(Format::parseFloat(Format::toShortest(value), back)) << value;
        ASSERT_EQ(std::bit_cast<std::uint32_t>(value), std::bit_cast<std::uint32_t>(back)) << value;
    }
}

TEST(Format, TheShortestTextsAreThoseOfTheStandardLibrary) {
    auto const shortest = [](auto value) {
        char buffer[32];
        return std::string(std::begin(buffer), std::to_chars(buffer, std::end(buffer), value).ptr);
    };
    NumberTexts texts;
    for (int i = 0; i < 300'000; ++i) {
        // Thousandths and their neighbours, up to more than the fast path prints; then any float.
        double const thousandths = (i * 167 - 16'700'000) / 1000.0;
        float value = i < 200'000 ? static_cast<float>(thousandths) : texts.anyFloat();
        if (i % 5 == 0) value = std::nextafter(value, 0.0f);
        ASSERT_EQ(Format::toShortest(value).toUtf8(), shortest(value));
        ASSERT_EQ(Format::toShortest(thousandths).toUtf8(), thousandths == static_cast<float>(thousandths)
                                                                ? shortest(static_cast<float>(thousandths))
                                                                : shortest(thousandths));
    }
}

TEST(Format, AcceptsNumbersAndNothingElse) {
    struct Row {
        char16_t const* text;
        bool accepted;
        float value;
    };
    for (Row const& row : {Row{u"", true, 0},
                           Row{u"5.", true, 5},
                           Row{u".5", true, 0.5f},
                           Row{u"\u00A0\t-1.5e+1\n", true, -15},
                           Row{u"50%", true, 50},
                           Row{u" 50% ", true, 50},
                           Row{u"1e-9999", true, 0},
                           Row{u"0e99999999999", true, 0},
                           Row{u"3.4028235e38", true, FLT_MAX},
                           Row{u"3.4028236e38", false, 0},
                           Row{u"-1e9999", false, 0},
                           Row{u" ", false, 0},
                           Row{u".", false, 0},
                           Row{u"+", false, 0},
                           Row{u"1e", false, 0},
                           Row{u"1e+", false, 0},
                           Row{u"--1", false, 0},
                           Row{u"50%%", false, 0},
                           Row{u"50 %", false, 0},
                           Row{u"%", false, 0},
                           Row{u"1,5", false, 0},
                           Row{u"0x10", false, 0},
                           Row{u"inf", false, 0},
                           Row{u"nan", false, 0},
                           Row{u"1.2.3", false, 0},
                           Row{u"1f", false, 0},
                           Row{u"\uFF11", false, 0}}) {
        float value = 42;
        EXPECT_EQ(Format::parseFloat(row.text, value), row.accepted) << String(row.text).toUtf8();
        EXPECT_EQ(value, row.accepted ? row.value : 42) << String(row.text).toUtf8();
    }
}

TEST(Format, LongNumbersAreReadToTheirLastDigit) {
    auto const withZeros = [](std::u16string text, char16_t const* end) { return text.append(5000, u'0') + end; };
    // 2^24 + 1 lies halfway between two floats: a digit far after the point decides.
    float value = 0;
    ASSERT_TRUE(Format::parseFloat(withZeros(u"16777217.", u""), value));
    EXPECT_EQ(value, 16777216.0f);
    ASSERT_TRUE(Format::parseFloat(withZeros(u"16777217.", u"1"), value));
    EXPECT_EQ(value, 16777218.0f);
    ASSERT_TRUE(Format::parseFloat(withZeros(u"1", u"e-5000"), value));
    EXPECT_EQ(value, 1.0f);
    ASSERT_TRUE(Format::parseFloat(withZeros(u"0.", u"1e5001"), value));
    EXPECT_EQ(value, 1.0f);
    EXPECT_FALSE(Format::parseFloat(withZeros(u"1", u""), value));
}

TEST(Format, ReadsTheLongestNumberAtTheStart) {
    struct Row {
        char16_t const* text;
        float number;
        int integer;
    };
    for (Row const& row :
         {Row{u"45deg", 45, 45}, Row{u"abc", 0, 0}, Row{u"", 0, 0}, Row{u"  -1.5e1x", -15, -1}, Row{u"1e", 1, 1},
          Row{u"1e+q", 1, 1}, Row{u"-", 0, 0}, Row{u"1e99", FLT_MAX, 1}, Row{u"-1e99", -FLT_MAX, -1},
          Row{u"-99999999999999999999", -1e20f, INT_MIN}, Row{u"2147483648", 2147483648.0f, INT_MAX}}) {
        EXPECT_EQ(Format::parseFloat(row.text), row.number) << String(row.text).toUtf8();
        EXPECT_EQ(Format::parseInt(row.text), row.integer) << String(row.text).toUtf8();
    }
}

TEST(Format, ReadsIntegersOfTheRangeOfAnInt) {
    struct Row {
        char16_t const* text;
        bool accepted;
        int value;
    };
    for (Row const& row :
         {Row{u" +12% ", true, 12}, Row{u"-2147483648", true, INT_MIN}, Row{u"2147483647", true, INT_MAX},
          Row{u"2147483648", false, 0}, Row{u"-2147483649", false, 0}, Row{u"", false, 0}, Row{u" ", false, 0},
          Row{u"1.0", false, 0}, Row{u"1e2", false, 0}, Row{u"1%%", false, 0}, Row{u"-", false, 0}}) {
        int value = 42;
        EXPECT_EQ(Format::parseInt(row.text, value), row.accepted) << String(row.text).toUtf8();
        EXPECT_EQ(value, row.accepted ? row.value : 42) << String(row.text).toUtf8();
    }
    for (Row const& row : {Row{u"aF", true, 0xAF}, Row{u"0x7fffffff", true, INT_MAX}, Row{u"0x80000000", false, 0},
                           Row{u"0x", false, 0}, Row{u"", false, 0}, Row{u"-1", false, 0}, Row{u"0xx1", false, 0}}) {
        int value = 42;
        EXPECT_EQ(Format::parseHexInt(row.text, value), row.accepted) << String(row.text).toUtf8();
        EXPECT_EQ(value, row.accepted ? row.value : 42) << String(row.text).toUtf8();
    }
}

TEST(Format, MeasuresHaveThreeDecimalsAtMost) {
    struct Row {
        double value;
        char const* text;
    };
    for (Row const& row : {Row{12, "12"}, Row{12.5, "12.5"}, Row{1 / 3.0, "0.333"}, Row{2 / 3.0, "0.667"},
                           Row{-0.0004, "0"}, Row{-0.0, "0"}, Row{-1.0006, "-1.001"}, Row{100, "100"}, Row{0.9996, "1"},
                           Row{1e21, "1000000000000000000000"}})
        EXPECT_EQ(Format::toMeasure(row.value).toUtf8(), row.text);
    EXPECT_EQ(Format::toMeasure(DBL_MAX, u"pt").length(), 311);
}

TEST(Format, TheFastPathOfMeasuresPrintsLikeTheReference) {
    NumberTexts texts;
    for (int i = 0; i < 300'000; ++i) {
        // Ties at every place, then floats of any size and percentages.
        double const value = i < 40'000 ? (i - 20'000) / 16.0 : texts.anyFloat() * (i % 2 ? 1.0 : 100.0);
        for (Measure const measure : {Measure{value}, Measure{std::fmod(value, 2000)}}) {
            char16_t printed[336], reference[336];
            ASSERT_EQ(std::u16string(printed, write(printed, measure)),
                      std::u16string(reference, writeReference(reference, measure)))
                << measure.value;
        }
    }
}

TEST(StringFormatStream, FillsPlaceholdersByNumber) {
    auto const format = [](char16_t const* text) {
        return (StringFormatStream(text) << 1 << 0.1f << double{0.1f} << 200 / 255.0 << String(u"a{0}"))
            .getString()
            .toUtf8();
    };
    EXPECT_EQ(format(u"{0} {1} {2} {3} {4}"), "1 0.1 0.1 0.7843137254901961 a{0}");
    EXPECT_EQ(format(u"{4}{0:0.###}{3:0.###}pt{4:0.###}"), "a{0}10.784pta{0}");
    EXPECT_EQ(format(u"{9}{99999999999999999999}|{x}{|{0"), "|{x}{|{0");
}

} // namespace
} // namespace Core
