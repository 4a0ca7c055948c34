#include "xmlattr/core/WordTable.h"

#include "Support.h"
#include "WordTables.h"
#include "xmlattr/Instantiations.h"
#include "xmlattr/color/ColorNames.h"
#include "xmlattr/core/SystemColors.h"
#include "xmlattr/language/LanguageTable.h"
#include "xmlattr/measures/Units.h"

#include <string>

namespace Core {
namespace {

using Testing::checkTable;

template <class E> void checkKeywords(char const* name) {
    checkTable<Xml::Keywords<E>::rows, Xml::Keywords<E>::rule>(name);
}

template <class T> constexpr Case ruleOf() {
    if constexpr (requires { Xml::AttributeTraits<T>::rule; })
        return Xml::AttributeTraits<T>::rule;
    else
        return Case::Exact;
}

template <class T> void checkType([[maybe_unused]] char const* name) {
    if constexpr (Xml::KeywordEnumeration<T>) checkKeywords<T>(name);
    if constexpr (requires { Xml::AttributeTraits<T>::rows; })
        checkTable<Xml::AttributeTraits<T>::rows, ruleOf<T>()>(name);
}

TEST(WordTable, EveryTableFindsWhatLookingAtEveryRowFinds) {
    using namespace Xml;
#define XMLATTR_PUBLIC_VALUE(...) checkType<__VA_ARGS__>(#__VA_ARGS__);
#define XMLATTR_INTERNAL_VALUE(...) checkType<__VA_ARGS__>(#__VA_ARGS__);
#include "xmlattr/ValueTypes.inc"
    checkKeywords<AxisUnits::Type>("AxisUnits::Type");
    checkKeywords<BackgroundSizeType>("BackgroundSizeType");
    checkKeywords<BaselineShiftMode>("BaselineShiftMode");
    checkKeywords<ContentScaleMode>("ContentScaleMode");
    checkKeywords<ForcePageCountType>("ForcePageCountType");
    checkKeywords<IndentFunction>("IndentFunction");
    checkKeywords<InitialPageNumberType>("InitialPageNumberType");
    checkKeywords<PageDimensionType>("PageDimensionType");
    checkKeywords<RelativeFontSize>("RelativeFontSize");
    checkKeywords<RelativeFontStretch>("RelativeFontStretch");
    checkKeywords<TextAlignType>("TextAlignType");
    checkTable<AttributeTraits<SPreserveAspectRatio>::secondWords>("SPreserveAspectRatio, second words");
    checkTable<absoluteFontSizes>("absoluteFontSizes");
    checkTable<transformWords>("transformWords");
    checkTable<unitRows>("unitRows");
    checkTable<Drawing::ImageFilter::rows, Case::Any>("ImageFilter");
    checkTable<colorNames, Case::Any>("colorNames");
    checkTable<noColorNames, Case::Any>("noColorNames");
    checkTable<systemColors, Case::Any>("systemColors");
    checkTable<languageTags, Case::Any>("languageTags");
}

// Words that agree in all that their marks look at, in all groups that are compared, and one that is the start of
// another.
constexpr WordRow<int> twins[] = {{u"aXbbbbbbbbbbbbbbbb", 1},
                                  {u"aXbbXbbbbbbbbbbbbb", 2},
                                  {u"aXbbbXbbbbbbbbbbbb", 3},
                                  {u"aX", 4},
                                  {u"", 5},
                                  {u"aXbbbbbbbbbXbbbbbb", 6},
                                  {u"AxBBBBBBBBBBBBBBBB", 7},
                                  {u"aXbbbbbbbbbbbbbbbbbbbbbbbb", 8},
                                  {u"aXbbXbbbbbbbbbbbbbbbbbbbbb", 9},
                                  {u"aXbbbbbbbXbbbbbbbbbbbbbbbb", 10}};
constexpr WordRow<int, char> shortWords[] = {{"q", 1}, {"em", 2}, {"rem", 3}, {"Q", 4}};
constexpr WordRow<char> letters[] = {{u"a", 'a'}, {u"b", 'b'}};
static_assert(WordTable<letters>::findValue('b') == 1 && WordTable<letters>::findValue('c') == noWord);

TEST(WordTable, TellsWordsApartThatLookAlike) {
    checkTable<twins>("twins");
    checkTable<shortWords>("shortWords");
    EXPECT_FALSE((WordTable<shortWords>::find(std::string_view("\0em", 3))));
    EXPECT_EQ(WordTable<twins>::findStart(u"aXbbbbbbbbbbbbbbbbc"), 1);
    EXPECT_EQ(WordTable<twins>::findStart(u"aXc"), 4);
    EXPECT_FALSE((WordTable<shortWords>::findStart("r")));
    EXPECT_EQ((WordTable<shortWords>::findStart("qx")), 1);
    EXPECT_EQ(WordTable<twins>::word(WordTable<twins>::findValue(6)), u"aXbbbbbbbbbXbbbbbb");
    EXPECT_EQ(WordTable<twins>::findValue(11), noWord);
}

TEST(WordTable, TakesNoLongTextForAWordWithAnotherRow) {
    PackedWord word(0, 18);
    EXPECT_TRUE(word.isAlone(18) && !word.isAlone(18 + (1 << 16)));
    word.setNext(3);
    EXPECT_EQ(word.length(), 18u);
    EXPECT_EQ(word.next(), 3u);
    EXPECT_FALSE(word.isAlone(18) || word.isAlone(18 + (3 << 16)));
}

} // namespace
} // namespace Core
