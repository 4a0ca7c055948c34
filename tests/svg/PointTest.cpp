#include "xmlattr/svg/Point.h"

#include "NumberTexts.h"
#include "Support.h"
#include "xmlattr/core/Exceptions.h"

namespace Xml {
namespace {

TEST(PointList, ReadsPairs) {
    using Row = std::pair<char16_t const*, char const*>;
    for (auto const& [text, points] :
         {Row{u"", ""}, Row{u" \t", ""}, Row{u"10,\u00A0\v20\f30.5,.5\n", "10 20,30.5 0.5"}, Row{u"x", ""},
          Row{u" 10 20 30", "10 20"}, Row{u"10,20 30,40", "10 20,30 40"}, Row{u"10,20-30,40", "10 20,30 40"},
          Row{u"10-20-30-40", "10 -20,30 -40"}, Row{u"-1-2 +3,4", "-1 -2,3 4"}, Row{u"1e1,2e+1", "10 20"},
          Row{u"1in,1pt 50%,2px", "96 1.3333334,0.5 2"}, Row{u"1,2 x", "1 2"}, Row{u"1,2,3", "1 2"}})
        EXPECT_EQ(printed<Core::Vector<Point>>(text), points) << narrow(text);
    for (char16_t const* text : {u"-1--2 3,4", u"1,2x3,4", u"10,20,x,5", u"10,20,,30", u"10 ,20 30", u"10 20 30 ",
                                 u"1+2,3", u"1e-1,5", u"5.,1", u"1,"})
        EXPECT_FALSE(parsed<Core::Vector<Point>>(text)) << narrow(text);
}

TEST(PointList, PlainNumbersAreReadLikeAllOthers) {
    for (unsigned int seed = 1; seed < 2000; ++seed) {
        Testing::NumberTexts texts(seed);
        for (std::size_t i = 0, count = 2 * texts.below(5); i < count; ++i)
            i == 0 ? texts.addNumber({}) : texts.addNumber({u" ", u",", u", ", u"\n"}, i % 2 != 0);
        auto const plain = parsed<Core::Vector<Point>>(texts.plain);
        EXPECT_TRUE(plain && *plain == *parsed<Core::Vector<Point>>(texts.roundabout)) << narrow(texts.plain);
    }
}

TEST(PointList, ARefusalKeepsTheList) {
    Core::Vector<Point> list = {Point(SLength(1, SLength::In), SLength())};
    EXPECT_FALSE(Point::parsePointList(list, u"1,2 3,x"));
    EXPECT_EQ(narrow(Point::getPointListValueAsString(list)), "96 0");
    EXPECT_TRUE(Point::parsePointList(list, u"3,4"));
    EXPECT_EQ(list, (Core::Vector<Point>{{SLength(3, SLength::UserUnit), SLength(4, SLength::UserUnit)}}));
    EXPECT_FALSE(TXmlAttribute<Core::Vector<Point>>(list).isEqual(u"3,4"));
    list[0].y = SLength(1, static_cast<SLength::Unit>(2));
    EXPECT_THROW(Point::getPointListValueAsString(list), Core::UnreacheableCodeException);
}

} // namespace
} // namespace Xml
