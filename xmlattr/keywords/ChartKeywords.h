// Keywords of charts and of the data they show.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The kind of a chart. No keyword gives 3.
enum class XMLATTR_API ChartType : std::int32_t { Line = 0, Bar = 1, Area = 2, Pie = 4, Spider = 5 };
template <> struct Keywords<ChartType> {
    using enum ChartType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ChartType> rows[] = {
        {u"line", Line}, {u"bar", Bar}, {u"area", Area}, {u"pie", Pie}, {u"spider", Spider}};
    static constexpr bool printsEmpty = true;
};

// How the series of a chart share a category. Intended: "stacked100%" here is "100-stacked" in SerieGrouping.
enum class XMLATTR_API ChartStyle : std::int32_t { Clustered = 0, Stacked = 1, Stacked100 = 2, Stacked3d = 3 };
template <> struct Keywords<ChartStyle> {
    using enum ChartStyle;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ChartStyle> rows[] = {
        {u"clustered", Clustered}, {u"stacked", Stacked}, {u"stacked100%", Stacked100}, {u"stacked3d", Stacked3d}};
    static constexpr std::u16string_view unknownPrints = u"clustered";
};

// The colours of a chart: a theme X of eight in its variant Y of four is "styleXY".
// clang-format off
enum class XMLATTR_API ChartTheme : std::int32_t {
    None = 0,
    Style11 = 1, Style12 = 2, Style13 = 3, Style14 = 4,
    Style21 = 5, Style22 = 6, Style23 = 7, Style24 = 8,
    Style31 = 9, Style32 = 10, Style33 = 11, Style34 = 12,
    Style41 = 13, Style42 = 14, Style43 = 15, Style44 = 16,
    Style51 = 17, Style52 = 18, Style53 = 19, Style54 = 20,
    Style61 = 21, Style62 = 22, Style63 = 23, Style64 = 24,
    Style71 = 25, Style72 = 26, Style73 = 27, Style74 = 28,
    Style81 = 29, Style82 = 30, Style83 = 31, Style84 = 32
};
template <> struct Keywords<ChartTheme> {
    using enum ChartTheme;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<ChartTheme> rows[] = {
        {u"none", None},
        {u"style11", Style11}, {u"style12", Style12}, {u"style13", Style13}, {u"style14", Style14},
        {u"style21", Style21}, {u"style22", Style22}, {u"style23", Style23}, {u"style24", Style24},
        {u"style31", Style31}, {u"style32", Style32}, {u"style33", Style33}, {u"style34", Style34},
        {u"style41", Style41}, {u"style42", Style42}, {u"style43", Style43}, {u"style44", Style44},
        {u"style51", Style51}, {u"style52", Style52}, {u"style53", Style53}, {u"style54", Style54},
        {u"style61", Style61}, {u"style62", Style62}, {u"style63", Style63}, {u"style64", Style64},
        {u"style71", Style71}, {u"style72", Style72}, {u"style73", Style73}, {u"style74", Style74},
        {u"style81", Style81}, {u"style82", Style82}, {u"style83", Style83}, {u"style84", Style84}};
    static constexpr bool printsEmpty = true;
};
// clang-format on

// The data along an axis.
enum class XMLATTR_API AxisDataType : std::int32_t { Auto = 0, Number = 1, Currency = 2, Date = 3, String = 4 };
template <> struct Keywords<AxisDataType> {
    using enum AxisDataType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AxisDataType> rows[] = {
        {u"auto", Auto}, {u"number", Number}, {u"currency", Currency}, {u"date", Date}, {u"string", String}};
    static constexpr bool printsEmpty = true;
};

// Where one axis crosses the other.
enum class XMLATTR_API AxisIntersection : std::int32_t { Max = 0, Min = 1, Auto = 2 };
template <> struct Keywords<AxisIntersection> {
    using enum AxisIntersection;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AxisIntersection> rows[] = {{u"max", Max}, {u"min", Min}, {u"auto", Auto}};
    static constexpr bool printsEmpty = true;
};

