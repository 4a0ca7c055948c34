#include "xmlattr/keywords/OddKeywords.h"

#include "Support.h"
#include "xmlattr/core/Exceptions.h"

namespace Xml {
namespace {

// The text given to an attribute that holds 7; whether it accepts it, what it holds then and how that prints.
struct Row {
    char16_t const* text;
    bool accepted;
    int value;
    char const* printed;
};

template <class E> void check(std::initializer_list<Row> rows) {
    for (Row const& row : rows) {
        SCOPED_TRACE(narrow(row.text));
        TXmlAttribute<E> attribute(static_cast<E>(7));
        EXPECT_EQ(attribute.parseValue(row.text), row.accepted);
        EXPECT_EQ(static_cast<int>(attribute.getValue()), row.value);
        EXPECT_EQ(narrow(attribute.getValueAsString()), row.printed);
        EXPECT_EQ(attribute.isEqual(row.text), row.accepted);
    }
}

TEST(Keep, TakesAnyInteger) {
    check<Keep>({{u"auto", true, 0, "auto"},
                 {u"always", true, 0x7FFFFFFE, "always"},
                 {u"5", true, 5, "5"},
                 {u" -3 ", true, -3, "-3"},
                 {u"0", true, 0, "auto"},
                 {u"2147483647", true, 2147483647, "2147483647"},
                 {u"2147483648", false, 7, "7"},
                 {u"Auto", false, 7, "7"},
                 {u"x", false, 7, "7"},
                 {u"", false, 7, "7"}});
}

TEST(MaxRepeats, NeverRefuses) {
    check<MaxRepeats>({{u"no-limit", true, -1, ""},
                       {u"-4", true, 0, ""},
                       {u" 12 times", true, 12, ""},
                       {u"No-Limit", true, 0, ""},
                       {u"99999999999", true, 2147483647, ""}});
}

TEST(ReferenceOrientation, TakesQuartersOfATurn) {
    check<ReferenceOrientation>({{u"0", true, 0, "0"},
                                 {u"90", true, 1, "90"},
                                 {u"-270", true, 1, "90"},
                                 {u"180", true, 2, "180"},
                                 {u"-180", true, 2, "180"},
                                 {u" +270 ", true, 3, "270"},
                                 {u"-90", true, 3, "270"}});
    for (char16_t const* text : {u"360", u"-360", u"45", u"2147483640", u"90deg", u"", u"auto"})
        EXPECT_FALSE(parsed<ReferenceOrientation>(text)) << narrow(text);
    TXmlAttribute<ReferenceOrientation> const foreign(static_cast<ReferenceOrientation>(4));
    EXPECT_THROW(foreign.getValueAsString(), Core::UnreacheableCodeException);
}

TEST(FontWeight, KeepsTwoStates) {
    check<FontWeight>({{u"bolder", true, 1, "bold"},
                       {u"bolded", true, 1, "bold"},
                       {u"lighter", true, 0, "normal"},
                       {u"700", true, 1, "bold"},
                       {u"401", true, 1, "bold"},
                       {u"400", true, 0, "normal"},
                       {u"-900", true, 0, "normal"},
                       {u"Bold", false, 7, "normal"},
                       {u"400.5", false, 7, "normal"}});
}

TEST(OtherText, IsStoredWhetherAcceptedOrNot) {
    check<ThreeState>({{u"false", true, 1, "false"}, {u"True", true, 2, ""}, {u"", true, 2, ""}});
    check<SVGEObjectType>({{u"page-rect", true, 1, "page-rect"}, {u"rect", true, 2, ""}, {u"Page", true, 2, ""}});
    check<ScriptType>({{u"JS", true, 0, ""}, {u"vb", true, 1, ""}, {u"", false, 2, ""}, {u"js ", false, 2, ""}});
    EXPECT_TRUE(TXmlAttribute<ThreeState>(ThreeState::Other).isEqual(u"any text"));
}

TEST(BarcodeValueType, TextIsStoredAndRefused) {
    check<BarcodeValueType>({{u"text", false, 0, "TEXT"}, {u"hex", true, 1, "HEX"}, {u"hex ", false, 7, "HEX"}});
    EXPECT_FALSE(TXmlAttribute<BarcodeValueType>().isEqual(u"TEXT"));
}

TEST(BarcodeValueType, PrintingAForeignNumberMakesItHex) {
    TXmlAttribute<BarcodeValueType> const attribute(static_cast<BarcodeValueType>(5));
    XmlAttribute const& base = attribute;
    EXPECT_EQ(base.getValueAsString(), u"HEX");
    EXPECT_TRUE(attribute == BarcodeValueType::Hex);
    EXPECT_TRUE(base.isEqual(u"hex"));
    static_assert(sizeof(attribute) == sizeof(TXmlAttribute<ThreeState>));
}

} // namespace
} // namespace Xml
