// The defaults of keyword attributes and numbers, constants from the start.
#include "xmlattr/defaults/DefaultAttributes.h"

namespace Xml {

constinit TXmlAttribute<AFPEncoding> const DefaultAFPEncoding(AFPEncoding::Ascii);
constinit TXmlAttribute<AFPPrinterLayout> const DefaultAFPPrinterLayout(AFPPrinterLayout::Portrait90);
constinit TXmlAttribute<AbsolutePosition> const DefaultAbsolutePosition(AbsolutePosition::Auto);
constinit TXmlAttribute<AlignmentBaseline> const DefaultAlignmentBaseline(AlignmentBaseline::Auto);
constinit TXmlAttribute<AlignmentConstraint> const DefaultAlignmentConstraintAttribute(AlignmentConstraint::None);
constinit TXmlAttribute<AnchorX> const DefaultAnchorXAttribute(AnchorX::Auto);
constinit TXmlAttribute<AnchorY> const DefaultAnchorYAttribute(AnchorY::Auto);
constinit TXmlAttribute<AxisDataType> const DefaultAxisDataType(AxisDataType::Auto);
constinit TXmlAttribute<AxisIntersection> const DefaultAxisIntersection(AxisIntersection::Auto);
constinit TXmlAttribute<AxisOrientation> const DefaultAxisOrientation(AxisOrientation::Auto);
constinit TXmlAttribute<AxisPosition> const DefaultAxisPosition(AxisPosition::Left);
constinit TXmlAttribute<AxisDataType> const DefaultAxisStringDataType(AxisDataType::String);
constinit TXmlAttribute<BackgroundRepeat> const DefaultBackgroundRepeat(BackgroundRepeat::Repeat);
constinit TXmlAttribute<BarShapeType> const DefaultBarShapeType(BarShapeType::Bar);
constinit TXmlAttribute<BarcodeType> const DefaultBarcodeType(BarcodeType::Auto);
constinit TXmlAttribute<BarcodeValueType> const DefaultBarcodeValueType(BarcodeValueType::Text);
constinit TXmlAttribute<BlankOrNotBlank> const DefaultBlankOrNotBlank(BlankOrNotBlank::Any);
constinit TXmlAttribute<BookmarkStartingState> const DefaultBookmarkStartingState(BookmarkStartingState::Show);
constinit TXmlAttribute<BorderCollapse> const DefaultBorderCollapse(BorderCollapse::Collapse);
constinit TXmlAttribute<BorderConditionality> const DefaultBorderConditionality(BorderConditionality::Discard);
constinit TXmlAttribute<BorderStyle> const DefaultBorderStyle(BorderStyle::None);
constinit TXmlAttribute<Break> const DefaultBreak(Break::Auto);
constinit TXmlAttribute<CaptionPlacement> const DefaultCaptionPlacement(CaptionPlacement::Auto);
constinit TXmlAttribute<ChartStyle> const DefaultChartStyle(ChartStyle::Clustered);
constinit TXmlAttribute<ChartTheme> const DefaultChartTheme(ChartTheme::Style31);
constinit TXmlAttribute<ChartType> const DefaultChartType(ChartType::Bar);
constinit TXmlAttribute<Clear> const DefaultClearAttribute(Clear::None);
constinit TXmlAttribute<Code128CodeSet> const DefaultCode128CodeSet(Code128CodeSet::CodeSetB);
constinit TXmlAttribute<CommandBehaviorType> const DefaultCommandBehaviorTypeAttribute(CommandBehaviorType::SchemaOnly);
constinit TXmlAttribute<CsvEncodingType> const DefaultCsvEncodingTypeAttribute(CsvEncodingType::Auto);
constinit TXmlAttribute<OrbelDocumentOutputType> const
    DefaultOrbelDocumentOutputTypeAttribute(OrbelDocumentOutputType::Xml);
constinit TXmlAttribute<DBParamScope> const DefaultDBParamScopeAttribute(DBParamScope::In);
constinit TXmlAttribute<DMEncoding> const DefaultDMEncoding(DMEncoding::Auto);
constinit TXmlAttribute<DMFormat> const DefaultDMFormat(DMFormat::Auto);
constinit TXmlAttribute<DimensionType> const DefaultDimensionTypeAttribute(DimensionType::String);
constinit TXmlAttribute<DisplayAlign> const DefaultDisplayAlign(DisplayAlign::Before);
constinit TXmlAttribute<DisplayStrategyConstraint> const
    DefaultDisplayStrategyAttribute(DisplayStrategyConstraint::OncePerPage);
constinit TXmlAttribute<DisplayValOrientation> const DefaultDisplayValOrientation(DisplayValOrientation::Horizontal);
constinit TXmlAttribute<DisplayValPlacement> const DefaultDisplayValPlacement(DisplayValPlacement::Auto);
constinit TXmlAttribute<DominantBaseline> const DefaultDominantBaseline(DominantBaseline::Auto);
constinit TXmlAttribute<LightingScheme> const DefaultFOLightingSchemeAttribute(LightingScheme::Artwork);
constinit TXmlAttribute<Visibility> const DefaultFOVisibilityAttribute(Visibility::Visible);
constinit TXmlAttribute<Drawing::FillMode> const DefaultFillModeAttribute(Drawing::FillMode::NonZero);
constinit TXmlAttribute<FloatPosition> const DefaultFloatPositionAttribute(FloatPosition::Left);
constinit TXmlAttribute<FontSelectionStrategy> const DefaultFontSelectionStrategy(FontSelectionStrategy::Auto);
constinit TXmlAttribute<FontStyle> const DefaultFontStyle(FontStyle::Normal);
constinit TXmlAttribute<FontVariant> const DefaultFontVariant(FontVariant::Normal);
constinit TXmlAttribute<FontWeight> const DefaultFontWeight(FontWeight::Normal);
constinit TXmlAttribute<FootnoteRestartRule> const DefaultFootnoteRestartRule(FootnoteRestartRule::Auto);
constinit TXmlAttribute<FormActionType> const DefaultFormActionTypeAttribute(FormActionType::Unset);
constinit TXmlAttribute<FormCheckStyle> const DefaultFormCheckStyleAttribute(FormCheckStyle::Check);
constinit TXmlAttribute<BorderStyle> const DefaultFormControlBorderStyle(BorderStyle::Solid);
constinit TXmlAttribute<FormControlStyle> const DefaultFormControlStyleAttribute(FormControlStyle::Default);
constinit TXmlAttribute<FormControlType> const
    DefaultFormControlTypeAttribute(FormControlType::Unset); // Intended: a number without a keyword
constinit TXmlAttribute<FormTriggerAction> const DefaultFormTriggerActionAttribute(FormTriggerAction::Unset);
constinit TXmlAttribute<GridlineType> const DefaultGridlineType(GridlineType::Major);
constinit TXmlAttribute<JavaScriptType> const DefaultJavaScriptTypeAttribute(JavaScriptType::All);
constinit TXmlAttribute<JoinFunctionType> const DefaultJoinFunctionTypeAttribute(JoinFunctionType::Inner);
constinit TXmlAttribute<Keep> const DefaultKeep(Keep::Auto);
constinit TXmlAttribute<LabelsPosition> const DefaultLabelsPosition(LabelsPosition::Exclusive);
constinit TXmlAttribute<LeaderAlignment> const DefaultLeaderAlignment(LeaderAlignment::None);
constinit TXmlAttribute<LeaderPattern> const DefaultLeaderPattern(LeaderPattern::Space);
constinit TXmlAttribute<BorderStyle> const DefaultLeaderRuleStyle(BorderStyle::Solid);
constinit TXmlAttribute<MarkerType> const DefaultLegendMarkerType(MarkerType::Square);
constinit TXmlAttribute<LegendPlacement> const DefaultLegendPlacement(LegendPlacement::Custom);
constinit TXmlAttribute<LineHeightShiftAdjustment> const
    DefaultLineHeightShiftAdjustment(LineHeightShiftAdjustment::ConsiderShifts);
constinit TXmlAttribute<LineStackingStrategy> const DefaultLineStackingStrategy(LineStackingStrategy::MaxHeight);
constinit TXmlAttribute<LinefeedTreatment> const DefaultLinefeedTreatmentAttribute(LinefeedTreatment::TreatAsSpace);
constinit TXmlAttribute<LegendPlacement> const DefaultManagedChartPosition(LegendPlacement::Right);
constinit TXmlAttribute<PositionX> const DefaultManagedHPositionAttribute(PositionX::Center);
constinit TXmlAttribute<Visibility> const DefaultManagedVisibilityAttribute(Visibility::Visible);
constinit TXmlAttribute<MarginaliaDestinationArea> const
    DefaultMarginaliaDestinationArea(MarginaliaDestinationArea::Start);
constinit TXmlAttribute<MarginaliaRelativeAlign> const DefaultMarginaliaRelativeAlign(MarginaliaRelativeAlign::Before);
constinit TXmlAttribute<MarkerType> const DefaultMarkerType(MarkerType::Unset);
constinit TXmlAttribute<MarkupType> const DefaultMarkupTypeAttribute(MarkupType::FormatText);
constinit TXmlAttribute<MaxicodeModes> const DefaultMaxicodeMode(MaxicodeModes::StandardSymbol);
constinit TXmlAttribute<OriginalInputFormat> const DefaultOriginalInputFormatAttribute(OriginalInputFormat::Fo);
constinit TXmlAttribute<Overflow> const DefaultOverflow(Overflow::Visible);
constinit TXmlAttribute<PDFConformance> const DefaultPDFConformance(PDFConformance::Default);
constinit TXmlAttribute<PageAnnotationContext> const DefaultPageAnnotationContextAttribute(PageAnnotationContext::Page);
constinit TXmlAttribute<PageConstraint> const DefaultPageConstraintAttribute(PageConstraint::Any);
constinit TXmlAttribute<PagePosition> const DefaultPagePosition(PagePosition::Any);
constinit TXmlAttribute<PageRegionConstraint> const DefaultPageRegionConstraintAttribute(PageRegionConstraint::None);
constinit TXmlAttribute<Parity> const DefaultParity(Parity::Any);
constinit TXmlAttribute<PieShapeType> const DefaultPieShapeType(PieShapeType::Pie);
constinit TXmlAttribute<PlayMediaObject> const DefaultPlayMediaObject(PlayMediaObject::OnClick);
constinit TXmlAttribute<PositionX> const DefaultPositionXAttribute(PositionX::Auto);
constinit TXmlAttribute<PositionY> const DefaultPositionYAttribute(PositionY::Auto);
constinit TXmlAttribute<ProtectionObject> const DefaultProtectionObject(ProtectionObject::PdfOutput);
constinit TXmlAttribute<QRECL> const DefaultQRECLAttribute(QRECL::LevelL);
constinit TXmlAttribute<ReferenceOrientation> const DefaultReferenceOrientation(ReferenceOrientation::Degrees0);
constinit TXmlAttribute<RelativePosition> const DefaultRelativePosition(RelativePosition::Static);
constinit TXmlAttribute<RetrieveBoundary> const DefaultRetrieveBoundary(RetrieveBoundary::PageSequence);
constinit TXmlAttribute<RetrieveBoundaryWithinTable> const
    DefaultRetrieveBoundaryWithinTable(RetrieveBoundaryWithinTable::Table);
constinit TXmlAttribute<RetrievePosition> const DefaultRetrievePosition(RetrievePosition::FirstStartingWithinPage);
constinit TXmlAttribute<RetrievePositionWithinTable> const
    DefaultRetrievePositionWithinTable(RetrievePositionWithinTable::FirstStarting);
constinit TXmlAttribute<SDisplay> const DefaultSDisplay(SDisplay::Inline);
constinit TXmlAttribute<Drawing::GradientSpreadMethod> const
    DefaultSGradientSpreadMethod(Drawing::GradientSpreadMethod::Repeat);
constinit TXmlAttribute<Drawing::GradientUnits> const DefaultSGradientUnits(Drawing::GradientUnits::ObjectBoundingBox);
constinit TXmlAttribute<SLineCap> const DefaultSLineCap(SLineCap::Butt);
constinit TXmlAttribute<SLineJoin> const DefaultSLineJoin(SLineJoin::Miter);
constinit TXmlAttribute<STextAnchor> const DefaultSTextAnchor(STextAnchor::Start);
constinit TXmlAttribute<SVGEObjectType> const
    DefaultSVGEObjectType(SVGEObjectType::Other); // Intended: what an unknown object leaves
constinit TXmlAttribute<SVisibility> const DefaultSVisibility(SVisibility::Visible);
constinit TXmlAttribute<Scaling> const DefaultScaling(Scaling::Uniform);
constinit TXmlAttribute<ScalingReference> const DefaultScalingReferenceAttribute(ScalingReference::Line);
constinit TXmlAttribute<ScriptType> const
    DefaultScriptTypeAttribute(ScriptType::Other); // Intended: what an unknown script leaves
constinit TXmlAttribute<SearchWhiteSpaceConstraint> const
    DefaultSearchWhiteSpaceStrategyAttribute(SearchWhiteSpaceConstraint::Empty);
constinit TXmlAttribute<SerieGrouping> const DefaultSerieGrouping(SerieGrouping::Overlapped);
constinit TXmlAttribute<SliceOrientation> const DefaultSliceOrientation(SliceOrientation::CounterClockwise);
constinit TXmlAttribute<SortTypes> const DefaultSortAttribute(SortTypes::None);
constinit TXmlAttribute<Span> const DefaultSpanAttribute(Span::None);
constinit TXmlAttribute<SqlCommandExecType> const DefaultSqlCommandExecTypeAttribute(SqlCommandExecType::Transaction);
constinit TXmlAttribute<Core::IO::SqlQueryParamType> const
    DefaultSqlQueryParamTypeAttribute(Core::IO::SqlQueryParamType::Numeric);
constinit TXmlAttribute<TTFEmbedMode> const DefaultTTFEmbedMode(TTFEmbedMode::Subset);
constinit TXmlAttribute<TabPattern> const DefaultTabPattern(TabPattern::None);
constinit TXmlAttribute<TabStopType> const DefaultTabStopType(TabStopType::Left);
constinit TXmlAttribute<TableLayout> const DefaultTableLayout(TableLayout::Auto);
constinit TXmlAttribute<TextDirection> const DefaultTextDirection(TextDirection::Ltr);
constinit TXmlAttribute<TextEncoding> const DefaultTextEncoding(TextEncoding::Latin1);
constinit TXmlAttribute<TextLineStyle> const DefaultTextLineStyle(TextLineStyle::None);
constinit TXmlAttribute<TextTransform> const DefaultTextTransform(TextTransform::None);
constinit TXmlAttribute<ThreeState> const
    DefaultThreeStateBoolAttribute(ThreeState::Other); // Intended: neither on nor off
constinit TXmlAttribute<TickMarkStyle> const DefaultTickMarkStyle(TickMarkStyle::Outside);
constinit TXmlAttribute<TickMarkType> const DefaultTickMarkType(TickMarkType::Major);
constinit TXmlAttribute<ValueCoertionDest> const DefaultValueCoertionDestAttribute(ValueCoertionDest::EmptyString);
constinit TXmlAttribute<ValueCoertionSource> const
    DefaultValueCoertionSourceAttribute(ValueCoertionSource::EmptyString);
constinit TXmlAttribute<Core::Variant::VariantType> const
    DefaultVariantTypeAttribute(Core::Variant::VariantType::IntegerValue);
constinit TXmlAttribute<WSBindingStyle> const DefaultWSBindingStyleTypeAttribute(WSBindingStyle::None);
constinit TXmlAttribute<WSOperationUsage> const DefaultWSOperationUsageTypeAttribute(WSOperationUsage::None);
constinit TXmlAttribute<WSProtocol> const DefaultWSProtocolTypeAttribute(WSProtocol::None);
constinit TXmlAttribute<WhiteSpaceTreatment> const
    DefaultWhiteSpaceTreatmentAttribute(WhiteSpaceTreatment::IgnoreIfSurroundingLinefeed);
constinit TXmlAttribute<Wrap> const DefaultWrap(Wrap::Inline);
constinit TXmlAttribute<WrapOption> const DefaultWrapOptionAttribute(WrapOption::Wrap);

constinit TXmlAttribute<float> const DefaultAspect3DShading(0.75f);
constinit TXmlAttribute<int> const DefaultBarColumnCount(1);
constinit TXmlAttribute<int> const DefaultBarRowCount(3);
constinit TXmlAttribute<int> const DefaultColumnCount(1);
constinit TXmlAttribute<int> const DefaultDotSize(4);
constinit TXmlAttribute<int> const DefaultHyphenationCharCount(2);
constinit TXmlAttribute<float> const DefaultMaxFloat(2147483648.0f);
constinit TXmlAttribute<float> const DefaultMinFloat(-2147483648.0f);
constinit TXmlAttribute<int> const DefaultWidowsAndOrphans(2);

} // namespace Xml
