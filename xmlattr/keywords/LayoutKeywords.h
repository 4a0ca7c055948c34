// Keywords of layout and pagination.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// absolute-position of XSL-FO.
enum class XMLATTR_API AbsolutePosition : std::int32_t { Auto = 0, Absolute = 1, Fixed = 2 };
template <> struct Keywords<AbsolutePosition> {
    using enum AbsolutePosition;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<AbsolutePosition> rows[] = {
        {u"auto", Auto}, {u"absolute", Absolute}, {u"fixed", Fixed}};
    static constexpr bool unknownThrows = true;
};

// alignment-baseline of XSL-FO and SVG.
enum class XMLATTR_API AlignmentBaseline : std::int32_t {
    Auto = 0,
    Baseline = 1,
    BeforeEdge = 2,
    TextBeforeEdge = 3,
    Middle = 4,
    Central = 5,
    AfterEdge = 6,
    TextAfterEdge = 7,
    Ideographic = 8,
    Alphabetic = 9,
    Hanging = 10,
    Mathematical = 11,
    Top = 12,
    TextTop = 13,
    Bottom = 14,
    TextBottom = 15
};
template <> struct Keywords<AlignmentBaseline> {
    using enum AlignmentBaseline;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<AlignmentBaseline> rows[] = {
        {u"auto", Auto},
        {u"baseline", Baseline},
        {u"before-edge", BeforeEdge},
        {u"text-before-edge", TextBeforeEdge},
        {u"middle", Middle},
        {u"central", Central},
        {u"after-edge", AfterEdge},
        {u"text-after-edge", TextAfterEdge},
        {u"ideographic", Ideographic},
        {u"alphabetic", Alphabetic},
        {u"hanging", Hanging},
        {u"mathematical", Mathematical},
        {u"top", Top},
        {u"text-top", TextTop},
        {u"bottom", Bottom},
        {u"text-bottom", TextBottom},
    };
};

// The side at which a constrained object is aligned.
enum class XMLATTR_API AlignmentConstraint : std::int32_t {
    None = 0,
    Top = 1,
    Bottom = 2,
    Center = 3,
    Left = 4,
    Right = 5
};
template <> struct Keywords<AlignmentConstraint> {
    using enum AlignmentConstraint;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AlignmentConstraint> rows[] = {
        {u"none", None}, {u"top", Top}, {u"bottom", Bottom}, {u"center", Center}, {u"left", Left}, {u"right", Right},
    };
    static constexpr std::u16string_view unknownPrints = u"none";
};

// background-repeat of XSL-FO.
enum class XMLATTR_API BackgroundRepeat : std::int32_t { Repeat = 0, RepeatX = 1, RepeatY = 2, NoRepeat = 3 };
template <> struct Keywords<BackgroundRepeat> {
    using enum BackgroundRepeat;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BackgroundRepeat> rows[] = {
        {u"repeat", Repeat}, {u"repeat-x", RepeatX}, {u"repeat-y", RepeatY}, {u"no-repeat", NoRepeat}};
};

// blank-or-not-blank of XSL-FO.
enum class XMLATTR_API BlankOrNotBlank : std::int32_t { Blank = 0, NotBlank = 1, Any = 2 };
template <> struct Keywords<BlankOrNotBlank> {
    using enum BlankOrNotBlank;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BlankOrNotBlank> rows[] = {{u"blank", Blank}, {u"not-blank", NotBlank}, {u"any", Any}};
    static constexpr bool printsEmpty = true;
};

// border-collapse of XSL-FO.
enum class XMLATTR_API BorderCollapse : std::int32_t { Collapse = 0, CollapseWithPrecedence = 1, Separate = 2 };
template <> struct Keywords<BorderCollapse> {
    using enum BorderCollapse;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BorderCollapse> rows[] = {
        {u"collapse", Collapse}, {u"collapse-with-precedence", CollapseWithPrecedence}, {u"separate", Separate}};
};

// The .conditionality of borders, paddings and spaces in XSL-FO.
enum class XMLATTR_API BorderConditionality : std::int32_t { Discard = 0, Retain = 1 };
template <> struct Keywords<BorderConditionality> {
    using enum BorderConditionality;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BorderConditionality> rows[] = {{u"discard", Discard}, {u"retain", Retain}};
};

