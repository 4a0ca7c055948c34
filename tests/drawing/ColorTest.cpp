#include "xmlattr/drawing/Color.h"

#include "Support.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/drawing/ColorText.h"
#include "xmlattr/drawing/ImageFilter.h"
#include "xmlattr/drawing/SpotColor.h"

#include <thread>

namespace Drawing {
namespace {

template <class Kind> SmartPtr<Kind> cloneOf(SmartPtr<Kind> const& color) {
    SmartPtr<Color> const clone = color->clone();
    EXPECT_FALSE(clone == color);
    return dynamic_cast<Kind*>(clone.get());
}

TEST(Color, PlainComponentsAreReadLikeAllOthers) {
    auto const result = [](auto read, std::u16string_view text) {
        SmartPtr<Color> color;
        if (!read(color, text)) return -1;
        auto const& rgb = dynamic_cast<RGBColor const&>(*color);
        return rgb.getR() << 16 | rgb.getG() << 8 | rgb.getB();
    };
    std::u16string_view const components[] = {u"0",    u"255",   u"300",   u"1234", u"65536", u"99999999999", u"50%",
                                              u"101%", u"33.3%", u"33.3",  u"5.%",  u".5%",   u"-1",          u"-5%",
                                              u" 7",   u"7 ",    u" 50% ", u"50% ", u"",      u"%",           u"1%%",
                                              u"1e1%", u"x",     u"1234%", u"7 %",  u"33.3"};
    for (std::u16string_view const first : components)
        for (std::u16string_view const second : components)
            for (char16_t const* end : {u",1)", u",50%)", u",1", u",1 )", u")", u",1,2)", u",", u""}) {
                Core::String const text = Core::String(u"rgb(") + first + u"," + second + end;
                EXPECT_EQ(result(readRGB, text), result(readRGBReference, text)) << text.toUtf8();
            }
    for (char16_t const* text : {u"", u"rgb", u"rgb(", u"1,2,3)", u"(1,2,3)(", u"(\u00A01,\t2,3)"})
        EXPECT_EQ(result(readRGB, text), result(readRGBReference, text));
}

TEST(Color, ClonesAreNewObjectsOfTheSameContents) {
    struct Unique : Color {};
    SmartPtr<Color> const unique = new Unique;
    EXPECT_FALSE(unique->clone()) << "a class that says nothing of copies";
    auto const rgb = cloneOf<RGBColor>(new RGBColor(1, 2, 3));
    EXPECT_TRUE(rgb && rgb->getR() == 1 && rgb->getG() == 2 && rgb->getB() == 3);
    auto const cmyk = cloneOf<CMYKColor>(new CMYKColor(0.1, 0.2, 0.3, 4));
    EXPECT_TRUE(cmyk && cmyk->getC() == 0.1 && cmyk->getM() == 0.2 && cmyk->getY() == 0.3 && cmyk->getK() == 4);

    SmartPtr<ICCColor> const icc = new ICCColor(3, {1, 2, 3, 0}, new ICCColorSpace(u"##p"));
    icc->setFallBack(4, 5, 6);
    auto const iccClone = cloneOf(icc);
    EXPECT_TRUE(iccClone && iccClone->getCount() == 3 && iccClone->getColor(2) == 3);
    EXPECT_TRUE(iccClone->getFallBackR() == 4 && iccClone->getFallBackG() == 5 && iccClone->getFallBackB() == 6);
    EXPECT_TRUE(iccClone->getColorSpace() == icc->getColorSpace());
    EXPECT_EQ(icc->getColorSpace()->getProfileName(), u"#p");
    EXPECT_THROW(icc->getColor(4), std::out_of_range);
    EXPECT_THROW(icc->getColor(-1), std::out_of_range);

    SmartPtr<SpotColor> const spot =
        new SpotColor(u"Gold", 0.5f, SpotColorFunction::parseColorFunctionString(u"rgb(1,2,3)"));
    auto const spotClone = cloneOf(spot);
    EXPECT_TRUE(spotClone && spotClone->getColorName() == u"Gold" && spotClone->getTint() == 0.5f);
    EXPECT_TRUE(spotClone->getFunction() == spot->getFunction());
}

TEST(ImageFilter, IsReadInAnyCase) {
    ImageFilter filter;
    EXPECT_EQ(filter.getType(), ImageFilter::Auto);
    EXPECT_TRUE(ImageFilter::parseFilter(filter, u"BiLinear"));
    EXPECT_FALSE(ImageFilter::parseFilter(filter, u"linear"));
    EXPECT_TRUE(filter == ImageFilter(ImageFilter::Bilinear) && filter.toString() == u"bilinear");
    EXPECT_EQ(ImageFilter(static_cast<ImageFilter::Type>(4)).toString(), u"");
}

TEST(SpotColorFunction, GoesFromNoInkToTheAlternate) {
    auto const held = SpotColorFunction::parseColorFunctionString(u"rgb(50%,2,300)x");
    auto const& rgb = dynamic_cast<ExponentialSpotColorFunction&>(*held);
    EXPECT_EQ(dynamic_cast<RGBColor&>(*rgb.getStartColor()).getB(), 255);
    EXPECT_EQ(dynamic_cast<RGBColor&>(*rgb.getEndColor()).getR(), 127);
    EXPECT_TRUE(dynamic_cast<RGBColorSpace*>(rgb.getColorSpace().get()) && rgb.getExponent() == 1);
    auto const inked = SpotColorFunction::parseColorFunctionString(u"cmyk(0,0,0,255)");
    auto const& cmyk = dynamic_cast<ExponentialSpotColorFunction&>(*inked);
    EXPECT_EQ(dynamic_cast<CMYKColor&>(*cmyk.getStartColor()).getK(), 0);
    EXPECT_EQ(dynamic_cast<CMYKColor&>(*cmyk.getEndColor()).getK(), 1);
    EXPECT_TRUE(dynamic_cast<CMYKColorSpace*>(cmyk.getColorSpace().get()) && cmyk.getExponent() == 1);
    for (char16_t const* text : {u"", u"red", u"#123", u" rgb(1,2,3)", u"(1,2,3)", u"rgb(1,2)", u"rgb-icc(1,2,3,#p,1)"})
        EXPECT_FALSE(SpotColorFunction::parseColorFunctionString(text)) << Xml::narrow(text);
}

TEST(SpotColorMapper, KnowsWhatIsRegisteredWhileOthersAsk) {
    auto const first = SpotColorFunction::parseColorFunctionString(u"rgb(1,2,3)");
    auto const second = SpotColorFunction::parseColorFunctionString(u"rgb(4,5,6)");
    EXPECT_FALSE(SpotColorMapper::getFunction(u"Gold"));
    std::thread asking([&] {
        for (int i = 0; i < 1000; ++i) {
            auto const found = SpotColorMapper::getFunction(u"Gold");
            EXPECT_TRUE(!found || found == first || found == second);
        }
    });
    for (int i = 0; i < 1000; ++i) SpotColorMapper::setFunction(u"Gold", i % 2 ? second : first);
    asking.join();
    EXPECT_TRUE(SpotColorMapper::getFunction(u"Gold") == second);
    EXPECT_FALSE(SpotColorMapper::getFunction(u"gold"));
    SpotColorMapper::setFunction(u"Silver", first);
    SpotColorMapper::setFunction(u"Gold", nullptr);
    EXPECT_FALSE(SpotColorMapper::getFunction(u"Gold"));
    EXPECT_TRUE(SpotColorMapper::getFunction(u"Silver") == first);
    SpotColorMapper::clear();
    EXPECT_FALSE(SpotColorMapper::getFunction(u"Silver"));
}

} // namespace
} // namespace Drawing
