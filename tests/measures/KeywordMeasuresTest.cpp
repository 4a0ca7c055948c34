#include "Support.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/measures/AlignmentAdjust.h"
#include "xmlattr/measures/BackgroundPosition.h"
#include "xmlattr/measures/BackgroundSize.h"
#include "xmlattr/measures/BaselineShift.h"
#include "xmlattr/measures/BorderWidth.h"
#include "xmlattr/measures/FontSize.h"
#include "xmlattr/measures/FontStretch.h"
#include "xmlattr/measures/Indent.h"
#include "xmlattr/measures/PageDimension.h"
#include "xmlattr/measures/Spacing.h"
#include "xmlattr/measures/TextAlign.h"

namespace Xml {
namespace {

constexpr LengthOrPercent seven(Length(7, Length::Cm));
constexpr SLengthOrPercent seventh(7, SLength::Cm);

// Reads a text and tells whether it gives the value; a refused text gives none.
template <class T> bool gives(char16_t const* text, T const& value) {
    auto const read = parsed<T>(text);
    return read && *read == value;
}

template <class T> char const* sourceThatThrows(T const& value) {
    try {
        TXmlAttribute<T>(value).getValueAsString();
    } catch (Core::UnreacheableCodeException const& exception) {
        return exception.getSourceName();
    }
    return "nothing is thrown";
}

TEST(BorderWidth, PrintsTheWordOfItsLength) {
    expectPrints<BorderWidth>(BorderWidth(), {{u"thin", "thin"},
                                              {u"medium", "medium"},
                                              {u"thick", "thick"},
                                              {u"1pt", "thin"},
                                              {u"2pt", "2pt"},
                                              {u"3px", "3px"},
                                              {u"0", "0pt"},
                                              {u"Thin", "refused"},
                                              {u"5%", "refused"},
                                              {u"", "refused"}});
    TXmlAttribute<BorderWidth> attribute;
    EXPECT_EQ(attribute.getValueAsString(), u"1.5pt");
    EXPECT_FALSE(attribute.isEqual(u"1.5pt"));
    EXPECT_TRUE(attribute.isEqual(u"1.5pt", int_to_type<1>()));
}

TEST(Spacing, OnlyLettersReadNormalInAnyCase) {
    expectPrints<LetterSpacing>(
        Length(7, Length::Cm),
        {{u"NorMal", "normal"}, {u"2pt", "2pt"}, {u"normal ", "refused"}, {u"5%", "refused"}, {u"", "refused"}});
    EXPECT_TRUE(gives(u"normal", SSpacing()));
    EXPECT_FALSE(parsed<SSpacing>(u"Normal"));
    EXPECT_TRUE(gives(u"2", SSpacing(SLength(2, SLength::UserUnit))));
    EXPECT_FALSE(SSpacing() == SSpacing(SLength())) << "no spacing is not the normal one";
    EXPECT_FALSE(LetterSpacing(Length(1, Length::In)) == LetterSpacing(Length(72, Length::Pt)));
}

TEST(PageDimension, ReadsTwoWordsOrALength) {
    PageDimension size(Length(7, Length::Cm));
    EXPECT_FALSE(PageDimension::readStringPageDimension(size, u"2in")) << "the words alone";
    for (char16_t const* text : {u"Indefinite", u"auto ", u"5%", u"2"}) EXPECT_FALSE(parsed<PageDimension>(text));
    EXPECT_TRUE(size == PageDimension(Length(7, Length::Cm)));
    EXPECT_TRUE(gives(u"auto", PageDimension(PageDimensionType::Auto)));
    EXPECT_TRUE(gives(u"indefinite", PageDimension(PageDimensionType::Indefinite)));
    EXPECT_TRUE(gives(u"2in", PageDimension(Length(2, Length::In))));
    EXPECT_FALSE(PageDimension() == PageDimension(Length()));
}

TEST(Indent, ReadsTwoCallsOrAMeasure) {
    expectPrints<Indent>(seven, {{u"label-end()", "label-end()"},
                                 {u"body-start()", "body-start()"},
                                 {u"5%", "5%"},
                                 {u"1pt", "1pt"},
                                 {u"label-end( )", "refused"},
                                 {u"Body-start()", "refused"},
                                 {u"auto", "refused"}});
    EXPECT_EQ(TXmlAttribute<Indent>().getValueAsString(), u"");
    EXPECT_EQ(static_cast<int>(parsed<Indent>(u"label-end()")->getFunction()), 2);
    EXPECT_STREQ(sourceThatThrows(Indent(static_cast<IndentFunction>(4))), "IndentAttribute");
}

TEST(BaselineShift, ReadsThreeWordsOrAMeasure) {
    expectPrints<BaselineShift>(seven, {{u"baseline", "baseline"},
                                        {u"sub", "sub"},
                                        {u"super", "super"},
                                        {u"50%", "50%"},
                                        {u"-1pt", "-1pt"},
                                        {u"Sub", "refused"},
                                        {u"1pt ", "refused"}});
    EXPECT_STREQ(sourceThatThrows(BaselineShift(static_cast<BaselineShiftMode>(-1))), "LengthAttribute");
    EXPECT_TRUE(gives(u"super", SBaselineShift(BaselineShiftMode::Super)));
    EXPECT_TRUE(gives(u"7cm ", SBaselineShift(seventh))) << "blanks may follow in SVG";
    EXPECT_FALSE(gives(u"8cm", SBaselineShift(seventh)));
    EXPECT_FALSE(parsed<SBaselineShift>(u"Sub"));
}

TEST(AlignmentAdjust, ReadsAKeywordOrAMeasure) {
    expectPrints<AlignmentAdjust>(
        seven,
        {{u"auto", "auto"}, {u"text-bottom", "text-bottom"}, {u"5%", "5%"}, {u"Auto", "refused"}, {u"", "refused"}});
    EXPECT_TRUE(gives(u"auto", AlignmentAdjust()));
    EXPECT_FALSE(gives(u"top", AlignmentAdjust(AlignmentBaseline::Bottom)));
    EXPECT_FALSE(AlignmentAdjust() == AlignmentAdjust(LengthOrPercent()));
}

TEST(FontSize, ReadsWordsInPoints) {
    expectPrints<FontSize>(seven, {{u"xx-small", "6pt"},
                                   {u"x-small", "8pt"},
                                   {u"small", "10pt"},
                                   {u"medium", "12pt"},
                                   {u"large", "16pt"},
                                   {u"x-large", "18pt"},
                                   {u"xx-large", "20pt"},
                                   {u"larger", "larger"},
                                   {u"smaller", "smaller"},
                                   {u"150%", "150%"},
                                   {u"normal", "120%"},
                                   {u"Medium", "refused"},
                                   {u"inherit", "refused"},
                                   {u"", "refused"}});
    EXPECT_TRUE(gives(u"x-large", SFontSize(SLengthOrPercent(18, SLength::Pt))));
    EXPECT_TRUE(gives(u"smaller", SFontSize(RelativeFontSize::Smaller)));
    EXPECT_TRUE(gives(u"7cm ", SFontSize(seventh)));
    EXPECT_FALSE(parsed<SFontSize>(u"normal")) << "a word of XSL-FO measures";
    EXPECT_TRUE(TXmlAttribute<FontSize>(LengthOrPercent(Length(12, Length::Pt))).isEqual(u"medium"));
}

TEST(FontSize, WithoutAValueEqualsNothing) {
    FontSize const none;
    EXPECT_FALSE(none == none);
    EXPECT_FALSE(SFontSize() == SFontSize());
    EXPECT_FALSE(FontStretch() == FontStretch());
    EXPECT_FALSE(FontSize(RelativeFontSize::Larger) == FontSize(RelativeFontSize::Smaller));
    EXPECT_FALSE(FontSize(RelativeFontSize::Larger) == FontSize(LengthOrPercent()));
    EXPECT_EQ(TXmlAttribute<FontSize>().getValueAsString(), u"larger");
    EXPECT_STRNE(sourceThatThrows(FontSize(static_cast<RelativeFontSize>(2))), "nothing is thrown");
}

TEST(FontSize, KeepsItsWordAfterAMeasure) {
    FontSize size(RelativeFontSize::Smaller);
    size = Length(7, Length::Cm);
    EXPECT_TRUE(size == FontSize(seven));
    EXPECT_EQ(size.getRelativeSize(), RelativeFontSize::Smaller);
}

TEST(FontStretch, PrintsOneWordThatItDoesNotRead) {
    expectPrints<FontStretch>(seven, {{u"normal", "normal"},
                                      {u"wider", "wider"},
                                      {u"narrower", "narrower"},
                                      {u"ultra-expanded", "ultra-extended"},
                                      {u"ultra-extended", "refused"},
                                      {u"inherit", "inherit"},
                                      {u"75%", "75%"},
                                      {u"Normal", "refused"}});
    char16_t const* words[] = {u"normal",          u"wider",          u"narrower",       u"ultra-condensed",
                               u"extra-condensed", u"condensed",      u"semi-condensed", u"semi-expanded",
                               u"expanded",        u"extra-expanded", u"ultra-expanded", u"inherit"};
    int number = 0;
    for (char16_t const* word : words)
        EXPECT_TRUE(gives(word, FontStretch(static_cast<RelativeFontStretch>(number++))));
    EXPECT_STRNE(sourceThatThrows(FontStretch(static_cast<RelativeFontStretch>(number))), "nothing is thrown");
    // The numbers of the two forms are reversed between stretches and sizes.
    EXPECT_EQ(static_cast<int>(FontStretch(seven).getType()), 1);
    EXPECT_EQ(static_cast<int>(FontSize(seven).getType()), 2);
}

// What programs ask of a value, with a word and with a measure.
TEST(KeywordMeasures, TellWhichOfTheTwoTheyHold) {
    AlignmentAdjust const top = *parsed<AlignmentAdjust>(u"top"), adjust(seven);
    EXPECT_TRUE(top.isKeyword() && top.getKeyword() == AlignmentBaseline::Top);
    EXPECT_TRUE(!adjust.isKeyword() && adjust.getLengthOrPercent() == seven);
    EXPECT_EQ(parsed<BaselineShift>(u"sub")->getMode(), BaselineShiftMode::Sub);
    EXPECT_EQ(BaselineShift(seven).getMode(), BaselineShiftMode::LengthOrPercent);
    EXPECT_TRUE(SBaselineShift(seventh).getLengthOrPercent() == seventh);
    EXPECT_TRUE(LetterSpacing().isNormal() && LetterSpacing().getKind() == SpacingNormal);
    EXPECT_TRUE(!SSpacing(SLength()).isNormal() && SSpacing(SLength()).getKind() == SpacingLength);
    EXPECT_EQ(parsed<PageDimension>(u"indefinite")->getType(), PageDimensionType::Indefinite);
    EXPECT_EQ(parsed<PageDimension>(u"1pt")->getType(), PageDimensionType::Length);
    EXPECT_EQ(parsed<TextAlign>(u"Outside")->getText(), u"Outside");

    SFontSize size = RelativeFontSize::Larger;
    EXPECT_TRUE(size.isRelativeSize() && !size.isAbsoluteSize());
    size = seventh;
    EXPECT_TRUE(!size.isRelativeSize() && size.isAbsoluteSize() && size.getAbsoluteSize() == seventh);
    EXPECT_TRUE(!SFontSize().isRelativeSize() && !SFontSize().isAbsoluteSize());
    FontStretch stretch = RelativeFontStretch::Wider;
    EXPECT_TRUE(stretch.isRelativeStretch() && !stretch.isAbsoluteStretch());
    stretch = seven;
    EXPECT_TRUE(!stretch.isRelativeStretch() && stretch.isAbsoluteStretch() && stretch.getAbsoluteStretch() == seven);
    EXPECT_EQ(stretch.getRelativeStretch(), RelativeFontStretch::Wider) << "stays";
}

TEST(BackgroundPosition, KeepsThePercentageAlone) {
    expectPrints<BackgroundPosition>(seven, {{u"left", "left"},
                                             {u"top", "left"},
                                             {u"center", "center"},
                                             {u"right", "right"},
                                             {u"bottom", "right"},
                                             {u"0%", "left"},
                                             {u"50%", "center"},
                                             {u"100%", "right"},
                                             {u"30%", "30%"},
                                             {u"10pt", "10pt"},
                                             {u"0px", "0px"},
                                             {u"Left", "refused"},
                                             {u"left top", "refused"}});
    BackgroundPosition position;
    EXPECT_FALSE(BackgroundPosition::readStringBackgroundPosition(position, u"30%")) << "the words alone";
    EXPECT_FALSE(TXmlAttribute<BackgroundPosition>().isEqual(u"0px"));
}

TEST(BackgroundSize, PrintsAMeasureWhenStretched) {
    expectPrints<BackgroundSize>(seven, {{u"cover", "cover"},
                                         {u"contain", "contain"},
                                         {u"stretch", "0px"},
                                         {u"fill", "0px"},
                                         {u"auto", "auto"},
                                         {u"50%", "50%"},
                                         {u"Auto", "refused"}});
    BackgroundSize size(LengthOrPercent(0.5f));
    EXPECT_TRUE(BackgroundSize::readStringBackgroundSize(size, u"fill"));
    EXPECT_EQ(size.getType(), BackgroundSizeType::Stretch);
    EXPECT_EQ(size.getPercent(), 0);
    size = BackgroundSizeType::Auto;
    EXPECT_FALSE(BackgroundSize::readStringBackgroundSize(size, u"50%")) << "the words alone";
    EXPECT_EQ(size.getType(), BackgroundSizeType::Auto);
    TXmlAttribute<BackgroundSize> const cover{BackgroundSizeType::Cover};
    EXPECT_FALSE(cover.isEqual(u"cover"));
    EXPECT_TRUE(cover.isEqual(u"contain", int_to_type<1>())) << "the measures alone";
    EXPECT_FALSE(cover.isEqual(u"5%", int_to_type<1>()));
}

TEST(TextAlign, TakesEveryText) {
    expectPrints<TextAlign>(TextAlign(), {{u"LEFT", "left"},
                                          {u"Right", "right"},
                                          {u"cenTer", "center"},
                                          {u"justify", "justify"},
                                          {u"Start", "start"},
                                          {u"end", "end"},
                                          {u"Inside", "inside"},
                                          {u"outside", "outside"},
                                          {u"OUTSIDE", "OUTSIDE"},
                                          {u"relative", "relative"},
                                          {u"Relative", "Relative"},
                                          {u".", "."},
                                          {u" left", " left"},
                                          {u"", ""}});
    EXPECT_TRUE(gives(u"inside", TextAlign(TextAlignType::Inside, u"")));
    EXPECT_TRUE(gives(u"outside", TextAlign(TextAlignType::Outside, u"")));
    EXPECT_TRUE(gives(u"Outside", TextAlign(TextAlignType::AlignmentString, u"Outside")));
    EXPECT_FALSE(gives(u"a", TextAlign(TextAlignType::AlignmentString, u"A")));
    EXPECT_EQ(TXmlAttribute<TextAlign>().getValueAsString(), u"left");
}

} // namespace
} // namespace Xml
