// The language of text, for hyphenation and whatever else depends on it.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/Object.h"
#include "xmlattr/drawing/LanguageId.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// A language and, for English, its country. Read from a two-letter code of ISO 639-1, from "cze",
// "dan" or "eng", or from "en-us", "en-gb" or "en-au", in any case and with nothing around it; no
// other code and no other region is known. The attribute has no printer.
class XMLATTR_API Language : public Core::Object {
public:
    constexpr Language() = default;
    constexpr Language(Drawing::LanguageId newLanguage, Drawing::CountryId newCountry)
        : language(newLanguage), country(newCountry) {}
    Language(Language const&) = default;
    Language& operator=(Language const&) = default;
    ~Language() override;

    constexpr Drawing::LanguageId getLanguage() const { return language; }
    constexpr Drawing::CountryId getCountry() const { return country; }

    // Intended: the country is ignored, so that text in en-us is text in en-gb; only the order tells
    // them apart.
    constexpr bool operator==(Language const& other) const { return language == other.language; }
    constexpr bool operator<(Language const& other) const {
        return language != other.language ? language < other.language : country < other.country;
    }

    // False for a text that is no known tag; then `value` is untouched.
    static bool parseLanguage(Core::String const& text, Language& value);

    // "en", "en-US": the code and, when there is a country, "-" and its suffix. Empty when the
    // language has no code.
    static Core::String getISO639LanguageName(Language const& language);
    // "US", "GB", "AU" or nothing.
    static Core::String getISO639CountrySuffix(Drawing::CountryId country);
    // The lower-case English name; "english" for an out-of-range language.
    static Core::String getFullLanguageNameById(Drawing::LanguageId language);

private:
    Drawing::LanguageId language = Drawing::LanguageId::None;
    Drawing::CountryId country = Drawing::CountryId::None;
};

template <> struct XMLATTR_API AttributeTraits<Language> {
    static bool parse(Language& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{
        {u"a two-letter code of ISO 639-1", u"cze, dan, eng, en-us, en-gb or en-au, in any case"},
        {u"en-GB", u"de"},
        false};
    static void words(Words& out);
    static void parts(Language const& value, Parts& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
