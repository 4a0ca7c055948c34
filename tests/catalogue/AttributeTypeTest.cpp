#include "xmlattr/catalogue/AttributeType.h"

#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/catalogue/DefaultConstant.h"
#include "xmlattr/keywords/LayoutKeywords.h"
#include "xmlattr/measures/Length.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

namespace Xml {
namespace {

std::string narrow(std::u16string_view text) {
    return Core::String(text).toUtf8();
}

AttributeType const& typeNamed(std::string_view name) {
    AttributeType const* const type = AttributeType::find(name);
    if (!type) throw std::invalid_argument(std::string(name));
    return *type;
}

TEST(AttributeType, SaysWhatItReads) {
    struct Row {
        char const *type, *syntax;
    };
    for (Row const& row :
         {Row{"BorderWidth", "thin, medium, thick or a length"},
          Row{"Break", "auto, column, page, even-page or odd-page"}, Row{"Keep", "auto, always or a whole number"},
          Row{"Indent", "body-start(), label-end(), normal, a length, a percentage or a number (1.5 is 150%)"},
          Row{"ThreeState", "true, false or any other text"}, Row{"SColor", "none, url(#ID) or a colour"},
          Row{"int", "a whole number"}})
        EXPECT_EQ(narrow(typeNamed(row.type).syntax()), row.syntax) << row.type;
}

// Authors of documents read the lines: they know neither the names of classes nor an empty line.
TEST(AttributeType, SaysSoInPlainWords) {
    for (AttributeType const& type : AttributeType::all()) {
        std::string const syntax = narrow(type.syntax());
        EXPECT_FALSE(syntax.empty()) << type.name();
        for (AttributeType const& other : AttributeType::all()) {
            if (!other.isEnumeration() && other.name().size() > 5) {
                EXPECT_EQ(syntax.find(other.name()), std::string::npos) << type.name() << ": " << syntax;
            }
        }
    }
}

TEST(AttributeType, ReadsItsWordsAndExamples) {
    for (AttributeType const& type : AttributeType::all()) {
        for (std::u16string_view const text : type.words())
            EXPECT_TRUE(type.accepts(text)) << type.name() << ": " << narrow(text);
        for (std::u16string_view const text : type.examples())
            EXPECT_TRUE(type.accepts(text)) << type.name() << ": " << narrow(text);
        EXPECT_FALSE(type.words().empty() && type.examples().empty()) << type.name();
        EXPECT_LE(type.readsAnyText(), type.accepts(u"sailing (boat")) << type.name();
    }
}

TEST(AttributeType, IsFoundByItsName) {
    for (AttributeType const& type : AttributeType::all()) EXPECT_EQ(AttributeType::find(type.name()), &type);
    for (char const* const name : {"", "length", "Lengt", "Length ", "zzz"})
        EXPECT_EQ(AttributeType::find(name), nullptr) << name;
}

TEST(AnyAttribute, IsAnAttribute) {
    AnyAttribute width(typeNamed("BorderWidth"));
    EXPECT_TRUE(width.parseValue(u"thick"));
    EXPECT_FALSE(width.parseValue(u"5 parsecs"));
    EXPECT_EQ(width.getValueAsString(), u"thick");
    AnyAttribute copy = width;
    EXPECT_TRUE(copy.parseValue(u"thin"));
    EXPECT_EQ(width.getValueAsString(), u"thick");
    EXPECT_FALSE(copy == width);
    (*copy).copyFrom(*width);
    EXPECT_TRUE(copy == width);
    copy = AnyAttribute(typeNamed("Core::String"));
    EXPECT_TRUE(copy.parseValue(u"thick") && copy.isEqual(u"thick"));
    EXPECT_FALSE(copy == width) << "another type";
    width = std::move(copy);
    EXPECT_EQ(&width.type(), &typeNamed("Core::String"));
}

// From the names of a document to values of every row, those of types that have no name outside included.
TEST(AnyAttribute, ServesEveryRowAndEveryConstant) {
    for (CatalogueEntry const& entry : Catalogue::entries()) {
        if (entry.valueType.empty()) continue;
        AttributeType const& type = typeNamed(entry.valueType);
        AnyAttribute attribute(type);
        auto const texts = type.words().empty() ? type.examples() : type.words();
        EXPECT_TRUE(attribute.parseValue(texts.front())) << type.name();
        if (entry.defaultConstant.empty()) continue;
        EXPECT_NE(DefaultConstant::find(entry.defaultConstant), nullptr) << entry.defaultConstant;
    }
    for (DefaultConstant const& constant : DefaultConstant::all()) {
        EXPECT_EQ(DefaultConstant::find(constant.name()), &constant) << constant.name();
        AnyAttribute const copy(constant.type(), *constant);
        EXPECT_EQ(copy.getValueAsString(), (*constant).getValueAsString()) << constant.name();
    }
    struct Row {
        char const *name, *type;
        char16_t const* text;
    };
    for (Row const& row :
         {Row{"DefaultWidowsAndOrphans", "int", u"2"}, Row{"DefaultFontFamily", "Core::String", u"Times"},
          Row{"DefaultFOVisibilityAttribute", "Visibility", u"visible"}}) {
        DefaultConstant const& constant = *DefaultConstant::find(row.name);
        EXPECT_EQ(constant.type().name(), row.type);
        EXPECT_EQ((*constant).getValueAsString(), row.text);
    }
}

TEST(AttributeTraits, ServeProgramsThatReadViews) {
    std::u16string_view const text = u"12pt page";
    Length length;
    EXPECT_TRUE(AttributeTraits<Length>::parse(length, text.substr(0, 4)));
    EXPECT_EQ(AttributeTraits<Length>::print(length), u"12pt");
    Break value{};
    EXPECT_TRUE(AttributeTraits<Break>::parse(value, text.substr(5)));
    EXPECT_EQ(AttributeTraits<Break>::print(value), u"page");
}

TEST(AnyAttribute, TakesValuesApart) {
    struct Row {
        char const* type;
        char16_t const* text;
        char const* parts; // "name value", separated by bars
    };
    for (Row const& row :
         {Row{"Length", u"36pt", "pixels 48"},
          Row{"DLength", u"1px 2px", "pixels 1|pixels 2"},
          Row{"SLength", u"1.5pc", "size 1.5pc|pixels 24"},
          Row{"SLength", u"5%", "size 5%"},
          Row{"LengthOrPercent", u"50%", "fraction 0.5"},
          Row{"LengthOrPercentAuto", u"auto", "automatic yes"},
          Row{"BackgroundSize", u"auto", ""},
          Row{"BackgroundSize", u"50%", "fraction 0.5"},
          Row{"PageDimension", u"auto", "kind auto"},
          Row{"PageDimension", u"indefinite", "kind indefinite"},
          Row{"PageDimension", u"3px", "pixels 3"},
          Row{"SSpacing", u"normal", "kind normal"},
          Row{"SSpacing", u"3", "size 3|pixels 3"},
          Row{"SBaselineShift", u"baseline", "kind baseline"},
          Row{"SBaselineShift", u"super", "kind super"},
          Row{"SBaselineShift", u"25%", "fraction 0.25"},
          Row{"FloatOrPercent", u"25%", "number 0.25"},
          Row{"FontSize", u"smaller", "relative smaller"},
          Row{"Drawing::RectF", u"rect(1px, 2px, 3px, 4px)", "top 1|right 2|bottom 3|left 4"},
          Row{"SmartPtr<Drawing::Color>", u"none", "kind no colour"},
          Row{"SmartPtr<Drawing::Color>", u"#010203", "kind RGB|rgb 1 2 3"},
          Row{"SmartPtr<Drawing::Color>", u"cmyk(0,0,0,1)", "kind CMYK|cmyk 0 0 0 1"},
          Row{"SColor", u"url(#a)", "reference #a"},
          Row{"SColor", u"red", "kind RGB|rgb 255 0 0"},
          Row{"STextDecoration", u"underline, line-through", "line underline|line line-through"},
          Row{"Core::Vector<Transform>", u"scale(2) skewX(3)", "items 2|scale 2 2|skewX 3"},
          Row{"Core::Vector<PathDataCommand>", u"M1,2h3Z", "items 3|move 1,2|across 3, relative|close "},
          Row{"Core::Vector<Point>", u"1,2 3,4", "items 2|point 1,2|point 3,4"},
          Row{"ViewBox", u"0 0 5 50%", "corner 0 0|size 5 50%"},
          Row{"SPreserveAspectRatio", u"xMidYMax slice", "fit slice xMid YMax"},
          Row{"Language", u"en-us", "tag en-US|language english"},
          Row{"InitialPageNumber", u"multiple-of(4)", "multiple 4"},
          Row{"ForcePageCount", u"end-on-even", "kind end-on-even"},
          Row{"DisplayCondition", u"use_content()", "conditions 0"},
          Row{"DisplayCondition", u"is-after(a) and match(b)", "conditions 2"},
          Row{"AxisUnits", u"months", "units months"},
          Row{"Value", u"12", "kind number|value 12"},
          Row{"Break", u"page", "number 3"}}) {
        AnyAttribute attribute(typeNamed(row.type));
        EXPECT_TRUE(attribute.parseValue(row.text)) << row.type << ": " << narrow(row.text);
        std::string parts;
        for (auto const& [name, value] : attribute.parts().list)
            parts += (parts.empty() ? "" : "|") + narrow(name) + " " + narrow(value);
        EXPECT_EQ(parts, row.parts) << row.type << ": " << narrow(row.text);
    }
}

TEST(AnyAttribute, HasTheColourThatAScreenShows) {
    AnyAttribute color(typeNamed("SmartPtr<Drawing::Color>"));
    for (auto const& [text, rgb] :
         {std::pair{u"#010203", 0x010203u}, {u"cmyk(0,1,1,0)", 0xFF0000u}, {u"cmyk(1,0,1,0)", 0x00FF00u}}) {
        EXPECT_TRUE(color.parseValue(text)) << narrow(text);
        EXPECT_EQ(color.parts().rgb, rgb) << narrow(text);
    }
    EXPECT_TRUE(color.parseValue(u"none"));
    EXPECT_EQ(color.parts().rgb, std::nullopt);
}

// Of texts that are those of the type, or differ from one in a digit.
TEST(AnyAttribute, EqualsNoneThatPrintsOrHoldsAnotherValue) {
    // Their headers tell what their comparisons pass over.
    constexpr std::string_view comparedOtherwise[] = {"BackgroundSize",          "ContentLength",
                                                      "Core::Vector<Transform>", "DisplayCondition",
                                                      "InitialPageNumber",       "Language"};
    for (AttributeType const& type : AttributeType::all()) {
        if (std::ranges::count(comparedOtherwise, type.name()) > 0) continue;
        auto const examples = type.examples();
        auto const words = type.words();
        std::vector<std::u16string> texts(examples.begin(), examples.end());
        texts.insert(texts.end(), words.begin(), words.end());
        for (std::u16string_view const example : examples)
            for (std::size_t i = 0; i < example.size(); ++i)
                if (Core::String::isDigit(example[i]))
                    texts.emplace_back(example).at(i) =
                        example[i] == u'9' ? u'8' : static_cast<char16_t>(example[i] + 1);
        std::vector<std::pair<AnyAttribute, Core::String>> values; // and what each holds
        for (std::u16string const& text : texts) {
            AnyAttribute value(type);
            if (!value.parseValue(text)) continue;
            Core::String holds = value.getValueAsString();
            for (auto const& [name, part] : value.parts().list) ((holds += u"|") += name) += part;
            values.emplace_back(value, holds);
        }
        for (auto const& [one, held] : values)
            for (auto const& [other, heldByOther] : values) {
                if (held == heldByOther) continue;
                EXPECT_FALSE(one == other) << type.name() << ": " << narrow(held) << " and " << narrow(heldByOther);
            }
    }
}

} // namespace
} // namespace Xml
