#include "xmlattr/language/Language.h"

#include "Support.h"

#include <climits>

namespace Xml {
namespace {

TEST(Language, ReadsWholeTagsInAnyCase) {
    struct Row {
        char16_t const* text;
        int language, country;
        char const* name;
        char const* fullName;
    };
    for (Row const& row :
         {Row{u"cs", 1, 0, "cs", "czech"}, Row{u"cze", 1, 0, "cs", "czech"}, Row{u"DAN", 2, 0, "da", "danish"},
          Row{u"eng", 3, 0, "en", "english"}, Row{u"EN-US", 3, 1, "en-US", "english"},
          Row{u"en-gb", 3, 2, "en-GB", "english"}, Row{u"en-Au", 3, 3, "en-AU", "english"},
          Row{u"pl", 10, 0, "pl", "polish"}, Row{u"aa", 11, 0, "aa", "afar"}, Row{u"Ha", 45, 0, "ha", "hausa"},
          Row{u"gd", 41, 0, "gd", "scottish_gaelic"}, Row{u"oc", 87, 0, "oc", "occitant"},
          Row{u"ta", 114, 0, "ta", "tami"}, Row{u"zU", 139, 0, "zu", "zulu"}}) {
        SCOPED_TRACE(narrow(row.text));
        Language language;
        ASSERT_TRUE(Language::parseLanguage(row.text, language));
        EXPECT_EQ(static_cast<int>(language.getLanguage()), row.language);
        EXPECT_EQ(static_cast<int>(language.getCountry()), row.country);
        EXPECT_EQ(narrow(Language::getISO639LanguageName(language)), row.name);
        EXPECT_EQ(narrow(Language::getFullLanguageNameById(language.getLanguage())), row.fullName);
    }
    for (char16_t const* text :
         {u"", u" en", u"en ", u"de-de", u"en_us", u"fr-ca", u"deu", u"e", u"xx", u"e1", u"[a", u"\u0161k", u"none"}) {
        Language language(Drawing::LanguageId::Thai, Drawing::CountryId::None);
        EXPECT_FALSE(Language::parseLanguage(text, language)) << narrow(text);
        EXPECT_EQ(language.getLanguage(), Drawing::LanguageId::Thai);
    }
}

TEST(Language, NamesOfNumbersThatAreNone) {
    for (int const number : {-1, 0, 140, INT_MIN}) {
        auto const id = static_cast<Drawing::LanguageId>(number);
        EXPECT_EQ(Language::getISO639LanguageName({id, Drawing::CountryId::UnitedStates}), u"");
        EXPECT_EQ(Language::getFullLanguageNameById(id), u"english");
        EXPECT_EQ(Language::getISO639CountrySuffix(static_cast<Drawing::CountryId>(number)), u"");
    }
}

TEST(Language, EqualityIgnoresTheCountryAndTheOrderDoesNot) {
    Language const english(Drawing::LanguageId::English, Drawing::CountryId::None);
    Language const american(Drawing::LanguageId::English, Drawing::CountryId::UnitedStates);
    Language const german(Drawing::LanguageId::German, Drawing::CountryId::None);
    EXPECT_TRUE(american == english);
    EXPECT_TRUE(english < american && !(american < english));
    EXPECT_TRUE(american < german && !(german < american));
    TXmlAttribute<Language> attribute(american), copy;
    copy.copyFrom(attribute);
    EXPECT_EQ(copy.getValue().getCountry(), Drawing::CountryId::UnitedStates);
    EXPECT_TRUE(copy.isEqual(u"en-gb") && !copy.isEqual(u"de") && !copy.isEqual(u"en-ca"));
    EXPECT_EQ(copy.getValueAsString(), u"");
}

} // namespace
} // namespace Xml
