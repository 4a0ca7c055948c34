// The defaults of measures and other plain classes, constants from the start.
#include "xmlattr/defaults/DefaultAttributes.h"

namespace Xml {

constinit TXmlAttribute<AlignmentAdjust> const DefaultAlignmentAdjust;
constinit TXmlAttribute<AxisUnits> const DefaultAxisUnits(AxisUnits{AxisUnits::Type::Auto});
constinit TXmlAttribute<BackgroundPosition> const DefaultBackgroundPosition;
constinit TXmlAttribute<BackgroundSize> const DefaultBackgroundSize;
constinit TXmlAttribute<BaselineShift> const DefaultBaselineShift;
constinit TXmlAttribute<BorderWidth> const DefaultBorderWidth(BorderWidth(1.5f, Length::Pt));
constinit TXmlAttribute<ColumnWidth> const DefaultColumnWidth;
constinit TXmlAttribute<ContentLength> const DefaultContentLength;
constinit TXmlAttribute<DLength> const DefaultDLength;
constinit TXmlAttribute<Drawing::ImageFilter> const DefaultImgFilter;
constinit TXmlAttribute<Drawing::RectF> const DefaultRectFAttribute;
constinit TXmlAttribute<FloatOrPercent> const DefaultFloatOrPercent;
constinit TXmlAttribute<FontStretch> const DefaultFontStretch;
constinit TXmlAttribute<ForcePageCount> const DefaultForcePageCount;
constinit TXmlAttribute<Indent> const DefaultIndent;
constinit TXmlAttribute<InitialPageNumber> const DefaultInitialPageNumber(InitialPageNumber{
    InitialPageNumberType::Auto});
constinit TXmlAttribute<InitialSheetNumber> const DefaultInitialSheetNumber;
constinit TXmlAttribute<LeaderPatternWidth> const DefaultLeaderPatternWidth;
constinit TXmlAttribute<Length> const DefaultAspect3DChartDepth(Length(5, Length::Px));
constinit TXmlAttribute<Length> const DefaultAspect3DSceneDepth(Length(14, Length::Px));
constinit TXmlAttribute<Length> const DefaultBarUnit;
constinit TXmlAttribute<Length> const DefaultBorderLength(Length(1.5f, Length::Pt));
constinit TXmlAttribute<Length> const DefaultCaptionOffset(Length(3, Length::Px));
constinit TXmlAttribute<Length> const DefaultLength;
constinit TXmlAttribute<Length> const DefaultMarkerSpacing(Length(5, Length::Px));
constinit TXmlAttribute<Length> const DefaultMarkerWidth(Length(6, Length::Px));
constinit TXmlAttribute<Length> const DefaultPageColumnGap(Length(12, Length::Pt));
constinit TXmlAttribute<Length> const DefaultRuleThickness;
constinit TXmlAttribute<Length> const DefaultTabStopLength(Length(0.5f, Length::In));
constinit TXmlAttribute<Length> const DefaultTickLength(Length(5, Length::Px));
constinit TXmlAttribute<Length> const DefaultWidthLength(Length(10, Length::Px));
constinit TXmlAttribute<LengthOrPercent> const DefaultChartFontSize(Length(10, Length::Pt));
constinit TXmlAttribute<LengthOrPercent> const DefaultFloatLengthOrPercent(-1.0f);
constinit TXmlAttribute<LengthOrPercent> const DefaultLeaderLength(Length(12, Length::Pt));
constinit TXmlAttribute<LengthOrPercent> const DefaultLengthOrPercent;
constinit TXmlAttribute<LengthOrPercent> const DefaultLineHeight(1.2f);
constinit TXmlAttribute<LengthOrPercent> const DefaultOneHundredPercent(1.0f);
constinit TXmlAttribute<LengthOrPercent> const DefaultProvisionalDistanceBetweenStarts(Length(24, Length::Pt));
constinit TXmlAttribute<LengthOrPercent> const DefaultProvisionalLabelSeparation(Length(6, Length::Pt));
constinit TXmlAttribute<LengthOrPercent> const DefaultTitleHeight(Length(20, Length::Px));
constinit TXmlAttribute<LengthOrPercent> const DefaultTitleWidth(Length(100, Length::Px));
constinit TXmlAttribute<LengthOrPercentAuto> const DefaultLengthOrPercentAuto;
constinit TXmlAttribute<LetterSpacing> const DefaultLetterSpacing;
constinit TXmlAttribute<Margin> const DefaultMargin;
constinit TXmlAttribute<MaxDataPoints> const DefaultMaxDataPointsAttribute(MaxDataPoints{MaxDataPointsType::All});
constinit TXmlAttribute<PageDimension> const DefaultPageDimension(PageDimension{PageDimensionType::Auto});
constinit TXmlAttribute<SBaselineShift> const DefaultSBaselineShift;
constinit TXmlAttribute<SFontSize> const DefaultSFontSize(SFontSize(SLengthOrPercent(10, SLength::Pt)));
constinit TXmlAttribute<SLength> const DefaultMiterlimit(SLength(4, SLength::UserUnit));
constinit TXmlAttribute<SLength> const DefaultSLength;
constinit TXmlAttribute<SLength> const DefaultStrokeWidth;
constinit TXmlAttribute<SLengthOrPercent> const DefaultSLengthOrPercent;
constinit TXmlAttribute<SLengthOrPercent> const DefaultSOneHundredPercent(1.0f);
constinit TXmlAttribute<SNullableLength> const DefaultSNullableLength;
constinit TXmlAttribute<SNullableLengthOrPercent> const DefaultSNullableLengthOrPercent;
constinit TXmlAttribute<SPreserveAspectRatio> const DefaultSPreserveAspectRatio(SPreserveAspectRatio(146));
constinit TXmlAttribute<SSpacing> const DefaultSSpacing;
constinit TXmlAttribute<STextDecoration> const DefaultSTextDecoration;
constinit TXmlAttribute<TableWidth> const DefaultTableWidth;
constinit TXmlAttribute<ViewBox> const DefaultViewBox;

} // namespace Xml