// border-style and rule-style of XSL-FO.
enum class XMLATTR_API BorderStyle : std::int32_t {
    None = 0,
    Inset = 1,
    Groove = 2,
    Outset = 3,
    Ridge = 4,
    Dotted = 5,
    Dashed = 6,
    Solid = 7,
    Double = 8,
    Hidden = 9
};
template <> struct Keywords<BorderStyle> {
    using enum BorderStyle;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<BorderStyle> rows[] = {
        {u"none", None},     {u"inset", Inset},   {u"groove", Groove}, {u"outset", Outset}, {u"ridge", Ridge},
        {u"dotted", Dotted}, {u"dashed", Dashed}, {u"solid", Solid},   {u"double", Double}, {u"hidden", Hidden},
    };
};

// break-before and break-after of XSL-FO. Intended: each kind is a set of bits, so that every page break is also a
// column break: a page is 2 + 1, an even page 4 + 2 + 1, an odd page 8 + 2 + 1.
enum class XMLATTR_API Break : std::int32_t { Auto = 0, Column = 1, Page = 3, EvenPage = 7, OddPage = 11 };
template <> struct Keywords<Break> {
    using enum Break;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Break> rows[] = {
        {u"auto", Auto}, {u"column", Column}, {u"page", Page}, {u"even-page", EvenPage}, {u"odd-page", OddPage}};
};

// clear of XSL-FO, without "start" and "end".
enum class XMLATTR_API Clear : std::int32_t { None = 0, Right = 1, Left = 2, Both = 3 };
template <> struct Keywords<Clear> {
    using enum Clear;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Clear> rows[] = {{u"none", None}, {u"right", Right}, {u"left", Left}, {u"both", Both}};
    static constexpr std::u16string_view unknownPrints = u"none";
};

// display-align of XSL-FO. Intended: "auto" is refused.
enum class XMLATTR_API DisplayAlign : std::int32_t { Before = 0, After = 1, Center = 2 };
template <> struct Keywords<DisplayAlign> {
    using enum DisplayAlign;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<DisplayAlign> rows[] = {{u"before", Before}, {u"after", After}, {u"center", Center}};
};

// How often a constrained object is shown.
enum class XMLATTR_API DisplayStrategyConstraint : std::int32_t { OncePerPage = 0, OncePerDocument = 1 };
template <> struct Keywords<DisplayStrategyConstraint> {
    using enum DisplayStrategyConstraint;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DisplayStrategyConstraint> rows[] = {{u"once-per-page", OncePerPage},
                                                                     {u"once-per-document", OncePerDocument}};
    // Intended: a word that is not accepted.
    static constexpr std::u16string_view unknownPrints = u"none";
};

// dominant-baseline of XSL-FO and SVG.
enum class XMLATTR_API DominantBaseline : std::int32_t {
    Auto = 0,
    UseScript = 1,
    NoChange = 2,
    ResetSize = 3,
    Ideographic = 4,
    Alphabetic = 5,
    Hanging = 6,
    Mathematical = 7,
    Central = 8,
    Middle = 9,
    TextAfterEdge = 10,
    TextBeforeEdge = 11
};
template <> struct Keywords<DominantBaseline> {
    using enum DominantBaseline;
    static constexpr Case rule = Case::Any;
    // Intended: "ideographic" and "alphabetic" read as ResetSize; 4 and 5 print but are never read.
    static constexpr KeywordRow<DominantBaseline> rows[] = {
        {u"auto", Auto},
        {u"use-script", UseScript},
        {u"no-change", NoChange},
        {u"reset-size", ResetSize},
        {u"ideographic", ResetSize},
        {u"alphabetic", ResetSize},
        {u"hanging", Hanging},
        {u"mathematical", Mathematical},
        {u"central", Central},
        {u"middle", Middle},
        {u"text-after-edge", TextAfterEdge},
        {u"text-before-edge", TextBeforeEdge},
    };
    static constexpr KeywordRow<DominantBaseline> printRows[] = {
        {u"auto", Auto},
        {u"use-script", UseScript},
        {u"no-change", NoChange},
        {u"reset-size", ResetSize},
        {u"ideographic", Ideographic},
        {u"alphabetic", Alphabetic},
        {u"hanging", Hanging},
        {u"mathematical", Mathematical},
        {u"central", Central},
        {u"middle", Middle},
        {u"text-after-edge", TextAfterEdge},
        {u"text-before-edge", TextBeforeEdge},
    };
    static constexpr std::u16string_view unknownPrints = u"auto";
};

