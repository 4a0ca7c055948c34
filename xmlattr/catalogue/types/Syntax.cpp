#include "xmlattr/catalogue/types/AttributeTypes.h"

namespace Xml {

namespace {

struct Row {
    std::string_view type, syntax;
};

// What `types` and `show` tell of a type: all of its syntax, or for an enumeration what it reads
// besides its keywords. The words in it are suggested to who mistypes one. In the order of ValueTypes.inc.
constexpr Row rows[] = {
    {"int", "a whole number"},
    {"float", "a number"},
    {"Core::String", "any text"},
    {"Drawing::RectF", "rect(LENGTH, LENGTH, LENGTH, LENGTH)"},
    {"Drawing::ImageFilter", "nearest, bilinear, bicubic or auto, in any case"},
    {"Length", "a number with px, pt, pc, cm, mm, in, em or ex, or 0"},
    {"SLength", "a number, a number with pt, pc, cm, mm, in, em or ex, or a percentage"},
    {"DLength", "one or two lengths"},
    {"SNullableLength", "an SLength"},
    {"Core::Vector<SLength>", "SLengths divided by blanks or commas, or none"},
    {"LengthOrPercent", "a length, a percentage, a number (1.5 is 150%) or normal (120%)"},
    {"LengthOrPercentAuto", "auto or a LengthOrPercent"},
    {"SLengthOrPercent", "an SLength or a percentage"},
    {"SNullableLengthOrPercent", "an SLengthOrPercent"},
    {"FloatOrPercent", "a number or a percentage"},
    {"Margin", "a LengthOrPercent"},
    {"ContentLength", "auto, scale-to-fit, scale-down-to-fit, scale-up-to-fit or a LengthOrPercent"},
    {"ColumnWidth", "a LengthOrPercent or proportional-column-width(NUMBER)"},
    {"Indent", "label-end(), body-start() or a LengthOrPercent"},
    {"AlignmentAdjust", "a keyword of AlignmentBaseline or a LengthOrPercent"},
    {"BaselineShift", "baseline, sub, super or a LengthOrPercent"},
    {"SBaselineShift", "baseline, sub, super or an SLengthOrPercent"},
    {"LeaderPatternWidth", "use-font-metrics or a LengthOrPercent"},
    {"BorderWidth", "thin, medium, thick or a length"},
    {"TableWidth", "a LengthOrPercent, or a call around one"},
    {"LetterSpacing", "normal or a length"},
    {"SSpacing", "normal or an SLength"},
    {"PageDimension", "auto, indefinite or a length"},
    {"FontSize", "xx-small, x-small, small, medium, large, x-large, xx-large, larger, smaller or a LengthOrPercent"},
    {"SFontSize", "xx-small, x-small, small, medium, large, x-large, xx-large, larger, smaller or an SLengthOrPercent"},
    {"FontStretch", "normal, wider, narrower, ultra-condensed, extra-condensed, condensed, semi-condensed, "
                    "semi-expanded, expanded, extra-expanded, ultra-expanded, inherit or a LengthOrPercent"},
    {"BackgroundPosition", "left, top, center, right, bottom or a LengthOrPercent"},
    {"BackgroundSize", "auto, contain, cover, stretch, fill or a LengthOrPercent"},
    {"TextAlign", "left, right, center, justify, start, end, inside, outside, relative or a text to align at"},
    {"SmartPtr<Drawing::Color>", "a colour name, #rgb, #rrggbb, rgb(), cmyk(), rgb-icc(), spot-color() or none"},
    {"SColor", "none, url(#ID) or a colour"},
    {"SNullableColor", "none, url(#ID) or a colour"},
    {"Core::Vector<Transform>", "matrix(), translate(), scale(), rotate(), skewX() and skewY() in any number"},
    {"Core::Vector<PathDataCommand>", "the path data of SVG 1.1"},
    {"Core::Vector<Point>", "pairs of SLengths"},
    {"ViewBox", "four SLengthOrPercents divided by blanks"},
    {"SPreserveAspectRatio", "none or an alignment like xMidYMid, then meet or slice"},
    {"BoxShadow", "up to three lengths and a colour"},
    {"STextShadow", "up to three SLengths and a paint"},
    {"STextDecoration", "underline, overline and line-through, divided by commas"},
    {"Language", "a two-letter code of ISO 639-1, cze, dan, eng, en-us, en-gb or en-au, in any case"},
    {"InitialPageNumber", "auto, auto-odd, auto-even, a number or multiple-of(NUMBER)"},
    {"InitialSheetNumber", "auto or a number"},
    {"ForcePageCount",
     "auto, even, odd, end-on-even, end-on-odd, no-force, multiple-of(NUMBER) or end-on-multiple-of(NUMBER)"},
    {"DisplayCondition", "is-after(), is-before() and match(), joined by and"},
    {"TPRule", "FIND_KEYWORD(TEXT)"},
    {"Url", "url(REFERENCE) or a reference as it stands"},
    {"AxisSource", "a field, or one inside of a function that groups dates: year(FIELD)"},
    {"AxisUnits", "auto, days, months, years or a number other than 0"},
    {"MaxDataPoints", "all or a whole number"},
    {"Value", "a date, a number or a text"},
    {"Keep", "also a whole number"},
    {"FontWeight", "also a whole number"},
    {"ReferenceOrientation", "also -90, -180 and -270"},
    {"MaxRepeats", "also a count; no text is refused"},
    {"ThreeState", "no text is refused"},
    {"SVGEObjectType", "no text is refused"},
};

} // namespace

std::string_view AttributeType::syntax() const {
    for (Row const& row : rows)
        if (row.type == name) return row.syntax;
    return {};
}

} // namespace Xml
