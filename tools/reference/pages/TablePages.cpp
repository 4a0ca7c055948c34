// The pages of the tables that value types read by.
#include "tools/reference/pages/Pages.h"
#include "tools/reference/pages/Trials.h"

#include "xmlattr/catalogue/DefaultConstant.h"
#include "xmlattr/catalogue/grammar/UnitWords.h"
#include "xmlattr/color/ColorNames.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/SystemColors.h"
#include "xmlattr/language/Language.h"
#include "xmlattr/language/LanguageTable.h"
#include "xmlattr/measures/Units.h"

#include <cstdio>

namespace Reference {

namespace {

Page constantsPage() {
    Page page("constants.md", "Default constants");
    page.paragraph("The constants of `xmlattr/defaults/DefaultAttributes.h`: the values of properties that a document "
                   "does not set. `DefaultFontFamily` and `DefaultFontSize` may come from the configuration; these are "
                   "the values without one.");
    std::vector<Row> rows;
    for (Xml::DefaultConstant const& constant : Xml::DefaultConstant::all()) {
        State const state = stateOf(Xml::AnyAttribute(constant.type(), *constant));
        rows.push_back({codeOf(constant.name()), codeOf(constant.type().name()), printOf(state), partsOf(state)});
    }
    page.table({"constant", "type", "prints", "value"}, rows);
    return page;
}

// As a colour attribute reads the name.
template <class Rows> std::vector<Row> colorRows(Rows const& names) {
    std::vector<Row> rows;
    for (auto const& name : names) {
        Xml::AnyAttribute color(*Xml::AttributeType::find("SmartPtr<Drawing::Color>"));
        color.parseValue(name.word);
        char number[16];
        std::snprintf(number, sizeof number, "#%06X", color.parts().rgb.value_or(0));
        rows.push_back({codeOf(name.word), codeOf(std::string_view(number)), codeOf(color.getValueAsString())});
    }
    return rows;
}

Page colorsPage() {
    Page page("colour-names.md", "Names of colours");
    page.paragraph("What colour attributes read besides functions and numbers: the colour keywords of SVG 1.1 and the "
                   "system colours of CSS 2, in any case.");
    page.heading(2, "Colour keywords");
    page.table({"name", "number", "prints"}, colorRows(Xml::colorNames));
    page.heading(2, "System colours");
    page.paragraph("These are the colours of a plain desktop; a program may set others, and more names, by "
                   "`Core::OSInfo::setSystemColor`.");
    page.table({"name", "number", "prints"}, colorRows(Core::systemColors));
    return page;
}

Page languagesPage() {
    Page page("languages.md", "Languages");
    page.paragraph("What `Language` reads, in any case: codes of ISO 639-1 and a few more tags.");
    std::vector<Row> rows;
    for (auto const& tag : Xml::languageTags) {
        Xml::Language language;
        Xml::Language::parseLanguage(tag.word, language);
        rows.push_back({codeOf(tag.word), std::to_string(static_cast<int>(language.getLanguage())),
                        codeOf(Xml::Language::getISO639LanguageName(language)),
                        codeOf(Xml::Language::getFullLanguageNameById(language.getLanguage())),
                        std::to_string(static_cast<int>(language.getCountry()))});
    }
    page.table({"tag", "number", "name in ISO 639", "full name", "country"}, rows);
    return page;
}

std::string numberOf(float number) {
    return Core::Format::toShortest(number).toUtf8();
}

std::string kindOf(Xml::ItemKind unit) {
    switch (unit) {
    case Xml::ItemKind::Length: return "length";
    case Xml::ItemKind::Percentage: return "percentage";
    case Xml::ItemKind::Angle: return "angle";
    case Xml::ItemKind::Time: return "time";
    case Xml::ItemKind::Frequency: return "frequency";
    case Xml::ItemKind::Word:
    case Xml::ItemKind::Number:
    case Xml::ItemKind::Color:
    case Xml::ItemKind::Uri:
    case Xml::ItemKind::Text: break;
    }
    return "";
}

void addGrammarUnits(Page& page) {
    page.heading(2, "Units of the recommendations");
    page.paragraph("The [kinds of values](kinds-of-values.md) have these units, exact in case except in a `style` "
                   "attribute.");
    std::vector<Row> rows;
    for (auto const& unit : Xml::unitWords) rows.push_back({codeOf(unit.word), kindOf(unit.value)});
    page.table({"unit", "of a"}, rows);
    page.heading(2, "Names for units");
    page.paragraph("Where a text has such a name, in any case, `check` suggests the unit.");
    rows.clear();
    for (auto const& name : Xml::unitNames) rows.push_back({codeOf(name.word), codeOf(name.value)});
    page.table({"name", "unit"}, rows);
}

Page unitsPage() {
    Page page("units.md", "Units");
    page.paragraph("How many pixels one of each unit is, and how many of the unit 96 pixels are, which is one inch. "
                   "`em` and `ex` are fixed fractions of a pixel, whatever the font; `pc` has different factors in the "
                   "two directions. `Length` and `SLength` give the units different numbers.");
    std::vector<Row> rows;
    for (auto const& [word, unit] : Xml::unitRows) {
        Row row{codeOf(word), "", "", "", "", ""};
        if (Xml::Length::Unit const inLength = unit.length; inLength != Xml::noUnit<Xml::Length::Unit>) {
            row[1] = numberOf(Xml::Length(1, inLength).pxSize());
            row[2] = numberOf(Xml::Length::pxSizeToUnitSize(96, inLength));
            row[3] = std::to_string(static_cast<int>(inLength));
        }
        if (Xml::SLength::Unit const inSLength = unit.sLength; inSLength != Xml::noUnit<Xml::SLength::Unit>) {
            row[4] = numberOf(Xml::SLength(1, inSLength).pxSize());
            row[5] = std::to_string(static_cast<int>(inSLength));
        }
        rows.push_back(std::move(row));
    }
    page.table({"unit", "pixels of one", "of 96 pixels", "number in `Length`", "pixels of one `SLength`",
                "number in `SLength`"},
               rows);
    addGrammarUnits(page);
    return page;
}

} // namespace

std::vector<Page> tablePages() {
    return {constantsPage(), colorsPage(), languagesPage(), unitsPage()};
}

} // namespace Reference