// The side to which an object floats.
enum class FloatPosition : std::int32_t { Left = 0, Right = 1 };
template <> struct Keywords<FloatPosition> {
    using enum FloatPosition;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FloatPosition> rows[] = {{u"left", Left}, {u"right", Right}};
};

// Where the numbers of footnotes start again.
enum class XMLATTR_API FootnoteRestartRule : std::int32_t { Auto = 0, Page = 1 };
template <> struct Keywords<FootnoteRestartRule> {
    using enum FootnoteRestartRule;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<FootnoteRestartRule> rows[] = {{u"auto", Auto}, {u"page", Page}};
    static constexpr bool printsEmpty = true;
};

// leader-alignment of XSL-FO.
enum class XMLATTR_API LeaderAlignment : std::int32_t { None = 0, ReferenceArea = 1, Page = 2 };
template <> struct Keywords<LeaderAlignment> {
    using enum LeaderAlignment;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<LeaderAlignment> rows[] = {
        {u"none", None}, {u"reference-area", ReferenceArea}, {u"page", Page}};
};

// leader-pattern of XSL-FO.
enum class XMLATTR_API LeaderPattern : std::int32_t { Space = 0, Rule = 1, Dots = 2, UseContent = 3 };
template <> struct Keywords<LeaderPattern> {
    using enum LeaderPattern;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<LeaderPattern> rows[] = {
        {u"space", Space}, {u"rule", Rule}, {u"dots", Dots}, {u"use-content", UseContent}};
};

// linefeed-treatment of XSL-FO.
enum class LinefeedTreatment : std::int32_t { Ignore = 0, Preserve = 1, TreatAsSpace = 2, TreatAsZeroWidthSpace = 3 };
template <> struct Keywords<LinefeedTreatment> {
    using enum LinefeedTreatment;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<LinefeedTreatment> rows[] = {{u"ignore", Ignore},
                                                             {u"preserve", Preserve},
                                                             {u"treat-as-space", TreatAsSpace},
                                                             {u"treat-as-zero-width-space", TreatAsZeroWidthSpace}};
};

// line-height-shift-adjustment of XSL-FO.
enum class XMLATTR_API LineHeightShiftAdjustment : std::int32_t { ConsiderShifts = 0, DisregardShifts = 1 };
template <> struct Keywords<LineHeightShiftAdjustment> {
    using enum LineHeightShiftAdjustment;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<LineHeightShiftAdjustment> rows[] = {{u"consider-shifts", ConsiderShifts},
                                                                     {u"disregard-shifts", DisregardShifts}};
};

// line-stacking-strategy of XSL-FO.
enum class XMLATTR_API LineStackingStrategy : std::int32_t { LineHeight = 0, FontHeight = 1, MaxHeight = 2 };
template <> struct Keywords<LineStackingStrategy> {
    using enum LineStackingStrategy;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<LineStackingStrategy> rows[] = {
        {u"line-height", LineHeight}, {u"font-height", FontHeight}, {u"max-height", MaxHeight}};
};

// The margin in which a marginal note stands.
enum class XMLATTR_API MarginaliaDestinationArea : std::int32_t { Start = 0, End = 1, Inside = 2, Outside = 3 };
template <> struct Keywords<MarginaliaDestinationArea> {
    using enum MarginaliaDestinationArea;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<MarginaliaDestinationArea> rows[] = {
        {u"start", Start}, {u"end", End}, {u"inside", Inside}, {u"outside", Outside}};
};

