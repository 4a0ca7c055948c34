#include "text/Hints.h"
#include "text/Text.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

TEST(Hints, SuggestWhatIsNear) {
    struct Row {
        char const *type, *variant, *nearest;
        char16_t const* text;
    };
    for (Row const& row :
         {Row{"Length", "12pt", "", u" 12 PT"}, Row{"Length", "12pt", "", u"12"}, Row{"Length", "1.5pt", "", u"1,5pt"},
          Row{"Length", "1in", "", u"1 inch"}, Row{"int", "", "", u"20 20"}, Row{"Break", "page", "", u"Page"},
          Row{"BorderWidth", "", "thick", u"thickk"}, Row{"SmartPtr<Drawing::Color>", "", "purple", u"pruple"},
          Row{"Length", "", "", u"purple"}, Row{"SmartPtr<Drawing::Color>", "", "green", u"gren"},
          Row{"SmartPtr<Drawing::Color>", "", "", u"gray blue"},
          Row{"SmartPtr<Drawing::Color>", "lightblue", "", u"light blue"},
          Row{"SmartPtr<Drawing::Color>", "#ff0000", "", u"ff0000"}}) {
        Hints const hints = hintsFor(*Xml::AttributeType::find(row.type), row.text);
        EXPECT_EQ(hints.variant, row.variant) << toUtf8(row.text);
        EXPECT_EQ(hints.nearest, row.nearest) << toUtf8(row.text);
    }
}

} // namespace
} // namespace Command
