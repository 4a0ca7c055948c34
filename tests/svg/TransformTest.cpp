#include "xmlattr/svg/Transform.h"

#include "Support.h"

#include <sstream>

namespace Xml {
namespace {

std::string described(Transform const& transform) {
    std::ostringstream out;
    auto const length = [](SLength const& value) {
        std::ostringstream text;
        text << value.getSize();
        if (value.getUnit() != SLength::UserUnit) text << '/' << value.getUnit();
        return text.str();
    };
    switch (transform.type) {
    case TransformType::Matrix:
        out << "matrix";
        for (double const number : transform.matrix) out << ' ' << number;
        break;
    case TransformType::Translate: out << "translate " << length(transform.tx) << ' ' << length(transform.ty); break;
    case TransformType::Scale: out << "scale " << transform.sx << ' ' << transform.sy; break;
    case TransformType::Rotate:
        out << "rotate " << transform.angle << ' ' << length(transform.cx) << ' ' << length(transform.cy);
        break;
    case TransformType::SkewX: out << "skewX " << transform.skewAngleX << ' ' << transform.skewAngleY; break;
    case TransformType::SkewY: out << "skewY " << transform.skewAngleX << ' ' << transform.skewAngleY; break;
    }
    return out.str();
}

std::string described(Core::Vector<Transform> const& list) {
    std::string text;
    for (Transform const& transform : list) text += (text.empty() ? "" : "; ") + described(transform);
    return text;
}

std::string const identity = "translate 0 0";

TEST(TransformList, ReadsEveryKindAndSeparator) {
    struct Row {
        char16_t const* text;
        std::string transforms;
    };
    for (Row const& row :
         {Row{u"", ""}, Row{u"  \u00A0,, ", ""}, Row{u"translate(10,20) rotate(45)", "translate 10 20; rotate 45 0 0"},
          Row{u"scale(2)rotate(9),,skewX(1)\vskewY(2)", "scale 2 2; rotate 9 0 0; skewX 1 1; skewY 2 2"},
          Row{u"matrix(1 0 0 1 5.5 -6)", "matrix 1 0 0 1 5.5 -6"}, Row{u"foo(1) scale(3)", identity + "; scale 3 3"},
          Row{u") )scale(1)", identity + "; " + identity + "; scale 1 1"}, Row{u"rotate(30) scale(2", "rotate 30 0 0"},
          Row{u"scale(2)foo", "scale 2 2"}, Row{u"foo) scale(2)", identity + "; scale 2 2"},
          Row{u"scale(2))", "scale 2 2; " + identity},
          Row{u"scale(2) scale(3 4 5) scale(6)", "scale 2 2; " + identity + "; scale 6 6"}})
        EXPECT_EQ(described(*parsed<Core::Vector<Transform>>(row.text)), row.transforms) << narrow(row.text);
}

TEST(TransformList, ReadsArguments) {
    struct Row {
        char16_t const* element; // without its ")"
        std::string transform;
    };
    for (Row const& row : {Row{u"translate(10 20", "translate 10 20"},
                           Row{u"translate(10, \t 20", "translate 10 20"},
                           Row{u" translate (\t10", "translate 10 0"},
                           Row{u"translate(1in,-50%", "translate 1/5 -0.5/9"},
                           Row{u"translate(x,5.", "translate 0 0"}, // bad lengths are zero
                           Row{u"translate(,5", "translate 0 5"},
                           Row{u"translate(10 ,20", identity}, // an empty argument between them
                           Row{u"translate(10 ", "translate 10 0"},
                           Row{u"translate(10,", "translate 10 0"},
                           Row{u"translate(10  ", identity},
                           Row{u"translate(1,2,3", identity},
                           Row{u"scale(0.1", "scale 0.1 0.1"},
                           Row{u"scale(1x,deg", "scale 1 0"},
                           Row{u"scale(1e99", "scale 3.40282e+38 3.40282e+38"},
                           Row{u"rotate(45deg, 10", "rotate 45 10 0"},
                           Row{u"rotate(45,10 1pt", "rotate 45 10 1/1"},
                           Row{u"rotate(1,2,3,4", identity},
                           Row{u"skewX(5,6", identity},
                           Row{u"matrix(1,,2 3 4 5", "matrix 1 0 2 3 4 5"},
                           Row{u"matrix(1e1 2% 1.e0 3 4 5.", "matrix 10 2 1 3 4 5"},
                           Row{u"matrix(1 0 0 1 5", identity},
                           Row{u"matrix(1 0 0 1 5 6 7", identity},
                           Row{u"matrix(1 0 0 1 x 6", identity},
                           Row{u"matrix(1 0 0 1 1e39 6", identity},
                           Row{u"scale(", identity},
                           Row{u"scale( ", identity},
                           Row{u"scale", identity},
                           Row{u"scale x(1", identity},
                           Row{u"Scale(1", identity},
                           Row{u"skewx(1", identity},
                           Row{u"scale2(1", identity},
                           Row{u"(1", identity},
                           Row{u"", identity}}) {
        EXPECT_EQ(described(Transform::readTransform(row.element)), row.transform) << narrow(row.element);
        auto const list = parsed<Core::Vector<Transform>>(Core::String(row.element) + u")");
        EXPECT_EQ(described(*list), row.transform) << narrow(row.element);
    }
    EXPECT_EQ(described(Transform::readTransform(u"scale(2)")), "scale 2 2");
    EXPECT_EQ(described(Transform::readTransform(u"scale(2)3")), "scale 2 3") << "the \")\" is any delimiter here";
    EXPECT_EQ(Transform::readTransform(u"scale(0.1").sx, double{0.1f});
}

TEST(TransformList, Appends) {
    TXmlAttribute<Core::Vector<Transform>> list;
    EXPECT_TRUE(list.parseValue(u"scale(2)") && list.parseValue(u"") && list.parseValue(u"scale(3) x"));
    EXPECT_EQ(described(list.getValue()), "scale 2 2; scale 3 3");
    EXPECT_TRUE(list == Core::Vector<Transform>({Transform(2, 2), Transform(3, 3)}));
    EXPECT_TRUE(list != Core::Vector<Transform>({Transform(2, 2)}));
    EXPECT_EQ(narrow(list.getValueAsString()), "");
    EXPECT_FALSE(TXmlAttribute<Core::Vector<Transform>>().isEqual(u""));
}

TEST(Transform, ComparesWhatItsTypeMeans) {
    SLength const one(1, SLength::UserUnit), inch(1, SLength::In);
    EXPECT_TRUE(Transform(1, 2, 3, 4, 5, 6) == Transform(1, 2, 3, 4, 5, 6));
    EXPECT_FALSE(Transform(1, 2, 3, 4, 5, 6) == Transform(1, 2, 3, 4, 5, 7));
    EXPECT_FALSE(Transform(one, one) == Transform(one, inch));
    EXPECT_FALSE(Transform(45, one, one) == Transform(45, inch, one));
    EXPECT_FALSE(Transform(2, 3) == Transform(3, 2));
    EXPECT_FALSE(Transform(TransformType::SkewX, 1) == Transform(TransformType::SkewY, 1));

    Transform skew(TransformType::SkewX, 10), scale(2, 3);
    EXPECT_TRUE(skew == Transform(TransformType::SkewX, 20)) << "the angle of a rotation is compared";
    skew.angle = 1;
    EXPECT_TRUE(skew != Transform(TransformType::SkewX, 10));
    scale.matrix[0] = scale.angle = 9;
    EXPECT_TRUE(scale == Transform(2, 3));
    scale.type = static_cast<TransformType>(7);
    EXPECT_FALSE(scale == scale);
}

} // namespace
} // namespace Xml
