#include "xmlattr/svg/ViewBox.h"

#include "Support.h"
#include "xmlattr/svg/SPreserveAspectRatio.h"

namespace Xml {
namespace {

TEST(ViewBox, TakesFourWords) {
    SLengthOrPercent const zero(0, SLength::UserUnit), inch(1, SLength::In);
    ViewBox const sample(zero, inch, SLengthOrPercent(100, SLength::UserUnit), SLengthOrPercent(0.5f));
    for (char16_t const* text : {u"0 1in 100 50%", u"\u00A0\v0\t1in 100px 50% junk "})
        EXPECT_TRUE(parsed<ViewBox>(text) == sample) << narrow(text);
    for (char16_t const* text : {u"", u"0 0 100", u"0,0,100,100", u"0 0 x 100", u"0 0 100 x", u"x 0 0 0"}) {
        TXmlAttribute<ViewBox> box(sample);
        EXPECT_FALSE(box.parseValue(text)) << narrow(text);
        EXPECT_TRUE(box == sample) << narrow(text);
    }
    TXmlAttribute<ViewBox> const box(sample);
    EXPECT_TRUE(box.isEqual(u"0 1in 100 50%") && !box.isEqual(u"0 1in 100 0.5") && box.getValueAsString().empty());
    EXPECT_TRUE(TXmlAttribute<ViewBox>().isEqual(u"0% 0% 100% 100%"));
}

TEST(SPreserveAspectRatio, ReadsEveryText) {
    using Row = std::pair<char16_t const*, int>;
    for (auto const& [text, bits] :
         {Row{u"", 146}, Row{u"none", 1}, Row{u"none slice", 1}, Row{u"xMinYMin", 74}, Row{u"xMidYMin meet", 82},
          Row{u"xMaxYMin", 98}, Row{u"xMinYMid", 138}, Row{u" xMidYMid\tmeet x", 146}, Row{u"xMaxYMid slice", 164},
          Row{u"xMinYMax", 266}, Row{u"xMidYMax", 274}, Row{u"xMaxYMax", 290}, Row{u"XMINYMIN", 146},
          Row{u"xMidYMid junk", 144}, Row{u"xMinYMin Meet", 72}, Row{u"defer xMinYMin slice", 144}, Row{u"slice", 146},
          Row{u"NONE slice", 148}}) {
        TXmlAttribute<SPreserveAspectRatio> ratio(SPreserveAspectRatio(7));
        EXPECT_TRUE(ratio.parseValue(text)) << narrow(text);
        EXPECT_EQ(ratio->getAspectRatio(), bits) << narrow(text);
    }
    TXmlAttribute<SPreserveAspectRatio> const usual;
    EXPECT_TRUE(usual.isEqual(u"xMidYMid meet") && usual.getValueAsString().empty());
}

} // namespace
} // namespace Xml
