#include "Support.h"
#include "hostile/Promises.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/Log.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Promises {
namespace {

// Each "?" of the shape replaced by the number.
Core::String fill(std::u16string_view shape, std::u16string_view number) {
    std::u16string text;
    for (char16_t const unit : shape) {
        if (unit == u'?')
            text += number;
        else
            text += unit;
    }
    return Core::String(std::move(text));
}

void expectPromises(Core::String const& before, Core::String const& text) {
    for (Type const& type : types) {
        char const* const promise = type.broken(before, text);
        EXPECT_EQ(promise, nullptr) << type.name << ": " << promise << "\nbefore: " << before.toUtf8()
                                    << "\ntext: " << text.toUtf8();
    }
}

struct HostileText : testing::Test {
    Core::Log::Handler const handler = Core::Log::setHandler([](Core::String const&) {});
    ~HostileText() override { Core::Log::setHandler(handler); }
};

TEST_F(HostileText, NumbersStayFinite) {
    std::u16string const digits(1500, u'9'), zeros(1500, u'0');
    std::u16string const numbers[] = {u"1e9999",
                                      u"-1e9999",
                                      u"1e-9999",
                                      u"1e99999999999999999999",
                                      u"1e-99999999999999999999",
                                      u"3.4028235e38",
                                      u"-3.4028236e38",
                                      u"3e36",
                                      u"1e-45",
                                      u"inf",
                                      u"nan",
                                      u"0x1p5",
                                      digits,
                                      u"-." + digits,
                                      u"." + zeros + u"1",
                                      u"1" + zeros + u"e-1500",
                                      u"2147483648",
                                      u"-2147483649"};
    constexpr std::u16string_view shapes[] = {u"?",
                                              u"?%",
                                              u"?pt",
                                              u"?in",
                                              u"?px",
                                              u"?cm ?in",
                                              u"?,?",
                                              u"? ? ? ?",
                                              u"? ?px ?pc red",
                                              u"rect(?in,?pt,?cm,?mm)",
                                              u"rgb(?,?,?)",
                                              u"rgb(?%,?%,?%)",
                                              u"cmyk(?,?%,?,?)",
                                              u"spot-color(a,?,cmyk(?,?,?,?))",
                                              u"rgb-icc(?,?%,?,#p,?,?,?,?)",
                                              u"matrix(?,?,?,?,?,?)",
                                              u"translate(?in,?)scale(?)rotate(?,?,?)skewX(?deg)",
                                              u"M?,?cm c?-? ? ? ?in?a?,?,?,1 0?,?",
                                              u"multiple-of(?)",
                                              u"proportional-column-width(?)"};
    for (std::u16string const& number : numbers)
        for (std::u16string_view const shape : shapes) expectPromises(u"", fill(shape, number));
}

TEST_F(HostileText, TooLargeNumbersAreRefusedAndTooSmallOnesAreZero) {
    for (char16_t const* const number : {u"1e39", u"-1e9999", u"340282357000000000000000000000000000000"}) {
        EXPECT_FALSE(parsed<float>(number)) << narrow(number);
        EXPECT_FALSE(parsed<Length>(fill(u"?pt", number))) << narrow(number);
        EXPECT_EQ(std::abs(Core::Format::parseFloat(fill(u"?deg", number))), FLT_MAX) << narrow(number);
    }
    for (char16_t const* const number : {u"1e-46", u"-1e-9999", u"0.0e99999"})
        EXPECT_EQ(parsed<float>(number), 0) << narrow(number);
    EXPECT_TRUE(parsed<Drawing::RectF>(u"rect(0,0,-3e38in,3e38in)") == Drawing::RectF(0, 0, -INFINITY, INFINITY));
    EXPECT_FALSE(parsed<Drawing::RectF>(u"rect(0,0,0,1e39in)"));
}

TEST_F(HostileText, EveryTypeKeepsItsPromises) {
    constexpr char16_t const* texts[] = {u"",
                                         u" ",
                                         u"\xD800",
                                         u"\xDC00 1",
                                         u"1\xD800",
                                         u"\u00A01pt",
                                         u"(",
                                         u")",
                                         u"((((",
                                         u"))))",
                                         u",",
                                         u"-",
                                         u"+",
                                         u".",
                                         u"%",
                                         u"#",
                                         u"1e",
                                         u"-x",
                                         u"0",
                                         u"auto",
                                         u"normal",
                                         u"none",
                                         u" none",
                                         u"0pt",
                                         u"12pt 13",
                                         u"12pt 13pt",
                                         u"1,2 3",
                                         u"use-font-metrics",
                                         u"ultra-expanded",
                                         u"TEXT",
                                         u"hex",
                                         u"url",
                                         u"url'",
                                         u" a",
                                         u"url(' a)b')",
                                         u"year)(",
                                         u"match( )",
                                         u"match(a)and",
                                         u"FIND_KEYWORD(",
                                         u"#abc",
                                         u"spot-color(a)",
                                         u"cmyk(300,1,1,1)",
                                         u"rgb-icc(1,2,3,#,1,2)",
                                         u"1px rgb-icc(1,2,3,#p,1,2,3)",
                                         u"1px  2px",
                                         u"M0ex0mm0",
                                         u"skewX(1)skewY",
                                         u"none slice",
                                         u"scale-up-to-fit",
                                         u"2020-02-30",
                                         u"-0000-01-01",
                                         u"2020-01-01T24:00:00Z",
                                         u"0.00001,0.1",
                                         u"1e-7 2",
                                         u"99999%",
                                         u"0.5004%"};
    for (char16_t const* const text : texts)
        for (char16_t const* const before : {u"", u"12pt", u"FIND_KEYWORD(a)", u"match(a)", u"red"})
            expectPromises(before, text);
}

} // namespace
} // namespace Promises
