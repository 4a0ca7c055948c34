#include "output/html/Shape.h"

#include <gtest/gtest.h>

namespace Command {
namespace {

std::optional<Shape> shapeOfText(std::string_view type, std::u16string_view text) {
    Xml::AnyAttribute value(*Xml::AttributeType::find(type));
    EXPECT_TRUE(value.parseValue(text));
    return shapeOf(value);
}

// The box is that of all points and control points, and of circles that arcs fit in.
TEST(Shape, HasTheLinesOfAValue) {
    char const *const paths = "Core::Vector<PathDataCommand>", *const points = "Core::Vector<Point>",
                      *const transforms = "Core::Vector<Transform>";
    std::string const start = "<svg class='shape' role='img' viewBox='",
                      square = "M0 0L100 0L100 100L0 100L0 0L40 0L0 40";
    struct Row {
        char const* type;
        char16_t const* text;
        std::string frame, path;
    };
    for (Row const& row :
         {Row{points, u"0,0 100,50", "-6 -6 112 62", "M0 0L100 50"},
          Row{paths, u"M10 20l30 40h5v-5z", "7.6 17.6 39.8 44.8", "M10 20 l30 40 h5 v-5 Z"},
          Row{paths, u"M0 0C10 90 20-30 40 0S50 60 70 0", "-7.2 -37.2 84.4 134.4",
              "M0 0 C10 90 20 -30 40 0 S50 60 70 0 "},
          Row{paths, u"M0 0q10 90 20 0", "-5.4 -5.4 30.8 100.8", "M0 0 q10 90 20 0 "},
          Row{paths, u"M0 0q10 90 20 0t20 0", "-10.8 -100.8 61.6 201.6", "M0 0 q10 90 20 0 t20 0 "},
          Row{paths, u"M0 0q10 90 20 0s5 5 20 0", "-5.4 -5.4 50.8 100.8", "M0 0 q10 90 20 0 s5 5 20 0 "},
          Row{paths, u"M0 0A50 50 0 0 1 60 80", "-26 -16 112 112", "M0 0 A50 50 0 0 1 60 80 "},
          Row{paths, u"M0 0A50 40 0 1 1 60 0", "-26 -96 112 112", "M0 0 A50 40 0 1 1 60 0 "},
          Row{paths, u"M0 0A50 40 0 1 0 60 0", "-26 -16 112 112", "M0 0 A50 40 0 1 0 60 0 "},
          Row{paths, u"M0 0A0 40 0 1 0 60 0", "-3.6 -3.6 67.2 7.2", "M0 0 A0 40 0 1 0 60 0 "},
          Row{transforms, u"translate(100,20)", "-12 -12 224 144",
              "M100 20L200 20L200 120L100 120L100 20L140 20L100 60"},
          Row{transforms, u"scale(2,3)translate(1,2)", "-18.36 -18.36 238.72 342.72",
              "M2 6L202 6L202 306L2 306L2 6L82 6L2 126"},
          Row{transforms, u"matrix(1 2 3 4 5 6)", "-36.36 -36.36 477.72 678.72",
              "M5 6L105 206L405 606L305 406L5 6L45 86L125 166"},
          Row{transforms, u"skewX(45)skewY(45)", "-18 -18 336 236", "M0 0L200 100L300 200L100 100L0 0L80 40L40 40"}}) {
        auto const shape = shapeOfText(row.type, row.text);
        ASSERT_TRUE(shape);
        std::string const was = row.type != transforms ? "" : "<path class='was' d='" + square + "'/>";
        EXPECT_EQ(drawn(*shape, shape->box, "x"),
                  start + row.frame + "'><title>x</title>" + was + "<path d='" + row.path + "'/></svg>");
    }
    for (auto const& [type, text] : {std::pair{paths, u""}, {points, u"0,1e30"}, {"Length", u"1pt"}})
        EXPECT_FALSE(shapeOfText(type, text)) << type;
}

TEST(Box, LeavesOutWhatIsFarAway) {
    Box box, far;
    for (Spot const spot : {Spot(), Spot{10, 5}}) box.add(spot);
    for (Spot const spot : {Spot{4, -3}, Spot{-100, 20}}) far.add(spot);
    Box near = box, point;
    near.addNear(far);
    EXPECT_TRUE(near.left == -6 && near.top == -3 && near.right == 10 && near.bottom == 11) << "six tenths of its size";
    box.add(far);
    EXPECT_TRUE(box.left == -100 && box.top == -3 && box.right == 10 && box.bottom == 20);
    point.add(Spot{1, 1});
    point.addNear(far);
    EXPECT_TRUE(point.left == -100 && point.top == -3 && point.right == 4 && point.bottom == 20);
}

} // namespace
} // namespace Command
