#include "xmlattr/catalogue/Names.h"

#include "xmlattr/catalogue/Elements.h"

#include <gtest/gtest.h>

namespace Xml {

inline void PrintTo(NameFact const& fact, std::ostream* out) {
    *out << int{static_cast<std::uint8_t>(fact.standing)} << " \"" << fact.text << '"';
}

inline bool operator==(NameFact const& a, NameFact const& b) {
    return a.standing == b.standing && a.text == b.text;
}

namespace {

using enum Vocabulary;
using enum NameStanding;

TEST(Names, OfAttributesStandAsTheVocabularyHasThem) {
    struct Row {
        Vocabulary vocabulary;
        char const* name;
        NameFact fact;
    };
    for (Row const& row :
         {Row{Fo, "space-before.minimum", {Known, ""}}, Row{Svg, "fill", {Known, ""}}, Row{Svg, "lang", {Known, ""}},
          Row{Fo, "fill", {Unknown, ""}},
          // One edit: left out, doubled, mistyped, exchanged.
          Row{Svg, "strok", {Unknown, "stroke"}}, Row{Svg, "wiidth", {Unknown, "width"}},
          Row{Fo, "colour", {Unknown, "color"}}, Row{Svg, "widht", {Unknown, "width"}},
          Row{Fo, "text-alihn", {Unknown, "text-align"}}, Row{Fo, "bakcgrund", {Unknown, ""}},
          Row{Svg, "z1", {Unknown, ""}}, Row{Svg, "", {Unknown, ""}},
          // Case goes before an edit.
          Row{Fo, "Font-Size", {Unknown, "font-size"}}, Row{Svg, "viewbox", {Unknown, "viewBox"}},
          Row{Svg, "onClick", {Unknown, "onclick"}}, Row{Svg, "X", {Unknown, "x"}},
          // A lost prefix.
          Row{Svg, "space", {Unknown, "xml:space"}}, Row{Fo, "base", {Unknown, "xml:base"}},
          Row{Svg, "show", {Unknown, "xlink:show"}}, Row{Fo, "href", {Unknown, ""}},
          // Newer and open names.
          Row{Svg, "href", {Newer, "SVG 2"}}, Row{Svg, "tabindex", {Newer, "SVG 2"}},
          Row{Svg, "transform-origin", {Newer, "CSS"}}, Row{Svg, "mix-blend-mode", {Newer, "CSS"}},
          Row{Svg, "paint-order", {Newer, "SVG 2"}}, Row{Svg, "vector-effect", {Newer, "SVG 2"}},
          Row{Svg, "focusable", {Newer, "SVG Tiny 1.2"}}, Row{Fo, "xml:id", {Newer, "the recommendation xml:id"}},
          Row{Fo, "transform-origin", {Unknown, ""}}, Row{Svg, "data-name", {Open, ""}},
          Row{Svg, "dataset", {Unknown, ""}}, Row{Fo, "aria-label", {Open, ""}}, Row{Svg, "onpointerdown", {Open, ""}},
          Row{Svg, "role", {Open, ""}}, Row{Fo, "xlink:href", {Open, ""}}, Row{Fo, "onclick", {Unknown, ""}}})
        EXPECT_EQ(Names::ofAttribute(row.vocabulary, row.name), row.fact) << row.name;
    for (Vocabulary const vocabulary : {Fo, Svg})
        for (std::string_view const name : Elements::attributes(vocabulary))
            EXPECT_EQ(Names::ofAttribute(vocabulary, name).standing, Known) << name;
}

TEST(Names, OfPropertiesHaveNoCase) {
    struct Row {
        char const* name;
        NameFact fact;
    };
    for (Row const& row :
         {Row{"fill", {Known, ""}}, Row{"Stroke-WIDTH", {Known, ""}}, Row{"width", {Newer, "SVG 2"}},
          Row{"D", {Newer, "SVG 2"}}, Row{"line-height", {Newer, "CSS"}}, Row{"-maker-stroke", {Open, ""}},
          Row{"--accent", {Open, ""}}, Row{"stroke-widht", {Unknown, "stroke-width"}}, Row{"Fil", {Unknown, "fill"}},
          Row{"viewBox", {Unknown, ""}}, Row{"tabindex", {Unknown, ""}}, Row{"", {Unknown, ""}}})
        EXPECT_EQ(Names::ofProperty(row.name), row.fact) << row.name;
    EXPECT_EQ(Names::ofProperty(std::string(100'000, 'x')), (NameFact{Unknown, ""}));
}

TEST(Names, MayStandInNewerPlaces) {
    for (auto const& [element, attribute] :
         {std::pair{"rect", "pathLength"}, {"script", "class"}, {"set", "fill"}, {"rect", "lang"}})
        EXPECT_TRUE(Names::isNewerOn(element, attribute)) << attribute << " on " << element;
    for (auto const& [element, attribute] : {std::pair{"rect", "points"}, {"g", "pathLength"}, {"symbol", "z"}})
        EXPECT_FALSE(Names::isNewerOn(element, attribute)) << attribute << " on " << element;
}

TEST(Names, OfElements) {
    struct Row {
        Vocabulary vocabulary;
        char const* name;
        NameFact fact;
    };
    for (Row const& row :
         {Row{Fo, "block", {Known, ""}}, Row{Fo, "blok", {Unknown, "block"}}, Row{Fo, "Block", {Unknown, "block"}},
          Row{Svg, "lineargradient", {Unknown, "linearGradient"}}, Row{Svg, "feDropShadow", {Newer, "SVG 2"}},
          Row{Svg, "flowRoot", {Newer, "a draft of SVG 1.2"}}, Row{Fo, "feDropShadow", {Unknown, ""}},
          Row{Svg, "b", {Unknown, ""}}, Row{Svg, "midPointStop", {Unknown, ""}}})
        EXPECT_EQ(Names::ofElement(row.vocabulary, row.name), row.fact) << row.name;
}

TEST(Names, OfNamespaces) {
    constexpr char const *fo = "http://www.w3.org/1999/XSL/Format", *svg = "http://www.w3.org/2000/svg";
    struct Row {
        char const* name;
        NameFact fact;
    };
    for (Row const& row :
         {Row{fo, {Known, ""}}, Row{"http://www.w3.org/1999/XSL/Transform", {Known, ""}},
          Row{"https://www.w3.org/2000/svg", {Unknown, svg}}, Row{"http://www.w3.org/2000/SVG/", {Unknown, svg}},
          Row{"http://www.w3.org/2001/svg", {Unknown, svg}}, Row{"http://www.w3.org/1999/XSL/Fromat", {Unknown, fo}},
          Row{"http://www.w3.org/1999/xhtml", {Open, ""}}, Row{"", {Open, ""}}, Row{"svg", {Open, ""}}})
        EXPECT_EQ(Names::ofNamespace(row.name), row.fact) << row.name;
}

} // namespace
} // namespace Xml
