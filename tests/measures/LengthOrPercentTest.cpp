#include "xmlattr/measures/LengthOrPercent.h"

#include "Support.h"
#include "xmlattr/core/Application.h"
#include "xmlattr/measures/ColumnWidth.h"
#include "xmlattr/measures/ContentLength.h"
#include "xmlattr/measures/FloatOrPercent.h"
#include "xmlattr/measures/LeaderPatternWidth.h"
#include "xmlattr/measures/SLengthOrPercent.h"
#include "xmlattr/measures/TableWidth.h"

#include <bit>
#include <cmath>

namespace Xml {
namespace {

constexpr LengthOrPercent sevenCm(Length(7, Length::Cm));

// Says for the life of a test that bare numbers are points.
struct BareNumbersArePoints {
    BareNumbersArePoints() { Core::Application::setConfigValue(u"MeasurementUnit", u"Points"); }
    ~BareNumbersArePoints() { Core::Application::clearConfig(); }
};

TEST(LengthOrPercent, ReadsPercentageBareNumberAndLength) {
    expectPrints<LengthOrPercent>(
        sevenCm, {{u"50%", "50%"},      {u"100%", "100%"},     {u"-.5%", "-0.5%"},     {u"5 %", "5%"},
                  {u"1.5", "150%"},     {u"2.", "200%"},       {u"+1e1", "1000%"},     {u"0", "0%"},
                  {u"12pt", "12pt"},    {u"-3px", "-3px"},     {u".5cm", "0.5cm"},     {u"1mm", "1mm"},
                  {u"+2in", "2in"},     {u"1em", "1em"},       {u"1ex", "1ex"},        {u"1.5pc", "1.5pc"},
                  {u"normal", "120%"},  {u"12zz", "12px"},     {u"12PT", "12px"},      {u"5%pt", "5pt"},
                  {u"-x", "0px"},       {u"5x", "0px"},        {u"+", "0px"},          {u".%", "refused"},
                  {u"", "refused"},     {u"%", "refused"},     {u".", "refused"},      {u"+.", "refused"},
                  {u"+%", "refused"},   {u"auto", "refused"},  {u"Normal", "refused"}, {u" 1pt", "refused"},
                  {u"1e39", "refused"}, {u"12pt ", "refused"}, {u"1 2pt", "refused"}});
    auto const measure = parsed<LengthOrPercent>(u"5%");
    EXPECT_EQ(measure->getPercent(), 5 * 0.01f) << "a product of floats";
    EXPECT_EQ(parsed<FloatOrPercent>(u"5%")->getValue(), 0.05f);
}

TEST(LengthOrPercent, BareNumbersFollowTheConfiguration) {
    BareNumbersArePoints const points;
    expectPrints<LengthOrPercent>(sevenCm, {{u"1.5", "1.5pt"}, {u"2.", "2pt"}, {u"50%", "50%"}, {u"3zz", "3px"}});
    expectPrints<ColumnWidth>(sevenCm, {{u"2", "2pt"}, {u"proportional-column-width(2)", "200%"}, {u"f(2)", "2pt"}});
    auto const table = parsed<TableWidth>(u"proportional-column-width(1)");
    ASSERT_TRUE(table);
    EXPECT_TRUE(table->getLengthOrPercent() == LengthOrPercent(Length(1, Length::Pt))) << "the name does not count";
    LengthOrPercent measure;
    EXPECT_TRUE(LengthOrPercent::parseLengthOrPercent(measure, u"1.5", true));
    EXPECT_TRUE(measure == LengthOrPercent(1.5f));
    Core::Application::setConfigValue(u"MeasurementUnit", u"points");
    EXPECT_EQ(printed<LengthOrPercent>(u"1.5"), "150%");
}

TEST(LengthOrPercent, ComparesWithinAKindAndResolvesPercentages) {
    LengthOrPercent const zero, nothing(0.0f), inch(Length(1, Length::In));
    EXPECT_FALSE(zero == nothing);
    EXPECT_FALSE(inch == LengthOrPercent(Length(96, Length::Px)));
    EXPECT_FALSE(nothing == LengthOrPercent(1.0f));
    EXPECT_EQ(LengthOrPercent(0.25f).pxSize(200), 50);
    EXPECT_EQ(inch.pxSize(200), 96);
    EXPECT_EQ(LengthOrPercent(3e38f).pxSize(200), INFINITY);
    LengthOrPercent changed = inch;
    changed.setPercent(0.5f);
    EXPECT_TRUE(changed == LengthOrPercent(0.5f));
    EXPECT_EQ(changed.getLengthPxSize(), 0);
    changed.setLength(inch.getLength());
    EXPECT_TRUE(changed == inch);
    EXPECT_EQ(changed.getPercent(), 0);
}

TEST(SLengthOrPercent, ReadsWhatSvgAllows) {
    constexpr SLengthOrPercent one(1, SLength::UserUnit);
    struct Row {
        char16_t const* text;
        SLengthOrPercent value;
    };
    for (Row const& row : {Row{u"12 \t", {12, SLength::UserUnit}}, Row{u"-5", {-5, SLength::UserUnit}},
                           Row{u"40%", 40 * 0.01f}, Row{u"3mm", {3, SLength::Mm}}, Row{u"2pc ", {2, SLength::Pc}},
                           Row{u"12px", {12, SLength::UserUnit}}, Row{u"12a", {1, SLength::UserUnit}}, Row{u"5x", one},
                           Row{u"5.", one}, Row{u"+", one}, Row{u".", one}, Row{u"5x ", one}}) {
        auto const value = parsed<SLengthOrPercent>(row.text);
        ASSERT_TRUE(value) << narrow(row.text);
        EXPECT_TRUE(*value == row.value) << narrow(row.text);
    }
    for (char16_t const* text : {u"", u" ", u" 1", u"%", u"+%", u"abc", u"+ab", u"1e39", u"pt", u"1 2"}) {
        SLengthOrPercent kept(0.75f);
        EXPECT_FALSE(SLength::parseSLengthOrPercent(kept, text)) << narrow(text);
        EXPECT_TRUE(kept == SLengthOrPercent(0.75f)) << narrow(text);
    }
    EXPECT_EQ(parsed<SLengthOrPercent>(u"-1.5in")->pxSize(7), -144);
    EXPECT_EQ(SLengthOrPercent(0.5f).pxSize(7), 3.5f);
}

TEST(SNullableLengthOrPercent, IsPresentOnceRead) {
    TXmlAttribute<SNullableLengthOrPercent> attribute;
    EXPECT_FALSE(attribute.parseValue(u"x"));
    EXPECT_TRUE(attribute->isNull());
    EXPECT_TRUE(attribute.isEqual(u"0", int_to_type<1>())) << "comparing takes the measure alone";
    EXPECT_TRUE(attribute.parseValue(u"3%"));
    EXPECT_FALSE(attribute->isNull());
    EXPECT_FALSE(attribute.isEqual(u"3%"));
    EXPECT_FALSE(SNullableLengthOrPercent(SLengthOrPercent()).isNull());

    // Nothing in the library makes a measure with both parts; other writers of its words may.
    struct Words {
        std::int32_t kind;
        SLength length;
        float percent;
    };
    auto const both = [](std::int32_t kind) {
        return SNullableLengthOrPercent(std::bit_cast<SLengthOrPercent>(Words{kind, {3, SLength::Mm}, 0.5f}));
    };
    EXPECT_TRUE(both(1).getLength() == SLength(3, SLength::Mm) && both(1).getPercent() == 0);
    EXPECT_TRUE(both(2).getLength() == SLength() && both(2).getPercent() == 0.5f);
}

TEST(AutoOrMeasure, EachTypeHasItsOwnWayToBeAutomatic) {
    expectPrints<LengthOrPercentAuto>(sevenCm, {{u"AUTO", "auto"}, {u"10%", "10%"}, {u"auto ", "refused"}});
    expectPrints<Margin>(sevenCm, {{u"auto", "refused"}, {u"10%", "10%"}, {u"f(1pt)", "refused"}});
    EXPECT_EQ(TXmlAttribute<Margin>().getValueAsString(), u"");

    LengthOrPercentAuto size(LengthOrPercent(0.5f));
    EXPECT_TRUE(LengthOrPercentAuto::parseLengthOrPercentAuto(size, u"auto"));
    EXPECT_TRUE(size.isAuto());
    EXPECT_EQ(size.getLengthOrPercent().getPercent(), 0.5f) << "the measure stays";
    EXPECT_TRUE(size == LengthOrPercentAuto()) << "whatever the measure";
    EXPECT_FALSE(Margin() == Margin(LengthOrPercent()));
    size.setAuto(false);
    EXPECT_TRUE(size == LengthOrPercentAuto(LengthOrPercent(0.5f)));
    EXPECT_EQ(LengthOrPercent(0.5f).getKind(), LengthOrPercent::KindPercent);
    EXPECT_EQ(LengthOrPercent().getKind(), LengthOrPercent::KindLength);

    TXmlAttribute<LeaderPatternWidth> width;
    EXPECT_TRUE(width.isEqual(u"use-font-metrics"));
    EXPECT_FALSE(width.isEqual(u"0px"));
    EXPECT_TRUE(width.parseValue(u"3pt"));
    EXPECT_TRUE(width.parseValue(u"use-font-metrics"));
    EXPECT_EQ(width.getValueAsString(), u"3pt") << "changes nothing";
    EXPECT_FALSE(width.isEqual(u"use-font-metrics"));
    EXPECT_FALSE(width.parseValue(u"auto"));
}

TEST(ColumnWidth, TakesTheArgumentOfAnyCall) {
    expectPrints<ColumnWidth>(sevenCm, {{u"2in", "2in"},
                                        {u"proportional-column-width(1)", "100%"},
                                        {u"proportional-column-width()", "refused"},
                                        {u"f(3pt)", "3pt"},
                                        {u"(3pt", "3pt"},
                                        {u"f)1pt(3pt)4pt)", "3pt"},
                                        {u"f(g(3pt))", "refused"},
                                        {u"f( 3pt)", "refused"},
                                        {u"3pt)", "refused"},
                                        {u"auto", "refused"}});
    EXPECT_TRUE(parsed<TableWidth>(u"f(3pt)").value() == TableWidth(LengthOrPercent(Length(3, Length::Pt))));
    EXPECT_FALSE(parsed<TableWidth>(u"f()"));
}

TEST(FloatOrPercent, HoldsTheFraction) {
    struct Row {
        char16_t const* text;
        std::optional<float> value;
    };
    for (Row const& row : {Row{u"50%", 0.5f}, Row{u"0.5", 0.5f}, Row{u"-3", -3.0f}, Row{u"%", 0.0f},
                           Row{u"x", std::nullopt}, Row{u"x%", std::nullopt}}) {
        auto const value = parsed<FloatOrPercent>(row.text);
        EXPECT_EQ(value ? std::optional(value->getValue()) : std::nullopt, row.value) << narrow(row.text);
    }
}

TEST(ContentLength, ComparesOneWay) {
    expectPrints<ContentLength>(sevenCm, {{u"auto", "auto"},
                                          {u"scale-to-fit", "scale-to-fit"},
                                          {u"scale-down-to-fit", "scale-down-to-fit"},
                                          {u"scale-up-to-fit", "scale-up-to-fit"},
                                          {u"50%", "50%"},
                                          {u"Auto", "refused"}});
    // Row: the left operand; column: the right one, in the order of the modes, the last one 0px.
    constexpr std::string_view equal[] = {"11001", "01001", "00000", "00000", "00001"};
    auto const value = [](int mode) {
        auto const scaling = static_cast<ContentScaleMode>(mode);
        return mode == 4 ? ContentLength(LengthOrPercent()) : ContentLength(scaling);
    };
    for (int left = 0; left < 5; ++left)
        for (int right = 0; right < 5; ++right)
            EXPECT_EQ(value(left) == value(right), equal[left][static_cast<std::size_t>(right)] == '1')
                << left << right;
    EXPECT_FALSE(value(0) == ContentLength(LengthOrPercent(1.0f)));
    EXPECT_EQ(TXmlAttribute<ContentLength>(static_cast<ContentScaleMode>(5)).getValueAsString(), u"");
    EXPECT_EQ(ContentLength(ContentScaleMode::ScaleToFit).pxSize(10), 0);
    EXPECT_EQ(parsed<ContentLength>(u"50%")->pxSize(10), 5);
    ContentLength length = *parsed<ContentLength>(u"1px");
    EXPECT_TRUE(length.isLengthOrPercent() && !length.isNull());
    length.setNull(true);
    EXPECT_TRUE(length.isLengthOrPercent() && length.isNull());
    EXPECT_TRUE(!ContentLength().isLengthOrPercent() && ContentLength().isNull());
}

} // namespace
} // namespace Xml
