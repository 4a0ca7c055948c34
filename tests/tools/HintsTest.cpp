#include "cli/Hints.h"
#include "text/Text.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

TEST(Hints, SuggestWhatIsNear) {
    std::vector<std::u16string_view> const words = {u"even-page", u"odd-page", u"page"};
    EXPECT_EQ(nearestWord(u"pages", words), u"page");
    EXPECT_EQ(nearestWord(u"evenpage", words), u"even-page");
    EXPECT_EQ(nearestWord(u"pa", words), u"") << "two of four letters are not under half";
    struct Row {
        char const *type, *variant, *nearest;
        char16_t const* text;
    };
    for (Row const& row :
         {Row{"Length", "12pt", "", u" 12 PT"}, Row{"Length", "12pt", "", u"12"}, Row{"Length", "1.5pt", "", u"1,5pt"},
          Row{"Break", "page", "", u"Page"}, Row{"BorderWidth", "", "thick", u"thickk"},
          Row{"SmartPtr<Drawing::Color>", "", "purple", u"pruple"}, Row{"Length", "", "", u"purple"},
          Row{"SmartPtr<Drawing::Color>", "", "green", u"gren"}}) {
        Hints const hints = hintsFor(*Xml::AttributeType::find(row.type), row.text);
        EXPECT_EQ(hints.variant, row.variant) << toUtf8(row.text);
        EXPECT_EQ(hints.nearest, row.nearest) << toUtf8(row.text);
    }
}

} // namespace
} // namespace Command
