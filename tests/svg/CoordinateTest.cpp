#include "Support.h"
#include "xmlattr/svg/PathData.h"
#include "xmlattr/svg/Point.h"
#include "xmlattr/svg/Transform.h"

#include <cmath>
#include <random>

namespace Xml {
namespace {

// A sign, digits, a point, an exponent and a unit, none of which a list takes apart.
std::u16string coordinate(std::mt19937& random) {
    auto const one = [&](std::initializer_list<char16_t const*> texts) {
        return texts.begin()[random() % texts.size()];
    };
    std::u16string text = one({u"", u"", u"-", u"+"});
    auto const digits = [&] {
        for (auto count = random() % (random() % 16 ? 5 : 30); count > 0; --count)
            text += static_cast<char16_t>(u'0' + random() % 10);
    };
    digits();
    if (random() % 3) text += u'.', digits();
    if (random() % 8 == 0) text += one({u"e", u"E", u"e+"}), digits();
    if (random() % 4 == 0) text += one({u"px", u"pt", u"in", u"ex", u"%", u"x", u"#"});
    return text.empty() ? u"0" : text;
}

// The lists read plain numbers by a fast path that the length reader lacks.
TEST(Coordinates, AreWhatTheLengthReaderMakesOfTheirTexts) {
    std::mt19937 random{7};
    for (int i = 0; i < 100'000; ++i) {
        Core::String const text(coordinate(random));
        SLength length;
        bool const isLength = SLength::parseSLength(length, text);
        auto const isSame = [&](SLength const& other) {
            return other == length && std::signbit(other.getSize()) == std::signbit(length.getSize());
        };
        auto const path = *parsed<Core::Vector<PathDataCommand>>(Core::String(u"L") + text + u",1z");
        ASSERT_TRUE(path.size() == 2 && isSame(path[0].x)) << narrow(text);
        Transform const moved = Transform::readTransform(Core::String(u"translate(") + text + u"," + text);
        ASSERT_TRUE(isSame(moved.tx) && isSame(moved.ty)) << narrow(text);
        auto const points = parsed<Core::Vector<Point>>(text + u"," + text);
        ASSERT_EQ(points.has_value(), isLength) << narrow(text);
        ASSERT_TRUE(!points || (isSame(points->at(0).x) && isSame(points->at(0).y))) << narrow(text);
    }
}

} // namespace
} // namespace Xml
