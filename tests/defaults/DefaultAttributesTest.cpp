#include "xmlattr/defaults/DefaultAttributes.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(DefaultAttributes, PrintTheirValues) {
    struct Row {
        XmlAttribute const& attribute;
        char const* text;
    };
    for (Row const& row : {Row{DefaultBorderStyle, "none"},
                           Row{DefaultLeaderRuleStyle, "solid"},
                           Row{DefaultDominantBaseline, "auto"},
                           Row{DefaultBarcodeValueType, "TEXT"},
                           Row{DefaultKeep, "auto"},
                           Row{DefaultReferenceOrientation, "0"},
                           Row{DefaultCommandBehaviorTypeAttribute, "SchemaOnly"},
                           Row{DefaultOriginalInputFormatAttribute, "XLSFO"},
                           Row{DefaultFormControlTypeAttribute, ""},
                           Row{DefaultThreeStateBoolAttribute, ""},
                           Row{DefaultLegendPlacement, ""},
                           Row{DefaultManagedChartPosition, "right"},
                           Row{DefaultMaxFloat, "2147483648"},
                           Row{DefaultAspect3DShading, "0.75"},
                           Row{DefaultWidowsAndOrphans, "2"},
                           Row{DefaultFontSize, "10pt"},
                           Row{DefaultFontFamily, "Times"},
                           Row{DefaultBorderWidth, "1.5pt"},
                           Row{DefaultLineHeight, "120%"},
                           Row{DefaultFloatLengthOrPercent, "-100%"},
                           Row{DefaultOneHundredPercent, "100%"},
                           Row{DefaultTitleWidth, "100px"},
                           Row{DefaultTabStopLength, "0.5in"},
                           Row{DefaultMargin, ""},
                           Row{DefaultLengthOrPercentAuto, "auto"},
                           Row{DefaultBackgroundPosition, "0px"},
                           Row{DefaultBackgroundSize, "auto"},
                           Row{DefaultFontStretch, "normal"},
                           Row{DefaultTextAlign, "left"},
                           Row{DefaultManagedBackground, "rgb(255,255,255)"},
                           Row{DefaultFormControlBorderColor, "rgb(112,112,112)"},
                           Row{DefaultBackgroundColor, ""},
                           Row{DefaultHyphenationCharacter, ""},
                           Row{DefaultNumberFormat, ""},
                           Row{DefaultRuleThickness, "0px"},
                           Row{DefaultGradientStopColor, ""},
                           Row{DefaultMaxDataPointsAttribute, "all"},
                           Row{DefaultUrl, "url()"},
                           Row{DefaultPointList, ""}})
        EXPECT_EQ(narrow(row.attribute.getValueAsString()), row.text);
}

TEST(DefaultAttributes, HoldWhatIsNotPrinted) {
    EXPECT_EQ(static_cast<int>(DefaultFormControlTypeAttribute.getValue()), 5);
    EXPECT_EQ(static_cast<int>(DefaultScriptTypeAttribute.getValue()), 2);
    EXPECT_EQ(static_cast<int>(DefaultDMFormat.getValue()), -1);
    EXPECT_EQ(static_cast<int>(DefaultChartTheme.getValue()), 9);
    EXPECT_EQ(DefaultFontStretch->getType(), FontStretch::NoValue);
    EXPECT_EQ(DefaultTextAlign->getType(), TextAlignType::None);
    EXPECT_TRUE(DefaultStrokeWidth == SLength(0, SLength::UserUnit));
    EXPECT_EQ(DefaultSPreserveAspectRatio->getAspectRatio(), 146);
    EXPECT_TRUE(DefaultMiterlimit == SLength(4, SLength::UserUnit));
    EXPECT_TRUE(DefaultSFontSize->getAbsoluteSize() == SLengthOrPercent(10, SLength::Pt));
    EXPECT_EQ(DefaultMinValue->getFloatValue(), -2147483648.0f);
    EXPECT_EQ(DefaultSStrokeColor->getType(), SColor::None);
    EXPECT_TRUE(DefaultSNullableFillColor->isNull());
    SmartPtr<Drawing::Color> const fill = SColor(DefaultSNullableFillColor.getValue()).getColor();
    EXPECT_EQ(narrow(AttributeTraits<SmartPtr<Drawing::Color>>::print(fill)), "rgb(0,0,0)");
}

} // namespace
} // namespace Xml