// How a marginal note is aligned with the line it belongs to.
enum class XMLATTR_API MarginaliaRelativeAlign : std::int32_t { Before = 0, Baseline = 1, End = 2 };
template <> struct Keywords<MarginaliaRelativeAlign> {
    using enum MarginaliaRelativeAlign;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<MarginaliaRelativeAlign> rows[] = {
        {u"before", Before}, {u"baseline", Baseline}, {u"end", End}};
};

// overflow of XSL-FO and SVG.
enum class XMLATTR_API Overflow : std::int32_t {
    Visible = 0,
    Hidden = 1,
    ErrorIfOverflow = 2,
    FitContentIfOverflow = 6
};
template <> struct Keywords<Overflow> {
    using enum Overflow;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Overflow> rows[] = {
        {u"visible", Visible},
        {u"hidden", Hidden},
        {u"error-if-overflow", ErrorIfOverflow},
        {u"fitcontent-if-overflow", FitContentIfOverflow},
        // Intended: these three print back as "visible" and "hidden".
        {u"repeat", Visible},
        {u"scroll", Hidden},
        {u"auto", Visible},
    };
};

// The pages to which a constraint applies.
enum class XMLATTR_API PageConstraint : std::int32_t { Any = 0, Odd = 1, Even = 2, First = 3, Last = 4 };
template <> struct Keywords<PageConstraint> {
    using enum PageConstraint;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PageConstraint> rows[] = {
        {u"any", Any}, {u"odd", Odd}, {u"even", Even}, {u"first", First}, {u"last", Last}};
};

// page-position of XSL-FO.
enum class XMLATTR_API PagePosition : std::int32_t { First = 0, Last = 1, Rest = 2, Any = 3, Only = 4 };
template <> struct Keywords<PagePosition> {
    using enum PagePosition;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<PagePosition> rows[] = {
        {u"first", First}, {u"last", Last}, {u"rest", Rest}, {u"any", Any}, {u"only", Only}};
    static constexpr bool printsEmpty = true;
};

// The region of the page to which a constraint applies.
enum class XMLATTR_API PageRegionConstraint : std::int32_t {
    None = 0,
    Body = 1,
    Header = 2,
    Footer = 3,
    Left = 4,
    Right = 5
};
template <> struct Keywords<PageRegionConstraint> {
    using enum PageRegionConstraint;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PageRegionConstraint> rows[] = {
        {u"none", None}, {u"body", Body}, {u"header", Header}, {u"footer", Footer}, {u"left", Left}, {u"right", Right},
    };
    static constexpr std::u16string_view unknownPrints = u"none";
};

// odd-or-even of XSL-FO.
enum class XMLATTR_API Parity : std::int32_t { Odd = 0, Even = 1, Any = 2 };
template <> struct Keywords<Parity> {
    using enum Parity;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Parity> rows[] = {{u"odd", Odd}, {u"even", Even}, {u"any", Any}};
    static constexpr bool printsEmpty = true;
};

// A horizontal position.
enum class XMLATTR_API PositionX : std::int32_t { Auto = 0, Left = 1, Center = 2, Right = 3 };
template <> struct Keywords<PositionX> {
    using enum PositionX;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PositionX> rows[] = {
        {u"auto", Auto}, {u"left", Left}, {u"center", Center}, {u"right", Right}};
};

// A vertical position.
enum class XMLATTR_API PositionY : std::int32_t { Auto = 0, Top = 1, Middle = 2, Bottom = 3 };
template <> struct Keywords<PositionY> {
    using enum PositionY;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PositionY> rows[] = {
        {u"auto", Auto}, {u"top", Top}, {u"middle", Middle}, {u"bottom", Bottom}};
    static constexpr bool printsEmpty = true;
};

// relative-position of XSL-FO.
enum class XMLATTR_API RelativePosition : std::int32_t { Static = 0, Relative = 1 };
template <> struct Keywords<RelativePosition> {
    using enum RelativePosition;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RelativePosition> rows[] = {{u"static", Static}, {u"relative", Relative}};
    static constexpr bool unknownThrows = true;
};

// retrieve-boundary of XSL-FO.
enum class XMLATTR_API RetrieveBoundary : std::int32_t { Page = 0, PageSequence = 1, Document = 2 };
template <> struct Keywords<RetrieveBoundary> {
    using enum RetrieveBoundary;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RetrieveBoundary> rows[] = {
        {u"page", Page}, {u"page-sequence", PageSequence}, {u"document", Document}};
};

