#include "xmlattr/keywords/KeywordTable.h"

#include "Support.h"
#include "xmlattr/Instantiations.h"
#include "xmlattr/core/Exceptions.h"

namespace Xml {
namespace {

// No keyword of any table gives this number.
constexpr int foreign = 1000;

// The number that a text stores in an attribute; nothing when it is refused, which must leave the attribute alone.
template <KeywordEnumeration E> std::optional<int> number(Core::String const& text) {
    TXmlAttribute<E> attribute(static_cast<E>(foreign));
    bool const accepted = attribute.parseValue(text);
    int const value = static_cast<int>(attribute.getValue());
    EXPECT_EQ(accepted, value != foreign) << narrow(text);
    return accepted ? std::optional(value) : std::nullopt;
}

template <KeywordEnumeration E> std::string print(int value) {
    return narrow(TXmlAttribute<E>(static_cast<E>(value)).getValueAsString());
}

std::u16string swapCase(std::u16string_view word) {
    std::u16string swapped;
    for (char16_t const unit : word) {
        char16_t const lower = Core::toLower(unit);
        bool const isLetter = lower >= u'a' && lower <= u'z';
        swapped += !isLetter ? unit : unit == lower ? static_cast<char16_t>(unit - u'a' + u'A') : lower;
    }
    return swapped;
}

// One row of a table, with an attribute of its enumeration.
struct Entry {
    XmlAttribute& attribute;
    std::int32_t (*held)(XmlAttribute const&);
    std::int32_t value;
    Core::String word;
    std::optional<Core::String> printed; // nothing: the table prints other words than it reads
    Case rule;
    bool isReadByTableAlone;
};

void check(Entry const& entry) {
    SCOPED_TRACE(narrow(entry.word));
    bool const accepted = entry.attribute.parseValue(entry.word);
    EXPECT_EQ(entry.held(entry.attribute), entry.value);
    if (entry.printed) {
        EXPECT_EQ(entry.attribute.getValueAsString(), *entry.printed);
    }
    if (!entry.isReadByTableAlone) return;
    EXPECT_TRUE(accepted && entry.attribute.isEqual(entry.word));
    Core::String const swapped(swapCase(entry.word));
    EXPECT_EQ(entry.attribute.parseValue(swapped), entry.rule == Case::Any || swapped == entry.word);
    for (Core::String const& text : {entry.word + u" ", u" " + entry.word, entry.word + u"\u00A0"})
        EXPECT_FALSE(entry.attribute.parseValue(text));
    EXPECT_EQ(entry.held(entry.attribute), entry.value);
}

template <KeywordEnumeration E> std::int32_t heldBy(XmlAttribute const& attribute) {
    return static_cast<std::int32_t>(static_cast<TXmlAttribute<E> const&>(attribute).getValue());
}

template <KeywordEnumeration E> std::u16string_view firstWord(E value) {
    auto const* row = std::begin(Keywords<E>::rows);
    while (row->value != value) ++row;
    return row->word;
}

template <class T> void checkTable([[maybe_unused]] char const* name) {
    if constexpr (KeywordEnumeration<T>) {
        SCOPED_TRACE(name);
        for (auto const& [word, value] : Keywords<T>::rows) {
            TXmlAttribute<T> attribute(static_cast<T>(foreign));
            std::optional<Core::String> printed;
            if constexpr (!Prints<T>)
                printed = u"";
            else if constexpr (!requires { Keywords<T>::printRows; })
                printed = firstWord(value);
            check({attribute, heldBy<T>, static_cast<std::int32_t>(value), word, printed, Keywords<T>::rule,
                   &AttributeTraits<T>::parse == &KeywordTraits<T>::parse});
        }
    }
}

TEST(KeywordTable, EveryTableReadsItsWordsAndPrintsThemBack) {
#define XMLATTR_PUBLIC_VALUE(...) checkTable<__VA_ARGS__>(#__VA_ARGS__);
#define XMLATTR_INTERNAL_VALUE(...) checkTable<__VA_ARGS__>(#__VA_ARGS__);
#include "xmlattr/ValueTypes.inc"
}

TEST(KeywordTable, NumbersKeepTheirGapsAndOddities) {
    EXPECT_EQ(number<Break>(u"odd-page"), 11);
    EXPECT_EQ(number<Overflow>(u"fitcontent-if-overflow"), 6);
    EXPECT_EQ(number<AnchorX>(u"text"), 5);
    EXPECT_EQ(number<Visibility>(u"HIDDEN"), 1);
    EXPECT_EQ(number<SVisibility>(u"hidden"), 2);
    EXPECT_EQ(number<SLineCap>(u"round"), 1);
    EXPECT_EQ(number<SLineJoin>(u"round"), 2);
    EXPECT_EQ(number<ChartType>(u"Pie"), 4);
    EXPECT_EQ(number<MaxicodeModes>(u"FullECCSymbol"), 5);
    EXPECT_EQ(number<DMFormat>(u"auto"), -1);
    EXPECT_EQ(number<DMFormat>(u"c144x144"), 23);
    EXPECT_EQ(number<FormControlType>(u"SIGNATURE"), 6);
    EXPECT_EQ(number<ValueCoertionSource>(u"empty-string"), 1);
    EXPECT_EQ(number<ValueCoertionDest>(u"empty-string"), 2);
    EXPECT_EQ(number<WSProtocol>(u""), 0);
    EXPECT_EQ(number<DisplayValPlacement>(u"centered"), 0);
    EXPECT_EQ(number<CommandBehaviorType>(u"KEYINFO"), 3);
    // A theme and its variant, four to a theme.
    EXPECT_EQ(number<ChartTheme>(u"none"), 0);
    for (int theme = 1; theme <= 8; ++theme)
        for (int variant = 1; variant <= 4; ++variant) {
            std::string const word = "Style" + std::to_string(theme) + std::to_string(variant);
            EXPECT_EQ(number<ChartTheme>(Core::String::fromUtf8(word)), (theme - 1) * 4 + variant);
        }
}

TEST(KeywordTable, RefusesWhatNeighboursAccept) {
    EXPECT_FALSE(number<ChartTheme>(u"style15") || number<ChartTheme>(u"style91") || number<ChartTheme>(u"style"));
    EXPECT_FALSE(number<SerieGrouping>(u"stacked100%") || number<ChartStyle>(u"100-stacked"));
    EXPECT_FALSE(number<DisplayAlign>(u"auto") || number<Clear>(u"start") || number<BorderStyle>(u""));
    EXPECT_FALSE(number<DisplayStrategyConstraint>(u"none") || number<SearchWhiteSpaceConstraint>(u"none"));
    EXPECT_FALSE(number<OriginalInputFormat>(u"XLSFO") || number<OriginalInputFormat>(u"XSLFO"));
}

TEST(KeywordTable, FailedParseLeavesTheValueAndEqualsNothing) {
    TXmlAttribute<BorderStyle> style(BorderStyle::Dashed);
    EXPECT_FALSE(style.parseValue(u"Solid"));
    EXPECT_EQ(style.getValue(), BorderStyle::Dashed);
    EXPECT_FALSE(style.isEqual(u"dash") || TXmlAttribute<BorderStyle>().isEqual(u"dash"));
    EXPECT_TRUE(TXmlAttribute<Overflow>().isEqual(u"repeat")) << "keywords of one value are equal";
}

TEST(KeywordTable, SomeValuesPrintUnlikeTheyRead) {
    EXPECT_EQ(printed<DominantBaseline>(u"Alphabetic"), "reset-size");
    EXPECT_EQ(print<DominantBaseline>(4) + " " + print<DominantBaseline>(5), "ideographic alphabetic");
    EXPECT_EQ(printed<FontStyle>(u"oblique"), "italic");
    EXPECT_EQ(print<FontStyle>(2) + " " + print<FontStyle>(3), "oblique backslant");
    EXPECT_EQ(printed<LegendPlacement>(u"custom"), "");
    EXPECT_EQ(printed<LegendPlacement>(u"Right"), "right");
    EXPECT_EQ(printed<OriginalInputFormat>(u"fo"), "XLSFO");
    EXPECT_EQ(printed<OriginalInputFormat>(u"wordml"), "WORDML");
    EXPECT_EQ(printed<CommandBehaviorType>(u"keyinfo"), "KeyInfo");
    EXPECT_EQ(print<FormControlType>(5), "");
}

TEST(KeywordTable, ForeignNumbersPrintAWordOrNothingOrThrow) {
    EXPECT_EQ(print<BorderStyle>(foreign), "");
    EXPECT_EQ(print<Clear>(-1), "none");
    EXPECT_EQ(print<DisplayStrategyConstraint>(2), "none");
    EXPECT_EQ(print<DominantBaseline>(12), "auto");
    EXPECT_EQ(print<JoinFunctionType>(9), "inner");
    EXPECT_EQ(print<FormCheckStyle>(9), "check");
    EXPECT_EQ(print<CommandBehaviorType>(7), "SchemaOnly");
    EXPECT_EQ(print<Core::Variant::VariantType>(15), "IntegerValue");
    EXPECT_EQ(print<OriginalInputFormat>(5), "XSLFO");
    EXPECT_EQ(print<Parity>(foreign), "");
    try {
        print<AbsolutePosition>(3);
        ADD_FAILURE() << "printed";
    } catch (Core::UnreacheableCodeException const& exception) {
        EXPECT_STREQ(exception.getSourceName(), "MiscAttributes");
    }
    EXPECT_THROW(print<RelativePosition>(2), Core::UnreacheableCodeException);
    EXPECT_THROW(print<FontStyle>(4), Core::UnreacheableCodeException);
    EXPECT_THROW(print<FontSelectionStrategy>(-1), Core::UnreacheableCodeException);
    EXPECT_THROW(print<TextLineStyle>(7), Core::UnreacheableCodeException);
    EXPECT_THROW(print<ValueCoertionSource>(4), Core::UnreacheableCodeException);
    EXPECT_THROW(print<ValueCoertionDest>(4), Core::UnreacheableCodeException);
}

} // namespace
} // namespace Xml
