#include "xmlattr/language/Language.h"

#include "xmlattr/language/LanguageTable.h"

#include <iterator>

namespace Xml {

namespace {

// The row of a number that counts from 1, or null when there is none.
template <class Rows, class Number> auto const* rowOf(Rows const& rows, Number number) {
    auto const index = static_cast<std::size_t>(number) - 1; // 0 and negative numbers become huge
    return index < std::size(rows) ? &rows[index] : nullptr;
}

} // namespace

Language::~Language() = default;

bool Language::parseLanguage(Core::String const& text, Language& value) {
    return AttributeTraits<Language>::parse(value, text);
}

Core::String Language::getISO639LanguageName(Language const& language) {
    LanguageRow const* const row = rowOf(languageRows, language.language);
    if (!row) return {};
    if (language.country == Drawing::CountryId::None) return row->code;
    return row->code + (u"-" + getISO639CountrySuffix(language.country));
}

Core::String Language::getISO639CountrySuffix(Drawing::CountryId country) {
    auto const* const suffix = rowOf(countrySuffixes, country);
    return suffix ? Core::String(*suffix) : Core::String();
}

Core::String Language::getFullLanguageNameById(Drawing::LanguageId language) {
    LanguageRow const* const row = rowOf(languageRows, language);
    return row ? row->name : u"english"; // Intended: a text without a language counts as English
}

bool AttributeTraits<Language>::parse(Language& value, std::u16string_view text) {
    auto const tagged = Core::WordTable<languageTags, Core::Case::Any>::find(text);
    if (tagged) value = Language(tagged->language, tagged->country);
    return tagged.has_value();
}

void AttributeTraits<Language>::parts(Language const& value, Parts& out) {
    out.add(u"tag") << Language::getISO639LanguageName(value);
    out.add(u"language") << Language::getFullLanguageNameById(value.getLanguage());
}

void AttributeTraits<Language>::words(Words& out) {
    out.addAll(languageTags);
}

} // namespace Xml
