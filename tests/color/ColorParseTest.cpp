#include "xmlattr/color/ColorParse.h"

#include "Support.h"
#include "xmlattr/color/ColorNames.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/drawing/SpotColor.h"

namespace Xml {
namespace {

using ColorPtr = SmartPtr<Drawing::Color>;
using ColorAttribute = TXmlAttribute<ColorPtr>;

struct ColorParseTest : testing::Test {
    std::string warnings;
    Core::Log::Handler before = Core::Log::setHandler([this](Core::String const& text) { warnings += narrow(text); });

    ~ColorParseTest() override {
        Core::Log::setHandler(before);
        Core::OSInfo::clearSystemColors();
        Drawing::SpotColorMapper::clear();
    }
};

template <class Kind> SmartPtr<Kind> parsedAs(Core::String const& text) {
    return dynamic_cast<Kind*>(parsed<ColorPtr>(text).value_or(nullptr).get());
}

struct Row {
    char16_t const* text;
    char const* printed;
};

void expectPrinted(std::initializer_list<Row> rows) {
    for (Row const& row : rows) EXPECT_EQ(printed<ColorPtr>(row.text), row.printed) << narrow(row.text);
}

void expectRefused(std::initializer_list<char16_t const*> texts) {
    ColorPtr const old = new Drawing::RGBColor(1, 2, 3);
    for (char16_t const* text : texts) {
        ColorAttribute attribute(old);
        EXPECT_FALSE(attribute.parseValue(text)) << narrow(text);
        EXPECT_TRUE(attribute == old) << narrow(text);
    }
}

TEST_F(ColorParseTest, ReadsHexadecimalDigits) {
    expectPrinted({{u"#abc", "rgb(170,187,204)"}, {u"#ABCDEF", "rgb(171,205,239)"}, {u"#09fA10", "rgb(9,250,16)"}});
    expectRefused({u"#abcd", u"#ab", u"#abcdefg", u"#", u"#xyz", u"#0x1122", u"#0x1", u"#-1-1-1", u"# 1 2 3",
                   u"#12345g", u"#\u01610a", u"abc"});
}

TEST_F(ColorParseTest, ReadsRGBWithTwoRulesForItsComponents) {
    expectPrinted({{u"rgb(1,2,3)", "rgb(1,2,3)"},
                   {u"rgb( 1, 2 ,3 )tail", "rgb(1,2,3)"},
                   {u"rgbx y(1,2,3))", "rgb(1,2,3)"},
                   {u"rgb(300,-1,256)", "rgb(44,255,0)"},
                   {u"rgb(50%,100%,0)", "rgb(127,255,0)"},
                   {u"rgb(-5%,1e38%,.4%)", "rgb(0,255,1)"},
                   {u"rgb(50% ,12.5%,1%)", "rgb(50,31,2)"}, // after the blank it is an integer
                   {u"rgb(99.99999%,39.0625%,39.06251%)", "rgb(255,99,100)"}});
    expectRefused({u"rgb(1,2)", u"rgb(1,2,3", u"rgb(1,2,3,4)", u"rgb(1),2,3)", u"rgb 1,2,3)", u"rgb(1.5,2,3)",
                   u"rgb(,2,3)", u"rgb(%,2,3)", u"rgb(2147483648,2,3)", u"RGB(1,2,3)", u" rgb(1,2,3)", u"rgb"});
}

TEST_F(ColorParseTest, ReadsCMYKOnThreeScales) {
    expectPrinted({{u"cmyk(0,0,0,255)", "cmyk(0,0,0,1)"},
                   {u"cmyk(0.1,0.2,0.3,0.4)", "cmyk(0.1,0.2,0.3,0.4)"},
                   {u"cmyk(1,1,1,1)", "cmyk(1,1,1,1)"},
                   {u"cmyk(0%,10%,33%,100%)x", "cmyk(0,0.1,0.33,1)"},
                   {u"cmyk(50%,0,0,51)", "cmyk(0.5,0,0,0.2)"},
                   {u"cmyk(50%,51,0,0)", "cmyk(0.5,0.2,0,0)"},
                   {u"cmyk(50%,1,0,0)", "cmyk(0.5,0.00392156862745098,0,0)"},
                   {u"cmyk(-1,,5 ,510)", "cmyk(-0.00392156862745098,0,0.0196078431372549,2)"}});
    expectRefused({u"cmyk(0,0,0)", u"cmyk(0,0,0,0", u"cmyk(0,0,0,0,0)", u"cmyk(0,0,0,x)", u"cmyk(0,0,0,1e39)",
                   u"cmyk 0,0,0,0)", u"CMYK(0,0,0,0)"});
    EXPECT_EQ(parsedAs<Drawing::CMYKColor>(u"cmyk(20%,0,0,1)")->getC(), 0.2) << "the division is in double precision";
}

TEST_F(ColorParseTest, ReadsICCWithItsFallback) {
    expectPrinted({{u"rgb-icc(255,0,0,#p,0.1,0.2,0.3,0.4)", "rgb-icc(255,0,0,#p,0.1, 0.2, 0.3, 0.4)"},
                   {u"rgb-icc x( 1 , 2 , 3 , # p , 1 , 2 , 3 ) x", "rgb-icc(1,2,3,# p,1, 2, 3)"},
                   {u"rgb-icc(50%,100%,0,p,1)", "rgb-icc(127,255,0,#p,1)"},
                   {u"rgb-icc(300,-1,2147483647%,##p,1)", "rgb-icc(44,255,99,##p,1)"},
                   {u"rgb-icc(1,2,3,#p,5,6)", "rgb-icc(1,2,3,#p,5)"},
                   {u"rgb-icc(1,2,3,#p,5,,7,8)", "rgb-icc(1,2,3,#p,5)"},
                   {u"rgb-icc(1,2,3,#p,5,6,7,8,9,x", "rgb-icc(1,2,3,#p,5, 6, 7, 8)"},
                   {u"rgb-icc(1,2,3,#p,5,6,7,8", "rgb-icc(1,2,3,#p,5, 6, 7)"}, // no ")" ends the fourth
                   {u"rgb-icc(1,2,3,#p(q,5)", "rgb-icc(1,2,3,#p(q,5)"}});
    expectRefused(
        {u"rgb-icc(1,2,3,#p,x)", u"rgb-icc(1,2,3,#p,1,2,3,x)", u"rgb-icc(x,2,3,#p)", u"rgb-icc((1,2,3,#p,1)"});
    EXPECT_EQ(warnings, "");
    for (char16_t const* text : {u"rgb-icc", u"rgb-icc(255,0,0)", u"rgb-icc(1,,3,#p,1)", u"rgb-icc(1,2,3, ,1)",
                                 u"rgb-icc(1,2,3,#p)", u"rgb-icc(1,2,3,#p,,5,6,7)", u"rgb-icc(1,2,3,#p,1{0}"}) {
        warnings.clear();
        expectRefused({text});
        EXPECT_EQ(warnings.find('"' + narrow(text) + '"'), 0U) << warnings;
    }
    auto const icc = parsedAs<Drawing::ICCColor>(u"rgb-icc(1,2,3,#sRGB,5,6)");
    EXPECT_EQ(icc->getColorSpace()->getProfileName(), u"sRGB");
    EXPECT_EQ(icc->getColor(1), 6) << "kept, though it does not count";
}

TEST_F(ColorParseTest, ReadsSpotColors) {
    struct SpotRow {
        char16_t const* text;
        char16_t const* name;
        float tint;
        char const* end; // the alternate
    };
    Drawing::SpotColorMapper::setFunction(u"Gold",
                                          Drawing::SpotColorFunction::parseColorFunctionString(u"cmyk(0,0,1,0)"));
    for (SpotRow const& row : {
             SpotRow{u"spot-color(Gold)", u"Gold", 1, "cmyk(0,0,1,0)"},
             {u"spot-color x( Gold , 0.5 )", u"Gold ", 0.5f, "rgb(0,0,0)"}, // a blank before a comma stays
             {u"spot-color(Gold,0.5, cmyk(0,0.2,1,0))", u"Gold", 0.5f, "cmyk(0,0.2,1,0)"},
             {u"spot-color(Gold,rgb(1,2,3))", u"Gold", 1, "rgb(1,2,3)"},
             {u"spot-color(Gold,,rgb(1,2,3))", u"Gold", 0, "rgb(1,2,3)"},
             {u"spot-color(Gold,50%,)", u"Gold", 50, "cmyk(0,0,1,0)"},
             {u"spot-color(Gold,x,cmyk(1,0,0,0))", u"Gold", 1, "cmyk(0,0,1,0)"},
             {u"spot-color(Gold,1,rgb-icc(1,2,3,#p,1))", u"Gold", 1, "cmyk(0,0,1,0)"},
             {u"spot-color(Gold,1,rgb(1,2))", u"Gold", 1, "cmyk(0,0,1,0)"},
             {u"spot-color(Gold(a)) b)", u"Gold(a)) b", 1, "rgb(0,0,0)"},
             {u"spot-color(gold)", u"gold", 1, "rgb(0,0,0)"},
         }) {
        SCOPED_TRACE(narrow(row.text));
        warnings.clear();
        auto const spot = parsedAs<Drawing::SpotColor>(row.text);
        ASSERT_TRUE(spot);
        EXPECT_EQ(spot->getColorName(), row.name);
        EXPECT_EQ(spot->getTint(), row.tint);
        auto const held = spot->getFunction();
        auto const* const function = dynamic_cast<Drawing::ExponentialSpotColorFunction*>(held.get());
        ASSERT_TRUE(function);
        EXPECT_EQ(narrow(ColorParse::getColorAsString(function->getEndColor())), row.end);
        bool const isUnknown = row.end == std::string("rgb(0,0,0)");
        EXPECT_EQ(warnings.find('"' + narrow(row.name) + '"') != warnings.npos, isUnknown) << warnings;
        EXPECT_EQ(function->getStartColor() == function->getEndColor(), isUnknown) << "black at every tint";
    }
    warnings.clear();
    expectRefused({u"spot-color", u"spot-color()", u"spot-color( )", u"spot-color(Gold", u"spot-color)x(",
                   u"spot-color(,1)", u"Spot-color(Gold)"});
    EXPECT_EQ(warnings, "");
}

TEST_F(ColorParseTest, FindsNamesInAnyCase) {
    expectPrinted({{u"Red", "rgb(255,0,0)"},
                   {u"LightGoldenrodYellow", "rgb(250,250,210)"},
                   {u"grey", "rgb(128,128,128)"},
                   {u"green", "rgb(0,128,0)"},
                   {u"maroon", "rgb(128,0,0)"},
                   {u"purple", "rgb(128,0,128)"},
                   {u"None", ""},
                   {u"TRANSPARENT", ""},
                   {u"ThreeDFace", "rgb(240,240,240)"},
                   {u"windowTEXT", "rgb(0,0,0)"}});
    expectRefused(
        {u"", u" red", u"red ", u"re", u"\u0172ed", u"lightgoldenrodyellowlightgoldenrodyellow", u"currentColor"});
    EXPECT_EQ(std::size(colorNames), 147U);
    Core::OSInfo::setSystemColor(u"currentColor", u"rgb(1,2,3)");
    Core::OSInfo::setSystemColor(u"window", u"");
    Core::OSInfo::setSystemColor(u"Menu", u"blue");
    Core::OSInfo::setSystemColor(u"red", u"rgb(0,0,0)");
    expectPrinted({{u"CURRENTCOLOR", "rgb(1,2,3)"}, {u"red", "rgb(255,0,0)"}});
    expectRefused({u"Window", u"menu"});
}

TEST_F(ColorParseTest, PrintsByTheClassOfTheColor) {
    struct OtherFunction : Drawing::SpotColorFunction {};
    auto const spot = [](ColorPtr const& end) {
        ColorPtr const start = new Drawing::RGBColor(255, 255, 255);
        return ColorPtr(new Drawing::SpotColor(
            u"a{0}", 0.1f, new Drawing::ExponentialSpotColorFunction(new Drawing::RGBColorSpace, start, end, 1)));
    };
    ColorPtr const icc = new Drawing::ICCColor(2, {1, 2, 3, 4}, new Drawing::ICCColorSpace(u"#p"));
    struct PrintRow {
        ColorPtr color;
        char const* text;
    };
    for (PrintRow const& row :
         {PrintRow{nullptr, ""},
          {new Drawing::CMYKColor(0.1f, 0.1, 1 / 3.0, 1e-7), "cmyk(0.1,0.1,0.3333333333333333,1e-07)"},
          {icc, ""},
          {new Drawing::ICCColor(1, {1, 2, 3, 4}, nullptr), ""},
          {spot(new Drawing::RGBColor(1, 2, 3)), "spot-color(a{0},0.1,cmyk(1,2,3,))"},
          {spot(new Drawing::CMYKColor(0, 0.5, 1, 0.25)), "spot-color(a{0},0.1,rgb(0,0.5,1))"},
          {spot(icc), ""},
          {spot(nullptr), ""},
          {new Drawing::SpotColor(u"a", 1, new OtherFunction), ""},
          {new Drawing::SpotColor(u"a", 1, nullptr), ""}})
        EXPECT_EQ(narrow(ColorParse::getColorAsString(row.color)), row.text);
}

TEST_F(ColorParseTest, ComparesObjects) {
    ColorAttribute red, other;
    ASSERT_TRUE(red.parseValue(u"red") && other.parseValue(u"red"));
    EXPECT_FALSE(red.isEqual(u"red"));
    EXPECT_FALSE(red == other.getValue());
    other.copyFrom(red);
    EXPECT_TRUE(red == other.getValue());
    other.copyFrom(other);
    EXPECT_EQ(narrow(other.getValueAsString()), "rgb(255,0,0)");
    EXPECT_TRUE(ColorAttribute().isEqual(u"none"));
    EXPECT_FALSE(ColorAttribute().isEqual(u"nonesuch"));
    EXPECT_FALSE(red.isEqual(u"none"));
}

TEST_F(ColorParseTest, SingleReadersTakeTheWholeText) {
    ColorAttribute target;
    EXPECT_TRUE(ColorParse::parseICCColor(u"(1,2,3,p,1)", &target) && ColorParse::parseRGB(u"(1,2,3)", &target));
    EXPECT_FALSE(ColorParse::parseHexaColor(u"(123", &target) || ColorParse::parseColorName(u"#123", &target));
    EXPECT_EQ(narrow(target.getValueAsString()), "rgb(1,2,3)");
    EXPECT_TRUE(ColorParse::parseCMYKString(u"red(0,0,0,1)", &target));
    EXPECT_EQ(narrow(target.getValueAsString()), "cmyk(0,0,0,1)");
    EXPECT_TRUE(ColorParse::parseHexaColor(u"#123", &target) && ColorParse::parseSpotColor(u"(a,rgb(0,0,0))", &target));
    EXPECT_TRUE(ColorParse::parseColorName(u"none", &target) && target == nullptr);
}

} // namespace
} // namespace Xml
