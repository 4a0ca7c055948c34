#include "xmlattr/catalogue/Catalogue.h"

#include "WordTables.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/ExpressionFunctions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Xml {
namespace {

TEST(Catalogue, FindsEachOfItsRows) {
    for (CatalogueEntry const& entry : Catalogue::entries()) {
        for (std::string_view const name : entry.elements) {
            std::string_view const element = entry.isForEveryElement() ? "unheard-of" : name;
            EXPECT_EQ(Catalogue::find(entry.vocabulary, element, entry.attribute), &entry) << entry.attribute;
        }
        EXPECT_EQ(entry.type() ? entry.type()->name() : "", entry.valueType) << entry.attribute;
    }
}

TEST(Catalogue, FindsNoAttributeButItsOwn) {
    for (CatalogueEntry const& entry : Catalogue::entries())
        for (std::string const& text : Testing::mutations(entry.attribute)) {
            auto const* const found = Catalogue::find(entry.vocabulary, "block", text);
            bool const isThere = std::ranges::any_of(Catalogue::entries(), [&](CatalogueEntry const& other) {
                return other.vocabulary == entry.vocabulary && other.attribute == text &&
                       (other.isForEveryElement() || std::ranges::count(other.elements, "block") > 0);
            });
            ASSERT_EQ(found != nullptr, isThere) << text;
            ASSERT_TRUE(!found || found->attribute == text) << text;
        }
}

TEST(ExpressionFunctions, AreFoundByWholeName) {
    Testing::checkTable<expressionFunctions>("expressionFunctions");
}

TEST(Catalogue, AnElementsOwnRowGoesFirst) {
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "table", "width")->valueType, "TableWidth");
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "block-container", "width")->valueType, "LengthOrPercentAuto");
    EXPECT_EQ(Catalogue::find(Vocabulary::Svg, "animate", "fill")->kind, AttributeKind::Untyped);
    EXPECT_EQ(Catalogue::find(Vocabulary::Svg, "rect", "fill")->valueType, "SColor");
    EXPECT_EQ(Catalogue::find(Vocabulary::Svg, "rect", "ascent"), nullptr) << "an attribute of font-face alone";
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "block", "fill"), nullptr) << "the other vocabulary's";
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "block", ""), nullptr);
}

TEST(Catalogue, NamesVocabulariesAndKinds) {
    for (Vocabulary const vocabulary : {Vocabulary::Fo, Vocabulary::Svg}) {
        bool const isFo = vocabulary == Vocabulary::Fo;
        EXPECT_EQ(Catalogue::vocabularyOf(Catalogue::namespaceOf(vocabulary)), vocabulary);
        EXPECT_EQ(Catalogue::recommendation(vocabulary), isFo ? "XSL-FO 1.1" : "SVG 1.1");
        EXPECT_EQ(Catalogue::name(vocabulary), isFo ? "fo" : "svg");
    }
    EXPECT_EQ(Catalogue::vocabularyOf("http://www.w3.org/1999/xhtml"), std::nullopt);
    std::string kinds;
    for (char const* const attribute : {"color", "border", "id", "role", "writing-mode"})
        kinds += std::string(Catalogue::name(Catalogue::find(Vocabulary::Fo, "*", attribute)->kind)) + " ";
    EXPECT_EQ(kinds, "typed shorthand identifier text none ");
}

TEST(Catalogue, GivesEveryRowOfAnAttribute) {
    for (CatalogueEntry const& entry : Catalogue::entries()) {
        std::span<CatalogueEntry const> const rows = Catalogue::rowsOf(entry.vocabulary, entry.attribute);
        EXPECT_TRUE(&entry >= rows.data() && &entry < rows.data() + rows.size()) << entry.attribute;
        for (CatalogueEntry const& row : rows) {
            EXPECT_TRUE(row.attribute == entry.attribute && row.vocabulary == entry.vocabulary) << entry.attribute;
            EXPECT_TRUE(&row == rows.data() || !row.isForEveryElement()) << entry.attribute << ": it is the first";
        }
    }
    EXPECT_EQ(Catalogue::rowsOf(Vocabulary::Svg, "fill").size(), 2u);
    EXPECT_TRUE(Catalogue::rowsOf(Vocabulary::Fo, "fill").empty());
}

TEST(Catalogue, KnowsPropertiesAndLists) {
    struct Row {
        Vocabulary vocabulary;
        char const* attribute;
        bool isInherited, isPresentation, isList;
    };
    for (Row const& row :
         {Row{Vocabulary::Svg, "fill", true, true, false}, Row{Vocabulary::Svg, "stroke-dasharray", true, true, true},
          Row{Vocabulary::Svg, "viewBox", false, false, true}, Row{Vocabulary::Svg, "xml:lang", true, false, false},
          Row{Vocabulary::Fo, "color", true, false, false}}) {
        CatalogueEntry const* const entry = Catalogue::find(row.vocabulary, "*", row.attribute);
        ASSERT_NE(entry, nullptr) << row.attribute;
        EXPECT_EQ(entry->isInherited, row.isInherited) << row.attribute;
        EXPECT_EQ(entry->isPresentation, row.isPresentation) << row.attribute;
        EXPECT_EQ(entry->type()->readsList(), row.isList) << row.attribute;
    }
}

} // namespace
} // namespace Xml
