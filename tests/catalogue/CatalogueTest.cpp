#include "xmlattr/catalogue/Catalogue.h"

#include "xmlattr/catalogue/types/AttributeTypes.h"

#include <gtest/gtest.h>

namespace Xml {
namespace {

TEST(Catalogue, FindsEachOfItsRows) {
    for (CatalogueEntry const& entry : Catalogue::entries()) {
        std::string_view const element = entry.element == "*" ? "unheard-of" : entry.element;
        EXPECT_EQ(Catalogue::find(entry.vocabulary, element, entry.attribute), &entry) << entry.attribute;
        EXPECT_EQ(entry.kind == AttributeKind::Typed, !entry.valueType.empty()) << entry.attribute;
    }
    EXPECT_EQ(Catalogue::entries().size(), 824u);
}

TEST(Catalogue, AnElementsOwnRowGoesFirst) {
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "table", "width")->valueType, "TableWidth");
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "block-container", "width")->valueType, "LengthOrPercentAuto");
    EXPECT_EQ(Catalogue::find(Vocabulary::Svg, "animate", "fill")->kind, AttributeKind::None);
    EXPECT_EQ(Catalogue::find(Vocabulary::Svg, "rect", "fill")->valueType, "SColor");
    EXPECT_EQ(Catalogue::find(Vocabulary::Svg, "rect", "ascent"), nullptr) << "an attribute of font-face alone";
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "block", "fill"), nullptr) << "the other vocabulary's";
    EXPECT_EQ(Catalogue::find(Vocabulary::Fo, "block", ""), nullptr);
}

TEST(Catalogue, NamesTypesOfTheLibrary) {
    for (CatalogueEntry const& entry : Catalogue::entries())
        EXPECT_TRUE(entry.valueType.empty() || Xml::findAttributeType(entry.valueType)) << entry.attribute;
}

} // namespace
} // namespace Xml
