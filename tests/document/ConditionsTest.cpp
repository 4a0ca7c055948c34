#include "xmlattr/document/DisplayCondition.h"
#include "xmlattr/document/TPRule.h"
#include "xmlattr/document/Url.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(DisplayCondition, AppendsUpToTheFirstBadCondition) {
    struct Row {
        char16_t const* text;
        bool accepted;
        char const* printed; // after the condition that was there before
    };
    for (Row const& row :
         {Row{u"is-after(2020) and match(x)", true, " and is-after(2020) and match(x)"},
          Row{u" is-before( 5 )and is-after(1) and", true, " and is-before(5) and is-after(1)"}, Row{u"", true, ""},
          Row{u"match()", true, ""}, Row{u"match( )", true, " and match()"}, Row{u"match)a(", true, ""},
          Row{u"matches(a)b)", true, " and match(a)"}, Row{u"Match(a)", true, " and is-after(a)"},
          Row{u"match(x", false, ""}, Row{u"match(a)and match(brand) and match(c)", false, " and match(a)"},
          Row{u"match(a) and ", false, " and match(a)"}, Row{u" ", false, ""}}) {
        SCOPED_TRACE(narrow(row.text));
        TXmlAttribute<DisplayCondition> attribute;
        ASSERT_TRUE(attribute.parseValue(u"match(0)"));
        EXPECT_EQ(attribute.parseValue(row.text), row.accepted);
        EXPECT_EQ(narrow(attribute.getValueAsString()), std::string("match(0)") + row.printed);
    }
}

TEST(DisplayCondition, HoldsTheOperatorThatItNames) {
    using enum DisplayCondition::Operator;
    auto const value = parsed<DisplayCondition>(u"is-after(x) and is-before(x) and match(x)");
    ASSERT_TRUE(value && value->getConditions().size() == 3);
    for (auto const op : {IsAfter, IsBefore, Match})
        EXPECT_EQ(value->getConditions()[static_cast<std::size_t>(op)].op, op);
}

TEST(DisplayCondition, ReadsAnArgumentOfItsOwn) {
    DisplayCondition value;
    value.append({DisplayCondition::Operator::Match, u"(a)and("});
    TXmlAttribute<DisplayCondition> attribute(value);
    EXPECT_FALSE(attribute.parseValue(attribute->getConditions().front().argument));
    EXPECT_EQ(narrow(attribute.getValueAsString()), "match((a)and() and is-after(a)");
}

TEST(DisplayCondition, EqualsEveryListThatContainsIt) {
    TXmlAttribute<DisplayCondition> x, both;
    ASSERT_TRUE(x.parseValue(u"match(x)") && both.parseValue(u"is-after(y) and match(x)"));
    EXPECT_TRUE(x == both && x.isEqual(u"is-after(y) and match(x)") && DisplayCondition() == x.getValue());
    EXPECT_FALSE(both == x || both.isEqual(u"match(x)") || x.isEqual(u"match(X)") || x.isEqual(u"is-after(x)"));
    DisplayCondition foreign;
    foreign.append({static_cast<DisplayCondition::Operator>(7), u"z"});
    both.copyFrom(TXmlAttribute<DisplayCondition>(foreign));
    EXPECT_EQ(both.getValueAsString(), u"(z)");
}

TEST(TPRule, ARefusalKeepsTheKeywordAlone) {
    TXmlAttribute<TPRule> rule;
    EXPECT_TRUE(rule.parseValue(u"FIND_KEYWORD( total) )"));
    EXPECT_EQ(rule->getType(), TPRuleType::FindKeyword);
    EXPECT_TRUE(rule.isEqual(u"FIND_KEYWORD( total)") && !rule.isEqual(u"FIND_KEYWORD(total)"));
    EXPECT_FALSE(rule.isEqual(u"FIND_KEYWORD( total"));
    EXPECT_FALSE(rule.parseValue(u"FIND_KEYWORD(other"));
    EXPECT_EQ(rule->getType(), TPRuleType::None);
    EXPECT_EQ(rule->getKeyword(), u" total");
    EXPECT_TRUE(rule == TPRule());
}

TEST(Url, TakesTheReferenceOutOfTheParentheses) {
    struct Row {
        char16_t const* text;
        char const* printed;
    };
    for (Row const& row :
         {Row{u"url('a.png')", "url(a.png)"}, Row{u"url( \" a b.png \" ) ", "url(a b.png)"},
          Row{u"a.png", "url(a.png)"}, Row{u"url(a.png", "url()"}, Row{u"url()", "url()"}, Row{u"url())", "url())"},
          Row{u"url( ')", "url()"}, Row{u"url(a) url(b )x", "url(a) url(b)"}, Row{u"url)(a", "url()"},
          Row{u"url:x(a)", "url(a)"}, Row{u"url", "url(url)"}, Row{u"URL(a)", "url(URL(a))"},
          Row{u" url(a)", "url( url(a))"}, Row{u"urls", "refused"}, Row{u"", "url()"}})
        EXPECT_EQ(printed<Url>(row.text), row.printed) << narrow(row.text);
    EXPECT_TRUE(TXmlAttribute<Url>(Url(u"a")).isEqual(u"url('a')"));
    EXPECT_FALSE(TXmlAttribute<Url>(Url(u"a")).isEqual(u"A"));
}

} // namespace
} // namespace Xml
