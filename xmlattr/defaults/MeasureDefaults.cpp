// The defaults of measures and other plain classes, constants from the start.
#include "xmlattr/defaults/DefaultAttributes.h"

namespace Xml {

constinit const TXmlAttribute<AlignmentAdjust> DefaultAlignmentAdjust;
constinit const TXmlAttribute<AxisUnits> DefaultAxisUnits(AxisUnits(AxisUnits::Type::Auto));
constinit const TXmlAttribute<BackgroundPosition> DefaultBackgroundPosition(LengthOrPercent(0.0f));
constinit const TXmlAttribute<BackgroundSize> DefaultBackgroundSize;
constinit const TXmlAttribute<BaselineShift> DefaultBaselineShift;
constinit const TXmlAttribute<BorderWidth> DefaultBorderWidth(BorderWidth(1.5f, Length::Pt));
constinit const TXmlAttribute<ColumnWidth> DefaultColumnWidth;
constinit const TXmlAttribute<ContentLength> DefaultContentLength;
constinit const TXmlAttribute<DLength> DefaultDLength;
constinit const TXmlAttribute<Drawing::ImageFilter> DefaultImgFilter;
constinit const TXmlAttribute<Drawing::RectF> DefaultRectFAttribute;
constinit const TXmlAttribute<FloatOrPercent> DefaultFloatOrPercent;
constinit const TXmlAttribute<FontStretch> DefaultFontStretch(FontStretch(RelativeFontStretch::Normal));
constinit const TXmlAttribute<ForcePageCount> DefaultForcePageCount;
constinit const TXmlAttribute<Indent> DefaultIndent;
constinit const TXmlAttribute<InitialPageNumber> DefaultInitialPageNumber(InitialPageNumber(InitialPageNumberType::Auto));
constinit const TXmlAttribute<InitialSheetNumber> DefaultInitialSheetNumber;
constinit const TXmlAttribute<LeaderPatternWidth> DefaultLeaderPatternWidth;
constinit const TXmlAttribute<Length> DefaultAspect3DChartDepth(Length(5, Length::Px));
constinit const TXmlAttribute<Length> DefaultAspect3DSceneDepth(Length(14, Length::Px));
constinit const TXmlAttribute<Length> DefaultBarUnit;
constinit const TXmlAttribute<Length> DefaultBorderLength(Length(1.5f, Length::Pt));
constinit const TXmlAttribute<Length> DefaultCaptionOffset(Length(3, Length::Px));
constinit const TXmlAttribute<Length> DefaultLength;
constinit const TXmlAttribute<Length> DefaultMarkerSpacing(Length(5, Length::Px));
constinit const TXmlAttribute<Length> DefaultMarkerWidth(Length(6, Length::Px));
constinit const TXmlAttribute<Length> DefaultPageColumnGap(Length(12, Length::Pt));
constinit const TXmlAttribute<Length> DefaultRuleThickness(Length(1, Length::Pt));
constinit const TXmlAttribute<Length> DefaultTabStopLength(Length(0.5f, Length::In));
constinit const TXmlAttribute<Length> DefaultTickLength(Length(5, Length::Px));
constinit const TXmlAttribute<Length> DefaultWidthLength(Length(10, Length::Px));
constinit const TXmlAttribute<LengthOrPercent> DefaultChartFontSize(Length(10, Length::Pt));
constinit const TXmlAttribute<LengthOrPercent> DefaultFloatLengthOrPercent(-1.0f);
constinit const TXmlAttribute<LengthOrPercent> DefaultLeaderLength(Length(12, Length::Pt));
constinit const TXmlAttribute<LengthOrPercent> DefaultLengthOrPercent;
constinit const TXmlAttribute<LengthOrPercent> DefaultLineHeight(1.2f);
constinit const TXmlAttribute<LengthOrPercent> DefaultOneHundredPercent(1.0f);
constinit const TXmlAttribute<LengthOrPercent> DefaultProvisionalDistanceBetweenStarts(Length(24, Length::Pt));
constinit const TXmlAttribute<LengthOrPercent> DefaultProvisionalLabelSeparation(Length(6, Length::Pt));
constinit const TXmlAttribute<LengthOrPercent> DefaultTitleHeight(Length(20, Length::Px));
constinit const TXmlAttribute<LengthOrPercent> DefaultTitleWidth(Length(100, Length::Px));
constinit const TXmlAttribute<LengthOrPercentAuto> DefaultLengthOrPercentAuto;
constinit const TXmlAttribute<LetterSpacing> DefaultLetterSpacing;
constinit const TXmlAttribute<Margin> DefaultMargin;
constinit const TXmlAttribute<MaxDataPoints> DefaultMaxDataPointsAttribute(MaxDataPoints(MaxDataPointsType::All));
constinit const TXmlAttribute<PageDimension> DefaultPageDimension(PageDimension(PageDimensionType::Auto));
constinit const TXmlAttribute<SBaselineShift> DefaultSBaselineShift;
constinit const TXmlAttribute<SFontSize> DefaultSFontSize(SFontSize(SLengthOrPercent(10, SLength::Pt)));
constinit const TXmlAttribute<SLength> DefaultMiterlimit(SLength(4, SLength::UserUnit));
constinit const TXmlAttribute<SLength> DefaultSLength;
constinit const TXmlAttribute<SLength> DefaultStrokeWidth(SLength(1, SLength::UserUnit));
constinit const TXmlAttribute<SLengthOrPercent> DefaultSLengthOrPercent;
constinit const TXmlAttribute<SLengthOrPercent> DefaultSOneHundredPercent(1.0f);
constinit const TXmlAttribute<SNullableLength> DefaultSNullableLength;
constinit const TXmlAttribute<SNullableLengthOrPercent> DefaultSNullableLengthOrPercent;
constinit const TXmlAttribute<SPreserveAspectRatio> DefaultSPreserveAspectRatio(SPreserveAspectRatio(146));
constinit const TXmlAttribute<SSpacing> DefaultSSpacing;
constinit const TXmlAttribute<STextDecoration> DefaultSTextDecoration;
constinit const TXmlAttribute<TableWidth> DefaultTableWidth;
constinit const TXmlAttribute<ViewBox> DefaultViewBox;

} // namespace Xml