// The direction of an axis.
enum class XMLATTR_API AxisOrientation : std::int32_t { Auto = 0, Vertical = 1, Horizontal = 2 };
template <> struct Keywords<AxisOrientation> {
    using enum AxisOrientation;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AxisOrientation> rows[] = {
        {u"auto", Auto}, {u"vertical", Vertical}, {u"horizontal", Horizontal}};
    static constexpr bool printsEmpty = true;
};

// The side of the chart at which an axis stands.
enum class XMLATTR_API AxisPosition : std::int32_t { Top = 0, Left = 1, Bottom = 2, Right = 3 };
template <> struct Keywords<AxisPosition> {
    using enum AxisPosition;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AxisPosition> rows[] = {
        {u"top", Top}, {u"left", Left}, {u"bottom", Bottom}, {u"right", Right}};
    static constexpr bool printsEmpty = true;
};

// The shape of the bars.
enum class XMLATTR_API BarShapeType : std::int32_t { Bar = 0, Cylinder = 1, Pyramid = 2, Cone = 3 };
template <> struct Keywords<BarShapeType> {
    using enum BarShapeType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<BarShapeType> rows[] = {
        {u"bar", Bar}, {u"cylinder", Cylinder}, {u"pyramid", Pyramid}, {u"cone", Cone}};
    static constexpr bool printsEmpty = true;
};

// The shape of a pie.
enum class XMLATTR_API PieShapeType : std::int32_t { Pie = 0, Doughnut = 1 };
template <> struct Keywords<PieShapeType> {
    using enum PieShapeType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PieShapeType> rows[] = {{u"pie", Pie}, {u"doughnut", Doughnut}};
    static constexpr bool printsEmpty = true;
};

// Where the caption of a data point stands.
enum class XMLATTR_API CaptionPlacement : std::int32_t {
    Auto = 0,
    OutsideEnd = 1,
    Center = 2,
    InsideEnd = 3,
    InsideBase = 4
};
template <> struct Keywords<CaptionPlacement> {
    using enum CaptionPlacement;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<CaptionPlacement> rows[] = {
        {u"auto", Auto},
        {u"outside-end", OutsideEnd},
        {u"center", Center},
        {u"inside-end", InsideEnd},
        {u"inside-base", InsideBase},
    };
    static constexpr bool printsEmpty = true;
};

// The direction of the values written along an axis.
enum class XMLATTR_API DisplayValOrientation : std::int32_t { Horizontal = 0, Vertical = 1, Oblique = 2 };
template <> struct Keywords<DisplayValOrientation> {
    using enum DisplayValOrientation;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DisplayValOrientation> rows[] = {
        {u"horizontal", Horizontal}, {u"vertical", Vertical}, {u"oblique", Oblique}};
    static constexpr bool printsEmpty = true;
};

// Whether values stand at the tick marks or between them.
enum class XMLATTR_API DisplayValPlacement : std::int32_t { Center = 0, Between = 1, Auto = 2 };
template <> struct Keywords<DisplayValPlacement> {
    using enum DisplayValPlacement;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DisplayValPlacement> rows[] = {
        {u"center", Center}, {u"centered", Center}, {u"between", Between}, {u"auto", Auto}};
    static constexpr bool printsEmpty = true;
};

// Which grid lines are drawn.
enum class XMLATTR_API GridlineType : std::int32_t { None = 0, Minor = 1, Major = 2, MajorMinor = 3 };
template <> struct Keywords<GridlineType> {
    using enum GridlineType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<GridlineType> rows[] = {
        {u"none", None}, {u"minor", Minor}, {u"major", Major}, {u"major-minor", MajorMinor}};
    static constexpr bool printsEmpty = true;
};

// Whether labels stand inside the plot or outside.
enum class XMLATTR_API LabelsPosition : std::int32_t { Inclusive = 0, Exclusive = 1 };
template <> struct Keywords<LabelsPosition> {
    using enum LabelsPosition;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<LabelsPosition> rows[] = {{u"inclusive", Inclusive}, {u"exclusive", Exclusive}};
    static constexpr bool printsEmpty = true;
};

