#include "xmlattr/catalogue/grammar/Agrees.h"
#include "xmlattr/catalogue/grammar/GrammarCompiler.h"

#include <gtest/gtest.h>

namespace Xml {
namespace {

// The verdict on a text: "same" or "other" value than the recommendation means, or "refused" by the type; "illegal"
// by the grammar.
template <class T> std::string judged(Grammar const& grammar, Dialect dialect, std::u16string_view text) {
    Meaning meaning;
    if (!readMeaning(meaning, grammar, dialect, text)) return "illegal";
    TXmlAttribute<T> attribute;
    if (!attribute.parseValue(Core::String(text))) return "refused";
    return agrees(meaning, attribute.getValue()) ? "same" : "other";
}

struct Row {
    std::u16string_view text;
    char const* judgement;
};

template <class T> void expectJudges(Grammar const& grammar, Dialect dialect, std::initializer_list<Row> rows) {
    for (Row const& row : rows)
        EXPECT_EQ(judged<T>(grammar, dialect, row.text), row.judgement)
            << grammar.text() << ": " << Core::String(row.text).toUtf8();
}

TEST(Agrees, MeasuresOfXslFo) {
    constexpr Grammar measure = "<length> | <percentage>"_grammar;
    constexpr Grammar autoOrMeasure = "auto | <length> | <percentage>"_grammar;
    expectJudges<Length>("<length>"_grammar, Dialect::Fo,
                         {{u"12pt", "same"},
                          {u"-1.25em", "same"},
                          {u"0", "same"},
                          {u"0.0", "refused"},
                          {u" 12pt", "refused"},
                          {u"0.1mm", "same"}});
    expectJudges<DLength>("<length>{1,2}"_grammar, Dialect::Fo, {{u"1pt", "same"}, {u"1pt 2mm", "same"}});
    expectJudges<LengthOrPercent>(measure, Dialect::Fo, {{u"33.3%", "same"}, {u"12pt", "same"}, {u"0", "same"}});
    expectJudges<LengthOrPercent>("normal | <number>"_grammar, Dialect::Fo, {{u"1.2", "same"}, {u"normal", "same"}});
    expectJudges<LengthOrPercentAuto>(autoOrMeasure, Dialect::Fo, {{u"auto", "same"}, {u"7%", "same"}});
    expectJudges<Margin>(autoOrMeasure, Dialect::Fo, {{u"auto", "refused"}, {u"-7pt", "same"}});
    expectJudges<TableWidth>(autoOrMeasure, Dialect::Fo, {{u"70%", "same"}});
    expectJudges<ColumnWidth>("<length> | proportional-column-width( <number> )"_grammar, Dialect::Fo,
                              {{u"3cm", "same"}, {u"proportional-column-width(2.5)", "same"}});
    expectJudges<Indent>("<length> | <percentage> | body-start( )"_grammar, Dialect::Fo,
                         {{u"3cm", "same"}, {u"10%", "same"}, {u"body-start()", "same"}});
    expectJudges<ContentLength>("scale-to-fit | <length> | <percentage>"_grammar, Dialect::Fo,
                                {{u"scale-to-fit", "same"}, {u"3cm", "same"}, {u"150%", "same"}});
    expectJudges<FontSize>(
        "<font-size>"_grammar, Dialect::Fo,
        {{u"larger", "same"}, {u"x-small", "same"}, {u"12pt", "same"}, {u"120%", "same"}, {u"12", "illegal"}});
    expectJudges<FontStretch>("<font-stretch>"_grammar, Dialect::Fo, {{u"wider", "same"}});
    expectJudges<BorderWidth>("<border-width>"_grammar, Dialect::Fo, {{u"thin", "same"}, {u"2pt", "same"}});
    expectJudges<LetterSpacing>("normal | <length>"_grammar, Dialect::Fo, {{u"normal", "same"}, {u"-2pt", "same"}});
    expectJudges<PageDimension>("auto | <length>"_grammar, Dialect::Fo, {{u"auto", "same"}, {u"210mm", "same"}});
    expectJudges<BackgroundPosition>("left | top | <length> | <percentage>"_grammar, Dialect::Fo,
                                     {{u"top", "same"}, {u"3pt", "same"}, {u"30%", "same"}});
    expectJudges<BaselineShift>("sub | <length> | <percentage>"_grammar, Dialect::Fo,
                                {{u"sub", "same"}, {u"3%", "same"}});
    expectJudges<AlignmentAdjust>("auto | <length>"_grammar, Dialect::Fo, {{u"auto", "same"}, {u"3pt", "same"}});
    expectJudges<LeaderPatternWidth>("use-font-metrics | <length>"_grammar, Dialect::Fo,
                                     {{u"use-font-metrics", "same"}, {u"3pt", "same"}});
    expectJudges<Drawing::RectF>(
        "auto | <clip-shape>"_grammar, Dialect::Fo,
        {{u"auto", "refused"}, {u"rect(1in, 2pt, 3mm, 0)", "same"}, {u"rect(1pt auto 0 1pt)", "refused"}});
}

TEST(Agrees, MeasuresOfSvg) {
    constexpr Grammar length = "<length>"_grammar, measure = "<length> | <percentage>"_grammar;
    expectJudges<SLength>(measure, Dialect::SvgAttribute,
                          {{u"12px", "same"}, {u"12", "same"}, {u"1e2", "same"}, {u"50%", "same"}, {u"3.3mm", "same"}});
    // In a style units may be in capitals, which the type takes for pixels.
    expectJudges<SLength>(length, Dialect::SvgStyle, {{u"10PX", "same"}, {u"10PT", "other"}});
    expectJudges<SLengthOrPercent>(measure, Dialect::SvgAttribute, {{u"50%", "same"}, {u"0.1in", "same"}});
    expectJudges<SNullableLength>(length, Dialect::SvgAttribute, {{u"2em", "same"}});
    expectJudges<SNullableLengthOrPercent>(measure, Dialect::SvgAttribute, {{u"33%", "same"}});
    expectJudges<SFontSize>("<font-size>"_grammar, Dialect::SvgAttribute, {{u"12", "same"}, {u"larger", "same"}});
    expectJudges<SSpacing>("normal | <length>"_grammar, Dialect::SvgAttribute, {{u"normal", "same"}, {u"-1", "same"}});
    expectJudges<SBaselineShift>("super | <percentage>"_grammar, Dialect::SvgAttribute,
                                 {{u"super", "same"}, {u"9%", "same"}});
    expectJudges<FloatOrPercent>("<number> | <percentage>"_grammar, Dialect::SvgAttribute,
                                 {{u".3", "same"}, {u"30%", "same"}});
    expectJudges<float>("<number>"_grammar, Dialect::SvgAttribute, {{u"0.1", "same"}, {u"-3e2", "same"}});
    expectJudges<int>("<integer>"_grammar, Dialect::SvgAttribute, {{u"-3", "same"}, {u"+3", "same"}});
    expectJudges<SPreserveAspectRatio>(
        "defer? [ none | xMidYMid | xMinYMax ] [ meet | slice ]?"_grammar, Dialect::SvgAttribute,
        {{u"none", "same"}, {u"xMidYMid", "same"}, {u"xMinYMax slice", "same"}, {u"defer xMinYMax", "other"}});
}

TEST(Agrees, Colors) {
    expectJudges<SmartPtr<Drawing::Color>>("<color> | transparent"_grammar, Dialect::Fo,
                                           {{u"DarkOrange", "same"},
                                            {u"#f0a", "same"},
                                            {u"rgb(1,2,3)", "same"},
                                            {u"transparent", "same"},
                                            {u"rgb(300,-1,0)", "other"},
                                            {u"rgb(33%,50%,99%)", "same"},
                                            {u"ButtonFace", "same"},
                                            {u"rgb-icc(1,2,3,#CMYK,0,0,0,1)", "same"}});
    expectJudges<SColor>("<paint>"_grammar, Dialect::SvgAttribute,
                         {{u"none", "same"},
                          {u"red", "same"},
                          {u"url(#a)", "same"},
                          {u"url(#a) none", "same"},
                          {u"url(other.svg#a)", "other"},
                          {u"rgb(256,0,0)", "other"},
                          {u"currentColor", "refused"}});
    expectJudges<STextShadow>(
        "none | [ <color> <length>{2,3} | <length>{2,3} <color>? ]#"_grammar, Dialect::SvgAttribute,
        {{u"1px 2px red", "same"}, {u"1px 2px 3px", "same"}, {u"1px 1px red, 2px 2px blue", "other"}});
}

TEST(Agrees, WordsOfTypesThatAcceptEveryText) {
    expectJudges<ThreeState>("true | false"_grammar, Dialect::Fo,
                             {{u"true", "same"}, {u"false", "same"}, {u" true", "other"}, {u"treu", "illegal"}});
    expectJudges<ThreeState>("auto | true | false"_grammar, Dialect::Fo, {{u"auto", "same"}});
    expectJudges<TextAlign>("start | inside | outside | <string>"_grammar, Dialect::Fo,
                            {{u"start", "same"}, {u"outside", "same"}, {u"start ", "other"}, {u"'.'", "same"}});
    expectJudges<ForcePageCount>("auto | even"_grammar, Dialect::Fo,
                                 {{u"auto", "same"}, {u"even", "same"}, {u" even", "other"}});
    expectJudges<InitialPageNumber>(
        "auto-odd | <number [1,]>"_grammar, Dialect::Fo,
        {{u"auto-odd", "same"}, {u"7", "same"}, {u"2.7", "other"}, {u"auto-odd ", "other"}, {u"0", "illegal"}});
    expectJudges<MaxRepeats>("no-limit | <number [0,]>"_grammar, Dialect::Fo,
                             {{u"no-limit", "same"}, {u"3", "same"}, {u"3.9", "other"}, {u" no-limit", "other"}});
    expectJudges<Keep>("auto | always | <integer>"_grammar, Dialect::Fo,
                       {{u"always", "same"}, {u"5", "same"}, {u"-1", "same"}});
    expectJudges<FontWeight>("<font-weight>"_grammar, Dialect::Fo, {{u"300", "same"}, {u"lighter", "same"}});
    expectJudges<STextDecoration>("underline || overline || blink"_grammar, Dialect::SvgAttribute,
                                  {{u"underline", "same"}, {u"blink", "refused"}, {u"underline overline", "refused"}});
    expectJudges<Url>("none | <uri> | <reference>"_grammar, Dialect::Fo,
                      {{u"url( 'a.png' )", "same"}, {u"a.png", "same"}, {u"none", "same"}, {u" a.png", "other"}});
}

} // namespace
} // namespace Xml