// retrieve-boundary-within-table of XSL-FO.
enum class XMLATTR_API RetrieveBoundaryWithinTable : std::int32_t { Table = 0, TableFragment = 1, Page = 2 };
template <> struct Keywords<RetrieveBoundaryWithinTable> {
    using enum RetrieveBoundaryWithinTable;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RetrieveBoundaryWithinTable> rows[] = {
        {u"table", Table}, {u"table-fragment", TableFragment}, {u"page", Page}};
    static constexpr bool printsEmpty = true;
};

// retrieve-position of XSL-FO.
enum class XMLATTR_API RetrievePosition : std::int32_t {
    FirstStartingWithinPage = 0,
    FirstIncludingCarryover = 1,
    LastStartingWithinPage = 2,
    LastEndingWithinPage = 3
};
template <> struct Keywords<RetrievePosition> {
    using enum RetrievePosition;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RetrievePosition> rows[] = {
        {u"first-starting-within-page", FirstStartingWithinPage},
        {u"first-including-carryover", FirstIncludingCarryover},
        {u"last-starting-within-page", LastStartingWithinPage},
        {u"last-ending-within-page", LastEndingWithinPage},
    };
};

// retrieve-position-within-table of XSL-FO.
enum class XMLATTR_API RetrievePositionWithinTable : std::int32_t {
    FirstStarting = 0,
    FirstIncludingCarryover = 1,
    LastStarting = 2,
    LastEnding = 3
};
template <> struct Keywords<RetrievePositionWithinTable> {
    using enum RetrievePositionWithinTable;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<RetrievePositionWithinTable> rows[] = {
        {u"first-starting", FirstStarting},
        {u"first-including-carryover", FirstIncludingCarryover},
        {u"last-starting", LastStarting},
        {u"last-ending", LastEnding},
    };
};

// scaling of XSL-FO.
enum class XMLATTR_API Scaling : std::int32_t { Uniform = 0, NonUniform = 1 };
template <> struct Keywords<Scaling> {
    using enum Scaling;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Scaling> rows[] = {{u"uniform", Uniform}, {u"non-uniform", NonUniform}};
};

// What a scaled object is measured against.
enum class XMLATTR_API ScalingReference : std::int32_t { Line = 0, Block = 1 };
template <> struct Keywords<ScalingReference> {
    using enum ScalingReference;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ScalingReference> rows[] = {{u"line", Line}, {u"block", Block}};
};

// What counts as white space when free room is searched.
enum class XMLATTR_API SearchWhiteSpaceConstraint : std::int32_t { Empty = 0, IncludingBordersAndBackground = 1 };
template <> struct Keywords<SearchWhiteSpaceConstraint> {
    using enum SearchWhiteSpaceConstraint;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<SearchWhiteSpaceConstraint> rows[] = {
        {u"empty", Empty}, {u"including-borders-and-background", IncludingBordersAndBackground}};
    // Intended: a word that is not accepted.
    static constexpr std::u16string_view unknownPrints = u"none";
};

// span of XSL-FO.
enum class XMLATTR_API Span : std::int32_t { None = 0, All = 1 };
template <> struct Keywords<Span> {
    using enum Span;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Span> rows[] = {{u"none", None}, {u"all", All}};
};

// What fills the room before a tab stop.
enum class XMLATTR_API TabPattern : std::int32_t { None = 0, Dot = 1, Hyphen = 2, Underscore = 3 };
template <> struct Keywords<TabPattern> {
    using enum TabPattern;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<TabPattern> rows[] = {
        {u"none", None}, {u"dot", Dot}, {u"hyphen", Hyphen}, {u"underscore", Underscore}};
};

// How a text is aligned at a tab stop.
enum class XMLATTR_API TabStopType : std::int32_t { Left = 0, Center = 1, Right = 2 };
template <> struct Keywords<TabStopType> {
    using enum TabStopType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<TabStopType> rows[] = {{u"left", Left}, {u"center", Center}, {u"right", Right}};
};

