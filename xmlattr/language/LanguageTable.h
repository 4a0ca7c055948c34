// The languages by number, code, tag and name. No table holds a pointer, so that loading the library
// has nothing to relocate.
#pragma once

#include "xmlattr/core/WordTable.h"
#include "xmlattr/drawing/LanguageId.h"

#include <algorithm>
#include <array>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

struct LanguageRow {
    Drawing::LanguageId language;
    char16_t code[3];  // ISO 639-1; "bh", "jw", "mo" and "sh" have since been withdrawn there
    char16_t name[16]; // in English
};

// Row n is language number n + 1. The names are part of the interface.
inline constexpr auto languageRows = [] {
    using Drawing::LanguageId;
    return std::to_array<LanguageRow>({
        {LanguageId::Czech, u"cs", u"czech"},
        {LanguageId::Danish, u"da", u"danish"},
        {LanguageId::English, u"en", u"english"},
        {LanguageId::Romanian, u"ro", u"romanian"},
        {LanguageId::French, u"fr", u"french"},
        {LanguageId::Russian, u"ru", u"russian"},
        {LanguageId::German, u"de", u"german"},
        {LanguageId::Spanish, u"es", u"spanish"},
        {LanguageId::Italian, u"it", u"italian"},
        {LanguageId::Polish, u"pl", u"polish"},
        {LanguageId::Afar, u"aa", u"afar"},
        {LanguageId::Abkhazian, u"ab", u"abkhazian"},
        {LanguageId::Afrikaans, u"af", u"afrikaans"},
        {LanguageId::Amharic, u"am", u"amharic"},
        {LanguageId::Arabic, u"ar", u"arabic"},
        {LanguageId::Assamese, u"as", u"assamese"},
        {LanguageId::Aymara, u"ay", u"aymara"},
        {LanguageId::Azerbaijani, u"az", u"azerbaijani"},
        {LanguageId::Bashkir, u"ba", u"bashkir"},
        {LanguageId::Byelorussian, u"be", u"byelorussian"},
        {LanguageId::Bulgarian, u"bg", u"bulgarian"},
        {LanguageId::Bihari, u"bh", u"bihari"},
        {LanguageId::Bislama, u"bi", u"bislama"},
        {LanguageId::Bengali, u"bn", u"bengali"},
        {LanguageId::Tibetan, u"bo", u"tibetan"},
        {LanguageId::Breton, u"br", u"breton"},
        {LanguageId::Catalan, u"ca", u"catalan"},
        {LanguageId::Corsican, u"co", u"corsican"},
        {LanguageId::Welsh, u"cy", u"welsh"},
        {LanguageId::Bhutani, u"dz", u"bhutani"},
        {LanguageId::Greek, u"el", u"greek"},
        {LanguageId::Esperanto, u"eo", u"esperanto"},
        {LanguageId::Estonian, u"et", u"estonian"},
        {LanguageId::Basque, u"eu", u"basque"},
        {LanguageId::Persian, u"fa", u"persian"},
        {LanguageId::Finnish, u"fi", u"finnish"},
        {LanguageId::Fiji, u"fj", u"fiji"},
        {LanguageId::Faroese, u"fo", u"faroese"},
        {LanguageId::Frisian, u"fy", u"frisian"},
        {LanguageId::Irish, u"ga", u"irish"},
        {LanguageId::ScottishGaelic, u"gd", u"scottish_gaelic"},
        {LanguageId::Galician, u"gl", u"galician"},
        {LanguageId::Guarani, u"gn", u"guarani"},
        {LanguageId::Gujarati, u"gu", u"gujarati"},
        {LanguageId::Hausa, u"ha", u"hausa"},
        {LanguageId::Hebrew, u"he", u"hebrew"},
        {LanguageId::Hindi, u"hi", u"hindi"},
        {LanguageId::Croatian, u"hr", u"croatian"},
        {LanguageId::Hungarian, u"hu", u"hungarian"},
        {LanguageId::Armenian, u"hy", u"armenian"},
        {LanguageId::Interlingua, u"ia", u"interlingua"},
        {LanguageId::Indonesian, u"id", u"indonesian"},
        {LanguageId::Interlingue, u"ie", u"interlingue"},
        {LanguageId::Inupiak, u"ik", u"inupiak"},
        {LanguageId::Icelandic, u"is", u"icelandic"},
        {LanguageId::Inuktitut, u"iu", u"inuktitut"},
        {LanguageId::Japanese, u"ja", u"japanese"},
        {LanguageId::Javanese, u"jw", u"javanese"},
        {LanguageId::Georgian, u"ka", u"georgian"},
        {LanguageId::Kazakh, u"kk", u"kazakh"},
        {LanguageId::Greenlandic, u"kl", u"greenlandic"},
        {LanguageId::Cambodian, u"km", u"cambodian"},
        {LanguageId::Kannada, u"kn", u"kannada"},
        {LanguageId::Korean, u"ko", u"korean"},
        {LanguageId::Kashmiri, u"ks", u"kashmiri"},
        {LanguageId::Kurdish, u"ku", u"kurdish"},
        {LanguageId::Kirghiz, u"ky", u"kirghiz"},
        {LanguageId::Latin, u"la", u"latin"},
        {LanguageId::Lingala, u"ln", u"lingala"},
        {LanguageId::Laothian, u"lo", u"laothian"},
        {LanguageId::Lithuanian, u"lt", u"lithuanian"},
        {LanguageId::Latvian, u"lv", u"latvian"},
        {LanguageId::Malagasy, u"mg", u"malagasy"},
        {LanguageId::Maori, u"mi", u"maori"},
        {LanguageId::Macedonian, u"mk", u"macedonian"},
        {LanguageId::Malayalam, u"ml", u"malayalam"},
        {LanguageId::Mongolian, u"mn", u"mongolian"},
        {LanguageId::Moldavian, u"mo", u"moldavian"},
        {LanguageId::Marathi, u"mr", u"marathi"},
        {LanguageId::Malay, u"ms", u"malay"},
        {LanguageId::Maltese, u"mt", u"maltese"},
        {LanguageId::Burmese, u"my", u"burmese"},
        {LanguageId::Nauru, u"na", u"nauru"},
        {LanguageId::Nepali, u"ne", u"nepali"},
        {LanguageId::Dutch, u"nl", u"dutch"},
        {LanguageId::Norwegian, u"no", u"norwegian"},
        {LanguageId::Occitan, u"oc", u"occitant"}, // Intended: spelt like this
        {LanguageId::Oromo, u"om", u"oromot"},     // Intended: spelt like this
        {LanguageId::Oriya, u"or", u"oriya"},
        {LanguageId::Punjabi, u"pa", u"punjabi"},
        {LanguageId::Pushto, u"ps", u"pushto"},
        {LanguageId::Portuguese, u"pt", u"portuguese"},
        {LanguageId::Quechua, u"qu", u"quechua"},
        {LanguageId::RhaetoRomance, u"rm", u"rhaeto_romance"},
        {LanguageId::Kirundi, u"rn", u"kirundi"},
        {LanguageId::Kinyarwanda, u"rw", u"kinyarwanda"},
        {LanguageId::Sanskrit, u"sa", u"sanskrit"},
        {LanguageId::Sindhi, u"sd", u"sindhi"},
        {LanguageId::Sangho, u"sg", u"sangho"},
        {LanguageId::SerboCroatian, u"sh", u"serbo_croatian"},
        {LanguageId::Sinhalese, u"si", u"sinhalese"},
        {LanguageId::Slovak, u"sk", u"slovak"},
        {LanguageId::Slovenian, u"sl", u"slovenian"},
        {LanguageId::Samoan, u"sm", u"samoan"},
        {LanguageId::Shona, u"sn", u"shona"},
        {LanguageId::Somali, u"so", u"somali"},
        {LanguageId::Albanian, u"sq", u"albanian"},
        {LanguageId::Serbian, u"sr", u"serbian"},
        {LanguageId::Siswati, u"ss", u"siswati"},
        {LanguageId::Sesotho, u"st", u"sesotho"},
        {LanguageId::Sundanese, u"su", u"sundanese"},
        {LanguageId::Swedish, u"sv", u"swedish"},
        {LanguageId::Swahili, u"sw", u"swahili"},
        {LanguageId::Tamil, u"ta", u"tami"}, // Intended: spelt like this
        {LanguageId::Telugu, u"te", u"telugu"},
        {LanguageId::Tajik, u"tg", u"tajik"},
        {LanguageId::Thai, u"th", u"thai"},
        {LanguageId::Tigrinya, u"ti", u"tigrinya"},
        {LanguageId::Turkmen, u"tk", u"turkmen"},
        {LanguageId::Tagalog, u"tl", u"tagalog"},
        {LanguageId::Setswana, u"tn", u"setswana"},
        {LanguageId::Tonga, u"to", u"tonga"},
        {LanguageId::Turkish, u"tr", u"turkish"},
        {LanguageId::Tsonga, u"ts", u"tsonga"},
        {LanguageId::Tatar, u"tt", u"tatar"},
        {LanguageId::Twi, u"tw", u"twi"},
        {LanguageId::Uighur, u"ug", u"uighur"},
        {LanguageId::Ukrainian, u"uk", u"ukrainian"},
        {LanguageId::Urdu, u"ur", u"urdu"},
        {LanguageId::Uzbek, u"uz", u"uzbek"},
        {LanguageId::Vietnamese, u"vi", u"vietnamese"},
        {LanguageId::Volapuk, u"vo", u"volapuk"},
        {LanguageId::Wolof, u"wo", u"wolof"},
        {LanguageId::Xhosa, u"xh", u"xhosa"},
        {LanguageId::Yiddish, u"yi", u"yiddish"},
        {LanguageId::Yoruba, u"yo", u"yoruba"},
        {LanguageId::Zhuang, u"za", u"zhuang"},
        {LanguageId::Chinese, u"zh", u"chinese"},
        {LanguageId::Zulu, u"zu", u"zulu"},
    });
}();

