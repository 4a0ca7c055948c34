#include "xmlattr/document/AxisSource.h"
#include "xmlattr/document/AxisUnits.h"
#include "xmlattr/document/MaxDataPoints.h"
#include "xmlattr/document/Value.h"

#include "Support.h"

#include <limits>

namespace Xml {
namespace {

TEST(AxisSource, SplitsCallsOfGroupingFunctions) {
    struct Row {
        char16_t const* text;
        char const* fn;
        char const* name;
    };
    for (Row const& row : {Row{u"year(OrderDate)", "year", "OrderDate"}, Row{u"Month( Date) ", "Month", "Date"},
                           Row{u"dayOfYear (f(x))y", "dayOfYear", "f(x)"}, Row{u"years(x)", "years", "x"},
                           Row{u"year-quarter()", "year-quarter", ""}, Row{u"week)x(y", "week)x", ""},
                           Row{u"year(", "", "year("}, Row{u" year(x)", "", " year(x)"}, Row{u"day(x)", "", "day(x)"},
                           Row{u"avg(Price)", "", "avg(Price)"}, Row{u"", "", ""}}) {
        SCOPED_TRACE(narrow(row.text));
        TXmlAttribute<AxisSource> source(AxisSource(u"old", u"old"));
        EXPECT_TRUE(source.parseValue(row.text));
        EXPECT_EQ(narrow(source->getFn()), row.fn);
        EXPECT_EQ(narrow(source->getName()), row.name);
    }
    for (char16_t const* text : {u"year(", u"Years", u"dayOfYear (x)"}) EXPECT_TRUE(AxisSource::hasFn(text));
    for (char16_t const* text : {u" year(x)", u"avg(x)", u""}) EXPECT_FALSE(AxisSource::hasFn(text));
    EXPECT_EQ(printed<AxisSource>(u"Month( Date )"), "Month(Date)");
    EXPECT_EQ(printed<AxisSource>(u" avg( x ) "), " avg( x ) ");
}

TEST(AxisUnits, ReadsKeywordsAndNumbersButZero) {
    EXPECT_EQ(parsed<AxisUnits>(u"AUTO"), AxisUnits::Auto);
    EXPECT_EQ(parsed<AxisUnits>(u"Days"), AxisUnits::Days);
    EXPECT_EQ(parsed<AxisUnits>(u"years"), AxisUnits::Years);
    EXPECT_EQ(parsed<AxisUnits>(u"-2"), AxisUnits(-2.0f));
    for (char16_t const* text : {u"0", u"0.0", u"-0", u"", u"day", u" days", u"1e-60"})
        EXPECT_FALSE(parsed<AxisUnits>(text)) << narrow(text);
    EXPECT_TRUE(AxisUnits().getType() == AxisUnits::Auto && AxisUnits(2.0f).getType() == AxisUnits::Numeric);
    AxisUnits const nan(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(nan != nan);
}

TEST(MaxDataPoints, ReadsAllAndIntegers) {
    for (auto const& [text, result] : {std::pair{u" ALL ", "all"},
                                       {u"100", "100"},
                                       {u"-5", "-5"},
                                       {u"lots", "refused"},
                                       {u"", "refused"},
                                       {u"1.5", "refused"}})
        EXPECT_EQ(printed<MaxDataPoints>(text), result) << narrow(text);
    TXmlAttribute<MaxDataPoints> points(MaxDataPoints(0));
    EXPECT_FALSE(points.isEqual(u"all"));
    EXPECT_TRUE(points.isEqual(u"0") && points.parseValue(u"all") && points.isEqual(u"All"));
    EXPECT_EQ(points->getValue(), 0);
    EXPECT_TRUE(MaxDataPoints(0).getType() == MaxDataPointsType::Count && MaxDataPoints(0) != MaxDataPoints());
    EXPECT_TRUE(MaxDataPoints().getType() == MaxDataPointsType::All && MaxDataPoints().getValue() == 0);
    points = MaxDataPoints(static_cast<MaxDataPointsType>(7));
    EXPECT_EQ(points.getValueAsString(), u"");
}

TEST(Value, ReadsADateElseANumberElseAString) {
    struct Row {
        char16_t const* text;
        ValueType type;
        char const* value;
    };
    for (Row const& row : {Row{u"2020-01-31T10:00:00Z", ValueType::Date, "2020-01-31"},
                           Row{u"2020", ValueType::Number, "2020"}, Row{u" 1.50% ", ValueType::Number, "1.5"},
                           Row{u"2020-02-30", ValueType::String, "2020-02-30"}, Row{u" ", ValueType::String, " "}}) {
        SCOPED_TRACE(narrow(row.text));
        Value before(1.0f);
        before.setOrdinal(4);
        TXmlAttribute<Value> attribute(before);
        ASSERT_TRUE(attribute.parseValue(row.text));
        EXPECT_EQ(attribute->getType(), row.type);
        EXPECT_EQ(narrow(attribute->getValue()), row.value);
        EXPECT_EQ(attribute->getStringValue(), row.text);
        EXPECT_EQ(attribute->getOrdinal(), -1);
        EXPECT_EQ(attribute.getValueAsString(), u"");
        EXPECT_TRUE(attribute.isEqual(row.text));
        EXPECT_FALSE(attribute.parseValue(u"") || attribute.isEqual(u""));
        EXPECT_EQ(attribute->getStringValue(), row.text);
    }
}

TEST(Value, ComparesUnevenly) {
    Value const none, two(2.0f), three(3.0f), zz(Core::String(u"zz")), aaa(Core::String(u"aaa"));
    Value const day = *parsed<Value>(u"2020-01-31"), nextDay = *parsed<Value>(u"2020-02-01");
    EXPECT_TRUE(none != none && none.getValue().empty());
    EXPECT_TRUE(Value(0.0f) == zz && zz != Value(0.0f)) << "the left operand's type decides";
    EXPECT_FALSE(none < none || none > none);
    EXPECT_TRUE(day.getDateValue() < nextDay.getDateValue());
    EXPECT_TRUE(two < three && three > two && day < nextDay && nextDay > day && day != nextDay);
    EXPECT_TRUE(zz < aaa && aaa > zz && zz != aaa);
    EXPECT_FALSE(Value(Core::String(u"bb")) < zz || zz < Value(Core::String(u"bb")));
    EXPECT_FALSE(two < zz || two > zz || zz < two || zz > two);

    Value numberWithText(0.0f);
    numberWithText.setValue(u"zz");
    EXPECT_EQ(numberWithText.getType(), ValueType::Number);
    EXPECT_TRUE(zz == numberWithText) << "the right operand's string, whatever its type";
    EXPECT_TRUE(numberWithText == zz) << "the right operand's number, which is 0";
    EXPECT_TRUE(numberWithText != two);
}

} // namespace
} // namespace Xml
