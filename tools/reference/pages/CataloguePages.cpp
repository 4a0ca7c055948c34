// The pages of the catalogue: attributes, elements, kinds of values, functions, newer names and newer values.
#include "tools/reference/pages/Pages.h"

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/catalogue/Elements.h"
#include "xmlattr/catalogue/Names.h"
#include "xmlattr/catalogue/grammar/GrammarText.h"
#include "xmlattr/catalogue/grammar/NewerValues.h"
#include "xmlattr/catalogue/legality/ExpressionFunctions.h"
#include "xmlattr/catalogue/text/Words.h"
#include "xmlattr/core/String.h"

#include <algorithm>

namespace Reference {

namespace {

using Xml::AttributeKind, Xml::CatalogueEntry, Xml::Vocabulary;

struct Names {
    Vocabulary vocabulary;
    std::string_view file, title;
};

constexpr Names vocabularies[] = {{Vocabulary::Fo, "fo", "XSL-FO 1.1"}, {Vocabulary::Svg, "svg", "SVG 1.1"}};

template <class Texts> std::vector<std::string> codesOf(Texts const& texts) {
    std::vector<std::string> codes;
    for (std::string_view const text : texts) codes.push_back(codeOf(text));
    return codes;
}

// "`border-width`, `border-style` and `border-color`, up to 3".
std::string partsOf(CatalogueEntry const& entry) {
    if (entry.longhands.empty()) return "several, of which nothing is known";
    std::vector<std::string> longhands;
    for (CatalogueEntry const* const longhand : entry.longhands) longhands.push_back(codeOf(longhand->attribute));
    std::string line = listOf(longhands);
    line += entry.isFont ? ", as a font has them" : ", up to " + std::to_string(entry.mostParts);
    if (!entry.ownWords.empty()) line += "; or " + listOf(codesOf(entry.ownWords), "or");
    return line;
}

std::string readsOf(CatalogueEntry const& entry) {
    switch (entry.kind) {
    case AttributeKind::Typed: return codeOf(entry.valueType);
    case AttributeKind::Shorthand: return "shorthand of " + partsOf(entry);
    case AttributeKind::Identifier: return "identifier";
    case AttributeKind::Text: return "free text";
    case AttributeKind::Untyped: return "no type";
    }
    return "";
}

std::string codeOrNothing(std::string_view text) {
    return text.empty() ? "" : codeOf(text);
}

Page attributesPage(Names const& names) {
    bool const isSvg = names.vocabulary == Vocabulary::Svg;
    Page page("attributes-" + std::string(names.file) + ".md", "Attributes of " + std::string(names.title));
    page.paragraph(
        "Which type reads which attribute, and what the recommendation says of it: the grammar of its "
        "values, in the notation that `xmlattr/catalogue/grammar/Grammar.h` describes, its initial value and "
        "whether it is inherited. [Kinds of values](kinds-of-values.md) explains what stands in angle brackets. A row "
        "without elements is for all elements that have no row of their own. The attributes of each element are on "
        "[another page](elements-" +
        std::string(names.file) + ".md).");
    std::vector<Row> rows;
    for (CatalogueEntry const& entry : Xml::Catalogue::entries()) {
        if (entry.vocabulary != names.vocabulary) continue;
        std::string const elements = entry.isForEveryElement() ? "" : listOf(codesOf(entry.elements));
        Row row{codeOf(entry.attribute),
                elements,
                readsOf(entry),
                codeOrNothing(entry.defaultConstant),
                codeOrNothing(entry.grammar.text()),
                codeOrNothing(entry.initial),
                entry.isInherited ? "yes" : "no"};
        if (isSvg) row.push_back(entry.isPresentation ? "yes" : "no");
        row.push_back(markdownOf(entry.note));
        rows.push_back(std::move(row));
    }
    Row titles{"attribute", "on", "read by", "constant", "grammar", "initial value", "inherited"};
    if (isSvg) titles.emplace_back("property");
    titles.emplace_back("note");
    page.table(titles, rows);
    return page;
}

Page elementsPage(Names const& names) {
    Page page("elements-" + std::string(names.file) + ".md", "Elements of " + std::string(names.title));
    auto const elements = Xml::Elements::names(names.vocabulary);
    std::vector<std::string> onEvery;
    std::vector<std::vector<std::string>> others(elements.size());
    for (std::string_view const attribute : Xml::Elements::attributes(names.vocabulary)) {
        auto const hasIt = [&](std::string_view element) {
            return Xml::Elements::has(names.vocabulary, element, attribute);
        };
        if (std::ranges::all_of(elements, hasIt)) {
            onEvery.push_back(codeOf(attribute));
            continue;
        }
        for (std::size_t i = 0; i < elements.size(); ++i)
            if (hasIt(elements[i])) others[i].push_back(codeOf(attribute));
    }
    page.paragraph("Every element has " + listOf(onEvery) + ". The others of each element follow.");
    for (std::size_t i = 0; i < elements.size(); ++i) {
        page.heading(2, "`" + std::string(elements[i]) + "`");
        page.paragraph(others[i].empty() ? "None." : listOf(others[i]) + ".");
    }
    return page;
}

// What a grammar of this one kind of value asks for.
std::string nounOf(Xml::Token token, Xml::Dialect dialect) {
    Xml::GrammarStep steps[2];
    steps[1].kind = Xml::GrammarStep::Value;
    steps[1].token = token;
    return markdownOf(Xml::describeGrammar(Xml::Grammar("", steps), dialect));
}

std::string resultOf(Xml::ExpressionFunction::Result result) {
    switch (result) {
    case Xml::ExpressionFunction::Argument: return "one of the arguments";
    case Xml::ExpressionFunction::Number: return "a number";
    case Xml::ExpressionFunction::Length: return "a length";
    case Xml::ExpressionFunction::Share: return "a share of the width that is left";
    case Xml::ExpressionFunction::Color: return "a colour";
    case Xml::ExpressionFunction::Font: return "a property of a font";
    case Xml::ExpressionFunction::Copy: return "the value of another property";
    }
    return "";
}

Page kindsPage() {
    Page page("kinds-of-values.md", "Kinds of values");
    page.paragraph("The kinds of values that stand in angle brackets in the grammars of attributes.");
    page.heading(2, "Kinds that have a reader");
    std::vector<Row> rows;
    for (auto const& [name, token] : Xml::TokenTables::names)
        rows.push_back({codeOf("<" + std::string(name) + ">"), nounOf(token, Xml::Dialect::Fo),
                        nounOf(token, Xml::Dialect::SvgAttribute)});
    page.table({"kind", "XSL-FO 1.1", "SVG 1.1"}, rows);
    page.heading(2, "Kinds that are short for a grammar");
    rows.clear();
    for (auto const& [name, grammar] : Xml::TokenTables::productions)
        rows.push_back({codeOf("<" + std::string(name) + ">"), codeOf(grammar)});
    page.table({"kind", "grammar"}, rows);
    page.heading(2, "Functions of expressions");
    page.paragraph("XSL-FO 1.1 allows them in every property.");
    rows.clear();
    for (auto const& [name, function] : Xml::expressionFunctions) {
        std::string arguments = std::to_string(function.least);
        if (function.most > function.least) arguments.append(" to ").append(std::to_string(function.most));
        rows.push_back({codeOf(name), arguments, resultOf(function.result)});
    }
    page.table({"function", "arguments", "gives"}, rows);
    return page;
}

// The attributes of SVG 1.1 that SVG 2 gives to more elements.
void addNewerPlaces(Page& page) {
    page.heading(2, "On more elements");
    auto const elements = Xml::Elements::names(Vocabulary::Svg);
    std::vector<std::string> onEvery;
    std::vector<Row> rows;
    for (std::string_view const attribute : Xml::Elements::attributes(Vocabulary::Svg)) {
        std::vector<std::string> others;
        for (std::string_view const element : elements)
            if (Xml::Names::isNewerOn(element, attribute)) others.push_back(codeOf(element));
        if (others.size() == elements.size())
            onEvery.push_back(codeOf(attribute));
        else if (!others.empty())
            rows.push_back({codeOf(attribute), listOf(others)});
    }
    page.paragraph("SVG 2 gives attributes of SVG 1.1 to elements that do not have them there: to every element " +
                   listOf(onEvery) + ", and to some elements these:");
    page.table({"attribute", "elements"}, rows);
}

struct NewerName {
    std::string_view name, kind, source;
};

constexpr NewerName newerNames[] = {
#define XMLATTR_NEWER(kind, name, source) {name, #kind, source},
#include "xmlattr/catalogue/NewerNames.inc"
#undef XMLATTR_NEWER
};

Page newerNamesPage() {
    Page page("newer-names.md", "Newer names");
    page.paragraph("Names that SVG 1.1 does not have and a newer recommendation has.");
    std::vector<Row> rows;
    for (auto const& [name, kind, source] : newerNames) {
        std::string_view const what = kind == "Element" ? "element" : kind == "Attribute" ? "attribute" : "property";
        rows.push_back({codeOf(name), std::string(what), std::string(source)});
    }
    page.table({"name", "what", "where"}, rows);
    addNewerPlaces(page);
    return page;
}

// The words of a list, which stand between blanks.
std::string wordsOf(std::u16string_view list) {
    std::vector<std::string> codes;
    for (std::u16string_view const word : Xml::splitValues(list)) codes.push_back(codeOf(word));
    return listOf(codes);
}

template <class Lists> void addNewerWords(Page& page, std::string_view title, Lists const& lists) {
    page.heading(2, title);
    std::vector<Row> rows;
    for (Xml::NewerWords const& list : lists) rows.push_back({std::string(list.recommendation), wordsOf(list.words)});
    page.table({"recommendation", "names"}, rows);
}

Page newerValuesPage() {
    Page page("newer-values.md", "Newer values");
    page.paragraph(
        "A text that XSL-FO 1.1 or SVG 1.1 does not allow may be a value of a newer recommendation, which "
        "`check` then names. It is one if its attribute of SVG is listed here with it; if it contains one of "
        "the words, functions or units, in any case; if it contains a colour with an alpha (`#1234`, "
        "`rgb(1,2,3,.5)`) or with blanks (`rgb(1 2 3)`); or if a number in a transform of SVG 1.1 has a unit.");
    page.heading(2, "Values of attributes of SVG");
    std::vector<Row> rows;
    for (Xml::NewerValues const& values : Xml::newerValues)
        rows.push_back({wordsOf(Core::String::fromUtf8(values.words)), codeOf(values.grammar.text()),
                        std::string(values.recommendation)});
    page.table({"attributes", "grammar", "recommendation"}, rows);
    addNewerWords(page, "Words", Xml::newerWords);
    addNewerWords(page, "Functions", Xml::newerFunctions);
    addNewerWords(page, "Functions that XSL-FO has too", Xml::newerSvgFunctions);
    addNewerWords(page, "Transforms whose numbers have no unit in SVG 1.1", Xml::olderTransforms);
    addNewerWords(page, "Units", Xml::newerUnits);
    return page;
}

} // namespace

std::vector<Page> cataloguePages() {
    std::vector<Page> pages;
    for (Names const& names : vocabularies) pages.push_back(attributesPage(names));
    for (Names const& names : vocabularies) pages.push_back(elementsPage(names));
    pages.push_back(kindsPage());
    pages.push_back(newerNamesPage());
    pages.push_back(newerValuesPage());
    return pages;
}

} // namespace Reference