// What is read besides the codes.
// What a tag says.
struct TaggedLanguage {
    Drawing::LanguageId language;
    Drawing::CountryId country;
};

// The tags, in any case: the codes of all languages and a few more.
inline constexpr auto languageTags = [] {
    using Drawing::CountryId, Drawing::LanguageId;
    constexpr auto others = std::to_array<Core::WordRow<TaggedLanguage>>({
        {u"cze", {LanguageId::Czech, CountryId::None}},
        {u"dan", {LanguageId::Danish, CountryId::None}},
        {u"eng", {LanguageId::English, CountryId::None}},
        {u"en-us", {LanguageId::English, CountryId::UnitedStates}},
        {u"en-gb", {LanguageId::English, CountryId::GreatBritain}},
        {u"en-au", {LanguageId::English, CountryId::Australia}},
    });
    std::array<Core::WordRow<TaggedLanguage>, languageRows.size() + others.size()> tags{};
    auto const end = std::ranges::transform(languageRows, tags.begin(), [](LanguageRow const& row) {
                         return Core::WordRow<TaggedLanguage>{row.code, {row.language, CountryId::None}};
                     }).out;
    std::ranges::copy(others, end);
    return tags;
}();

// Entry n is country number n + 1.
inline constexpr char16_t countrySuffixes[][3] = {u"US", u"GB", u"AU"};

consteval bool languageRowsAreNumbered() {
    for (std::size_t i = 0; i < languageRows.size(); ++i)
        if (static_cast<std::size_t>(languageRows[i].language) != i + 1) return false;
    return true;
}
static_assert(languageRowsAreNumbered(), "a language stands out of order");

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