// table-layout of XSL-FO.
enum class XMLATTR_API TableLayout : std::int32_t { Auto = 0, Fixed = 1 };
template <> struct Keywords<TableLayout> {
    using enum TableLayout;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<TableLayout> rows[] = {{u"auto", Auto}, {u"fixed", Fixed}};
};

// direction of XSL-FO and SVG.
enum class XMLATTR_API TextDirection : std::int32_t { Ltr = 0, Rtl = 1 };
template <> struct Keywords<TextDirection> {
    using enum TextDirection;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<TextDirection> rows[] = {{u"ltr", Ltr}, {u"rtl", Rtl}};
};

// text-transform of XSL-FO.
enum class XMLATTR_API TextTransform : std::int32_t { None = 0, Uppercase = 1, Lowercase = 2, Capitalize = 3 };
template <> struct Keywords<TextTransform> {
    using enum TextTransform;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<TextTransform> rows[] = {
        {u"none", None}, {u"uppercase", Uppercase}, {u"lowercase", Lowercase}, {u"capitalize", Capitalize}};
};

// visibility of XSL-FO. Intended: SVisibility has the same words with other numbers and is exact in case.
enum class Visibility : std::int32_t { Visible = 0, Hidden = 1, Collapse = 2 };
template <> struct Keywords<Visibility> {
    using enum Visibility;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Visibility> rows[] = {
        {u"visible", Visible}, {u"hidden", Hidden}, {u"collapse", Collapse}};
};

// white-space-treatment of XSL-FO.
enum class WhiteSpaceTreatment : std::int32_t {
    Ignore = 0,
    Preserve = 1,
    IgnoreIfBeforeLinefeed = 2,
    IgnoreIfAfterLinefeed = 3,
    IgnoreIfSurroundingLinefeed = 4
};
template <> struct Keywords<WhiteSpaceTreatment> {
    using enum WhiteSpaceTreatment;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<WhiteSpaceTreatment> rows[] = {
        {u"ignore", Ignore},
        {u"preserve", Preserve},
        {u"ignore-if-before-linefeed", IgnoreIfBeforeLinefeed},
        {u"ignore-if-after-linefeed", IgnoreIfAfterLinefeed},
        {u"ignore-if-surrounding-linefeed", IgnoreIfSurroundingLinefeed},
    };
};

// How text runs around an object.
enum class Wrap : std::int32_t {
    Inline = 0,
    Square = 1,
    Tight = 2,
    Through = 3,
    TopAndBottom = 4,
    BehindText = 5,
    InFrontOfText = 6
};
template <> struct Keywords<Wrap> {
    using enum Wrap;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Wrap> rows[] = {
        {u"inline", Inline},
        {u"square", Square},
        {u"tight", Tight},
        {u"through", Through},
        {u"topandbottom", TopAndBottom},
        {u"behindtext", BehindText},
        {u"infrontoftext", InFrontOfText},
    };
};

// wrap-option of XSL-FO.
enum class WrapOption : std::int32_t { Wrap = 0, NoWrap = 1 };
template <> struct Keywords<WrapOption> {
    using enum WrapOption;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<WrapOption> rows[] = {{u"wrap", Wrap}, {u"no-wrap", NoWrap}};
};

// What a horizontal position is relative to. No keyword gives 1.
enum class XMLATTR_API AnchorX : std::int32_t { Auto = 0, Body = 2, Page = 3, Character = 4, Text = 5 };
template <> struct Keywords<AnchorX> {
    using enum AnchorX;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AnchorX> rows[] = {
        {u"auto", Auto}, {u"body", Body}, {u"page", Page}, {u"character", Character}, {u"text", Text}};
    static constexpr bool printsEmpty = true;
};

// What a vertical position is relative to.
enum class XMLATTR_API AnchorY : std::int32_t { Auto = 0, Body = 1, Page = 2, Block = 3, Line = 4 };
template <> struct Keywords<AnchorY> {
    using enum AnchorY;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AnchorY> rows[] = {
        {u"auto", Auto}, {u"body", Body}, {u"page", Page}, {u"block", Block}, {u"line", Line}};
    static constexpr bool printsEmpty = true;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