// Where the legend stands.
enum class XMLATTR_API LegendPlacement : std::int32_t { Top = 0, Left = 1, Bottom = 2, Right = 3, Custom = 4 };
template <> struct Keywords<LegendPlacement> {
    using enum LegendPlacement;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<LegendPlacement> rows[] = {
        {u"top", Top}, {u"left", Left}, {u"bottom", Bottom}, {u"right", Right}, {u"custom", Custom}};
    // Intended: Custom prints nothing.
    static constexpr KeywordRow<LegendPlacement> printRows[] = {
        {u"top", Top}, {u"left", Left}, {u"bottom", Bottom}, {u"right", Right}};
};

// The marker of a data point.
enum class XMLATTR_API MarkerType : std::int32_t {
    Unset = 0,
    Square = 1,
    Line = 2,
    Circle = 3,
    Triangle = 4,
    Rhombus = 5
};
template <> struct Keywords<MarkerType> {
    using enum MarkerType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<MarkerType> rows[] = {
        {u"square", Square}, {u"line", Line}, {u"circle", Circle}, {u"triangle", Triangle}, {u"rhombus", Rhombus},
    };
    static constexpr bool printsEmpty = true;
};

// How several series are drawn together.
enum class XMLATTR_API SerieGrouping : std::int32_t { Overlapped = 0, Clustered = 1, Stacked = 2, Stacked100 = 3 };
template <> struct Keywords<SerieGrouping> {
    using enum SerieGrouping;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<SerieGrouping> rows[] = {
        {u"overlapped", Overlapped}, {u"clustered", Clustered}, {u"stacked", Stacked}, {u"100-stacked", Stacked100}};
    static constexpr bool printsEmpty = true;
};

// The direction in which the slices of a pie follow each other.
enum class XMLATTR_API SliceOrientation : std::int32_t { Clockwise = 0, CounterClockwise = 1 };
template <> struct Keywords<SliceOrientation> {
    using enum SliceOrientation;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<SliceOrientation> rows[] = {{u"clockwise", Clockwise},
                                                            {u"counterclockwise", CounterClockwise}};
    static constexpr bool printsEmpty = true;
};

// On which side of the axis tick marks are drawn.
enum class XMLATTR_API TickMarkStyle : std::int32_t { None = 0, Inside = 1, Cross = 2, Outside = 3 };
template <> struct Keywords<TickMarkStyle> {
    using enum TickMarkStyle;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<TickMarkStyle> rows[] = {
        {u"none", None}, {u"inside", Inside}, {u"cross", Cross}, {u"outside", Outside}};
    static constexpr bool printsEmpty = true;
};

// Which tick marks are drawn.
enum class XMLATTR_API TickMarkType : std::int32_t { Minor = 0, Major = 1, MajorMinor = 2 };
template <> struct Keywords<TickMarkType> {
    using enum TickMarkType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<TickMarkType> rows[] = {
        {u"minor", Minor}, {u"major", Major}, {u"major-minor", MajorMinor}};
    static constexpr bool printsEmpty = true;
};

// The type of the data in a dimension.
enum class XMLATTR_API DimensionType : std::int32_t {
    String = 0,
    Int = 1,
    Float = 2,
    Int64 = 3,
    Double = 4,
    Short = 5,
    Date = 6,
    Auto = 7
};
template <> struct Keywords<DimensionType> {
    using enum DimensionType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<DimensionType> rows[] = {
        {u"string", String}, {u"int", Int},     {u"float", Float}, {u"int64", Int64},
        {u"double", Double}, {u"short", Short}, {u"date", Date},   {u"auto", Auto},
    };
};

// The order of the data.
enum class XMLATTR_API SortTypes : std::int32_t { Ascending = 0, Descending = 1, None = 2 };
template <> struct Keywords<SortTypes> {
    using enum SortTypes;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<SortTypes> rows[] = {
        {u"ascending", Ascending}, {u"descending", Descending}, {u"none", None}};
};

// How two data sources of a chart are joined.
enum class XMLATTR_API JoinFunctionType : std::int32_t { Inner = 0, Left = 1, Right = 2, Outer = 3 };
template <> struct Keywords<JoinFunctionType> {
    using enum JoinFunctionType;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<JoinFunctionType> rows[] = {
        {u"inner", Inner}, {u"left", Left}, {u"right", Right}, {u"outer", Outer}};
    static constexpr std::u16string_view unknownPrints = u"inner";
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
