// Keywords of SVG, graphics and media objects.
#pragma once

#include "xmlattr/drawing/FillMode.h"
#include "xmlattr/drawing/Gradients.h"
#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// display of SVG 1.1.
enum class XMLATTR_API SDisplay : std::int32_t {
    Inline = 0,
    Block = 1,
    ListItem = 2,
    RunIn = 3,
    Compact = 4,
    Marker = 5,
    Table = 6,
    InlineTable = 7,
    TableRowGroup = 8,
    TableHeaderGroup = 9,
    TableFooterGroup = 10,
    TableRow = 11,
    TableColumnGroup = 12,
    TableColumn = 13,
    TableCell = 14,
    TableCaption = 15,
    None = 16
};
template <> struct Keywords<SDisplay> {
    using enum SDisplay;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<SDisplay> rows[] = {
        {u"inline", Inline},
        {u"block", Block},
        {u"list-item", ListItem},
        {u"run-in", RunIn},
        {u"compact", Compact},
        {u"marker", Marker},
        {u"table", Table},
        {u"inline-table", InlineTable},
        {u"table-row-group", TableRowGroup},
        {u"table-header-group", TableHeaderGroup},
        {u"table-footer-group", TableFooterGroup},
        {u"table-row", TableRow},
        {u"table-column-group", TableColumnGroup},
        {u"table-column", TableColumn},
        {u"table-cell", TableCell},
        {u"table-caption", TableCaption},
        {u"none", None},
    };
    static constexpr bool printsEmpty = true;
};

// stroke-linecap of SVG 1.1. Intended: "round" is 1 here and 2 in SLineJoin.
enum class XMLATTR_API SLineCap : std::int32_t { Butt = 0, Round = 1, Square = 2 };
template <> struct Keywords<SLineCap> {
    using enum SLineCap;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<SLineCap> rows[] = {{u"butt", Butt}, {u"round", Round}, {u"square", Square}};
    static constexpr bool printsEmpty = true;
};

// stroke-linejoin of SVG 1.1.
enum class XMLATTR_API SLineJoin : std::int32_t { Miter = 0, Bevel = 1, Round = 2 };
template <> struct Keywords<SLineJoin> {
    using enum SLineJoin;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<SLineJoin> rows[] = {{u"miter", Miter}, {u"bevel", Bevel}, {u"round", Round}};
    static constexpr bool printsEmpty = true;
};

// text-anchor of SVG 1.1.
enum class XMLATTR_API STextAnchor : std::int32_t { Unset = 0, Start = 1, Middle = 2, End = 3 };
template <> struct Keywords<STextAnchor> {
    using enum STextAnchor;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<STextAnchor> rows[] = {{u"start", Start}, {u"middle", Middle}, {u"end", End}};
    static constexpr bool printsEmpty = true;
};

// visibility of SVG 1.1.
enum class XMLATTR_API SVisibility : std::int32_t { Unset = 0, Visible = 1, Hidden = 2, Collapse = 3 };
template <> struct Keywords<SVisibility> {
    using enum SVisibility;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<SVisibility> rows[] = {
        {u"visible", Visible}, {u"hidden", Hidden}, {u"collapse", Collapse}};
    static constexpr bool printsEmpty = true;
};

// fill-rule and clip-rule of SVG 1.1. Intended: any case, unlike its neighbours.
template <> struct Keywords<Drawing::FillMode> {
    using enum Drawing::FillMode;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<Drawing::FillMode> rows[] = {{u"nonzero", NonZero}, {u"evenodd", EvenOdd}};
};

// spreadMethod of SVG 1.1.
template <> struct Keywords<Drawing::GradientSpreadMethod> {
    using enum Drawing::GradientSpreadMethod;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Drawing::GradientSpreadMethod> rows[] = {
        {u"repeat", Repeat}, {u"reflect", Reflect}, {u"pad", Pad}};
    static constexpr bool printsEmpty = true;
};

// gradientUnits and its like of SVG 1.1.
template <> struct Keywords<Drawing::GradientUnits> {
    using enum Drawing::GradientUnits;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<Drawing::GradientUnits> rows[] = {{u"objectBoundingBox", ObjectBoundingBox},
                                                                  {u"userSpaceOnUse", UserSpaceOnUse}};
    static constexpr bool printsEmpty = true;
};

// When an embedded medium starts to play.
enum class XMLATTR_API PlayMediaObject : std::int32_t { OnClick = 0, OnPageVisible = 1, OnPageFocus = 2 };
template <> struct Keywords<PlayMediaObject> {
    using enum PlayMediaObject;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PlayMediaObject> rows[] = {
        {u"on-click", OnClick}, {u"on-page-visible", OnPageVisible}, {u"on-page-focus", OnPageFocus}};
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
