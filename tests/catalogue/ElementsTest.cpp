#include "xmlattr/catalogue/Elements.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Xml {
namespace {

using enum Vocabulary;

TEST(Elements, AreThoseOfTheRecommendations) {
    for (Vocabulary const vocabulary : {Fo, Svg}) {
        auto const names = Elements::names(vocabulary);
        EXPECT_EQ(names.size(), 81u) << Catalogue::name(vocabulary);
        EXPECT_TRUE(std::ranges::is_sorted(names)) << Catalogue::name(vocabulary);
        for (std::string_view const name : names) EXPECT_TRUE(Elements::isKnown(vocabulary, name)) << name;
    }
    EXPECT_FALSE(Elements::isKnown(Fo, "rect"));
    EXPECT_FALSE(Elements::isKnown(Svg, "Rect"));
    EXPECT_FALSE(Elements::isKnown(Svg, ""));
}

TEST(Elements, HaveTheAttributesThatTheirRowsAreFor) {
    for (CatalogueEntry const& entry : Catalogue::entries()) {
        EXPECT_TRUE(Elements::isAttribute(entry.vocabulary, entry.attribute)) << entry.attribute;
        auto const has = [&](std::string_view element) {
            return Elements::has(entry.vocabulary, element, entry.attribute);
        };
        for (std::string_view const element : entry.elements)
            EXPECT_TRUE(element == "*" || has(element)) << entry.attribute << " on " << element;
        if (!entry.isForEveryElement()) continue;
        EXPECT_TRUE(std::ranges::any_of(
            Elements::names(entry.vocabulary),
            [&](std::string_view element) {
                return (element != "multi-property-set" || entry.attribute == "active-state") && has(element);
            }))
            << entry.attribute << " has no element";
    }
}

TEST(Elements, TellWhichAttributesTheyHave) {
    struct Row {
        Vocabulary vocabulary;
        char const *element, *with, *without;
    };
    auto const split = [](std::string_view words, auto&& take) {
        while (!words.empty()) {
            std::size_t const end = std::min(words.find(' '), words.size());
            take(words.substr(0, end));
            words.remove_prefix(std::min(end + 1, words.size()));
        }
    };
    for (Row const& row :
         {Row{Fo, "block", "space-before space-before.minimum margin border-top break-before color id span xml:lang",
              "width height src column-count fill Color space-before.middle space-start"},
          Row{Fo, "inline", "space-start.optimum vertical-align width keep-with-next.within-line text-decoration",
              "space-before break-before clear number-rows-spanned"},
          Row{Fo, "table-cell", "number-columns-spanned padding display-align width border-after-precedence",
              "space-before keep-with-next table-layout master-name margin"},
          Row{Fo, "table-row", "height keep-with-next break-before", "width column-number"},
          Row{Fo, "simple-page-master", "size page-width margin-top", "background-color width extent"},
          Row{Fo, "region-body", "column-count margin-top padding", "extent precedence"},
          Row{Fo, "region-start", "extent padding", "precedence margin column-gap"},
          Row{Fo, "page-sequence", "format initial-page-number force-page-count country", "flow-name page-height"},
          Row{Fo, "multi-property-set", "width active-state column-count", "fill"}, Row{Fo, "blok", "", "color id"},
          Row{Svg, "rect", "width rx fill transform onclick class requiredFeatures font-size xml:space",
              "points r cx viewBox xlink:href d offset by"},
          Row{Svg, "path", "d pathLength marker-start", "x width points"},
          Row{Svg, "linearGradient", "x1 spreadMethod xlink:href gradientTransform", "cx fx transform width onclick"},
          Row{Svg, "stop", "offset stop-color style", "x1 xlink:href transform"},
          Row{Svg, "feFuncR", "tableValues slope", "in result fill class"},
          Row{Svg, "animate", "fill from keyTimes begin attributeName xlink:href", "path type transform class"},
          Row{Svg, "svg", "viewBox width zoomAndPan onzoom", "transform points xlink:href"},
          Row{Svg, "title", "id class", "fill transform"}}) {
        split(row.with, [&](std::string_view name) {
            EXPECT_TRUE(Elements::has(row.vocabulary, row.element, name)) << name << " on " << row.element;
        });
        split(row.without, [&](std::string_view name) {
            EXPECT_FALSE(Elements::has(row.vocabulary, row.element, name)) << name << " on " << row.element;
        });
    }
}

} // namespace
} // namespace Xml
