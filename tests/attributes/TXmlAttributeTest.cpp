#include "Support.h"
#include "xmlattr/attributes/PlainValues.h"
#include "xmlattr/document/TPRule.h"
#include "xmlattr/measures/ColumnWidth.h"
#include "xmlattr/measures/ContentLength.h"
#include "xmlattr/measures/LengthOrPercent.h"
#include "xmlattr/measures/SLength.h"
#include "xmlattr/measures/SLengthOrPercent.h"
#include "xmlattr/measures/TableWidth.h"

#include <cfloat>

namespace Xml {
namespace {

// Nothing but the virtual-table pointer stands before the value.
template <class T> struct Layout {
    void* table;
    T value;
};
static_assert(sizeof(TXmlAttribute<int>) == sizeof(Layout<int>));
static_assert(sizeof(TXmlAttribute<Length>) == sizeof(void*) + 8 &&
              sizeof(TXmlAttribute<SLength>) == sizeof(void*) + 8);
static_assert(sizeof(TXmlAttribute<SNullableLength>) == sizeof(Layout<SNullableLength>));
static_assert(sizeof(TXmlAttribute<Core::String>) == sizeof(Layout<Core::String>));
static_assert(std::is_empty_v<int_to_type<0>> && !std::has_virtual_destructor_v<XmlAttribute>);

TEST(TXmlAttribute, OffersTheValueInEveryWay) {
    TXmlAttribute<Length> attribute;
    EXPECT_TRUE(attribute == Length(0, Length::Px));
    attribute = Length(1, Length::In);
    TXmlAttribute<Length> copy(attribute);
    EXPECT_TRUE(copy == attribute && !(copy != attribute));
    copy->setSize(2);
    EXPECT_TRUE(copy != attribute);
    copy.setValue(Length(3, Length::Mm));
    Length const& value = copy;
    EXPECT_EQ(&value, &*copy);
    EXPECT_EQ(&value, &copy.getValue());
    attribute = copy;
    EXPECT_EQ(attribute->getSize(), 3);
}

TEST(TXmlAttribute, CopiesThroughTheBase) {
    TXmlAttribute<Core::String> source(Core::String(u"a text longer than what a string holds in itself"));
    TXmlAttribute<Core::String> target;
    XmlAttribute& base = target;
    base.copyFrom(source);
    EXPECT_EQ(base.getValueAsString(), source.getValue());
}

TEST(TXmlAttribute, ReadsEveryFormOfAText) {
    TXmlAttribute<Length> attribute;
    std::u16string text = u"1in";
    std::u16string_view const view = text;
    EXPECT_TRUE(attribute.parseValue(text) && attribute.isEqual(text));
    EXPECT_TRUE(attribute.parseValue(view) && attribute.isEqual(view));
    EXPECT_TRUE(attribute.parseValue(text.c_str()) && attribute.isEqual(text.c_str()));
    EXPECT_TRUE(attribute.parseValue(text + u"") && attribute.isEqual(text + u"", int_to_type<1>()));
    EXPECT_FALSE(attribute.parseValue({}));
    Core::String const string = text;
    EXPECT_TRUE(string == text && text == string && string + text == u"1in1in" && !(string < text));
}

TEST(TXmlAttribute, ComparesTheValueOfAText) {
    TXmlAttribute<Length> attribute(Length(1, Length::In));
    EXPECT_TRUE(attribute.isEqual(u"1.0in"));
    EXPECT_FALSE(attribute.isEqual(u"72pt")) << "equal in pixels only";
    EXPECT_FALSE(attribute.isEqual(u"inch"));
    EXPECT_FALSE(attribute.isEqual(u"1in", int_to_type<0>()));
    EXPECT_TRUE(attribute.isEqual(u"1in", int_to_type<1>()));
    EXPECT_TRUE(attribute == Length(1, Length::In)) << "comparing changes nothing";
}

TEST(TXmlAttribute, SomeTypesRefuseTheVirtualComparison) {
    TXmlAttribute<Core::Vector<SLength>> list;
    ASSERT_TRUE(list.parseValue(u"1 2"));
    EXPECT_FALSE(list.isEqual(u"1 2"));
    EXPECT_TRUE(list.isEqual(u"1,2", int_to_type<1>()));
    TXmlAttribute<SNullableLength> null(SNullableLength{});
    EXPECT_FALSE(null.isEqual(u"0"));
    EXPECT_TRUE(null.isEqual(u"0", int_to_type<1>())) << "the null flag takes no part";
}

// Whether a named reader of a class is that of its attributes.
template <class T> void expectReadsAlike(bool (*read)(T&, Core::String const&)) {
    int changed = 0;
    for (char16_t const* text : {u"3pt", u"50%", u"7", u"auto", u"none", u"f(2pt)", u"proportional-column-width(2)",
                                 u"scale-to-fit", u"FIND_KEYWORD(x)", u"?", u""}) {
        T value{};
        TXmlAttribute<T> attribute(value);
        bool const isRead = attribute.parseValue(text);
        changed += isRead && attribute != value;
        EXPECT_EQ(read(value, text), isRead) << narrow(text);
        EXPECT_TRUE(attribute == value) << narrow(text);
    }
    EXPECT_GT(changed, 0);
}

TEST(NamedReaders, ReadWhatAttributesRead) {
    expectReadsAlike(Length::parseLength);
    expectReadsAlike(SLength::parseSLength);
    expectReadsAlike(SLength::parseSLengthOrPercent);
    expectReadsAlike(LengthOrPercentAuto::parseLengthOrPercentAuto);
    expectReadsAlike(Margin::parseMargin);
    expectReadsAlike(ContentLength::parseContentLength);
    expectReadsAlike(ColumnWidth::parseColumnWidth);
    expectReadsAlike(TableWidth::parseTableWidth);
    expectReadsAlike(TPRule::parseRule);
}

TEST(PlainValues, ReadAndPrintAsTheyAre) {
    EXPECT_EQ(printed<int>(u" 12% "), "12");
    EXPECT_EQ(printed<int>(u"1.5"), "refused");
    EXPECT_EQ(printed<float>(u"0.10000000149"), "0.1");
    EXPECT_EQ(printed<float>(u"1e39"), "refused");
    EXPECT_EQ(printed<Core::String>(u" a "), " a ");
    EXPECT_FALSE(TXmlAttribute<Core::String>(Core::String(u"a")).isEqual(u" a"));
    EXPECT_EQ(printed<Drawing::ImageFilter>(u"BiCubic"), "bicubic");
    EXPECT_EQ(printed<Drawing::ImageFilter>(u"cubic"), "refused");
    TXmlAttribute<Core::String> text(Core::String(u"a"));
    EXPECT_TRUE(text.parseValue(u""));
    EXPECT_TRUE(text->empty());
}

} // namespace
} // namespace Xml
