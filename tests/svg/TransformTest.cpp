#include "xmlattr/svg/Transform.h"

#include "NumberTexts.h"
#include "Support.h"
#include "xmlattr/core/Text.h"

namespace Xml {
namespace {

using List = Core::Vector<Transform>;

constexpr SLength units(float size) {
    return {size, SLength::UserUnit};
}

Transform const identity;
constexpr SLength one = units(1), inch(1, SLength::In);

TEST(TransformList, SplitsAtParentheses) {
    using Row = std::pair<char16_t const*, List>;
    for (auto const& [text, list] :
         {Row{u"", {}}, Row{u"  \u00A0,, ", {}}, Row{u"rotate(30) scale(2", {Transform(30, {}, {})}},
          Row{u"translate(10,20) rotate(45)", {Transform(units(10), units(20)), Transform(45, {}, {})}},
          Row{u"scale(2)rotate(9),,scale(1)\vscale(3)foo", {{2, 2}, {9, {}, {}}, {1, 1}, {3, 3}}},
          Row{u") )scale(1)foo) scale(2))", {identity, identity, {1, 1}, identity, {2, 2}, identity}},
          Row{u"foo(1) scale(2) scale(3 4 5) scale(6)", {identity, {2, 2}, identity, {6, 6}}}})
        EXPECT_TRUE(parsed<List>(text) == list) << narrow(text);
}

// With and without the ")".
void expectTransform(Core::String const& text, Transform const& transform) {
    EXPECT_TRUE(Transform::readTransform(text) == transform) << narrow(text);
    EXPECT_TRUE(parsed<List>(text + u")") == List{transform}) << narrow(text);
}

TEST(TransformList, ReadsArguments) {
    for (char16_t const* text :
         {u"translate(10 11", u" translate (10, \t 11", u"translate(10,11,", u"translate(10 11 "})
        expectTransform(text, Transform(units(10), units(11)));
    for (char16_t const* text :
         {u"translate(x,5.", u"translate(1 ,2", u"translate(1  ", u"translate(1,2,3", u"rotate(1,2,3,4", u"skewX(5,6",
          u"matrix(1 0 0 1 5", u"matrix(1 0 0 1 5 6 7", u"matrix(1 0 0 1 x 6", u"matrix(1 0 0 1 1e39 6", u"scale(",
          u"scale( ", u"scale", u"scale x(1", u"Scale(1", u"skewx(1", u"scale2(1", u"(1", u""})
        expectTransform(text, identity);
    expectTransform(u"translate(1in", Transform(inch, {}));
    expectTransform(u"translate(,-50%", Transform({}, SLength(-0.5f, SLength::Percent)));
    expectTransform(u"scale(0.1", Transform(0.1f, 0.1f));
    expectTransform(u"scale(1x,deg", Transform(1, 0));
    expectTransform(u"rotate(45deg, 1", Transform(45, one, {}));
    expectTransform(u"rotate(45,1in 1", Transform(45, inch, one));
    expectTransform(u"matrix(1e1,,2% 3 4. 5", Transform(10, 0, 2, 3, 4, 5));
    EXPECT_TRUE(Transform::readTransform(u"scale(2)") == Transform(2, 2));
    EXPECT_TRUE(Transform::readTransform(u"scale(2)3") == Transform(2, 3)) << "the \")\" is any delimiter here";
    Transform const skew = Transform::readTransform(u"skewY(5deg");
    EXPECT_TRUE(skew.type == TransformType::SkewY && skew.skewAngleX == 5 && skew.skewAngleY == 5 && skew.angle == 0);
}

TEST(TransformList, PlainNumbersAreReadLikeAllOthers) {
    for (unsigned int seed = 1; seed < 2000; ++seed) {
        Testing::NumberTexts texts(seed);
        for (std::size_t transforms = 1 + texts.below(3); transforms > 0; --transforms) {
            texts.add(transformWords[texts.below(std::size(transformWords))].word);
            texts.plain += u'(';
            texts.roundabout += u" (";
            std::size_t const most = texts.below(8);
            for (std::size_t i = 0; i < most; ++i)
                i == 0 ? texts.addNumber({}) : texts.addNumber({u" ", u",", u", ", u"\n"});
            texts.add(texts.below(4) == 0 ? u" ) x" : u")");
        }
        EXPECT_TRUE(parsed<List>(texts.plain) == *parsed<List>(texts.roundabout)) << narrow(texts.plain);
    }
}

TEST(TransformList, Appends) {
    TXmlAttribute<List> list;
    EXPECT_TRUE(!list.isEqual(u"") && list.parseValue(u"scale(2)") && list.parseValue(u"scale(3) x"));
    EXPECT_TRUE(list == List({{2, 2}, {3, 3}}) && list != List({{2, 2}}) && list.getValueAsString().empty());
}

TEST(Transform, ComparesEachArgument) {
    for (std::u16string const text : {u"matrix(1 2 3 4 5 6)", u"translate(1 2)", u"scale(1 2)", u"rotate(1 2 3)"})
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!Core::isDigit(text[i])) continue;
            std::u16string other = text;
            other[i] = u'7';
            EXPECT_FALSE(Transform::readTransform(text) == Transform::readTransform(other)) << narrow(other);
            EXPECT_TRUE(Transform::readTransform(other) == Transform::readTransform(other)) << narrow(other);
        }
}

TEST(Transform, ComparesWhatItsTypeMeans) {
    TransformType const skewX = TransformType::SkewX;
    EXPECT_TRUE(Transform(1, 2, 3, 4, 5, 6) != Transform(1, 2, 3, 4, 5, 7) && Transform(2, 3) != Transform(3, 2));
    EXPECT_TRUE(Transform(one, one) != Transform(one, inch) && Transform(45, one, one) != Transform(45, inch, one));
    EXPECT_TRUE(Transform(skewX, 1) != Transform(TransformType::SkewY, 1));
    Transform skew(skewX, 10), scale(2, 3);
    EXPECT_TRUE(skew == Transform(skewX, 20)) << "the angle of a rotation is compared";
    skew.angle = 1;
    EXPECT_TRUE(skew != Transform(skewX, 10));
    scale.matrix[0] = scale.angle = 9;
    EXPECT_TRUE(scale == Transform(2, 3));
    scale.type = static_cast<TransformType>(7);
    EXPECT_FALSE(scale == scale);
}

} // namespace
} // namespace Xml
