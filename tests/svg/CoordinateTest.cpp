#include "Support.h"
#include "xmlattr/svg/PathData.h"
#include "xmlattr/svg/Point.h"
#include "xmlattr/svg/Transform.h"

#include <bit>
#include <random>

namespace Xml {
namespace {

// Signs, digits, points, exponents and units that no list takes apart.
class CoordinateTexts {
public:
    std::u16string next() {
        std::u16string text = one({u"", u"", u"-", u"+"});
        digits(text);
        if (random() % 3) digits(text += u'.');
        if (random() % 8 == 0) digits(text += one({u"e", u"E", u"e+"}));
        if (random() % 4 == 0) text += one({u"px", u"pt", u"in", u"ex", u"%", u"x", u"#"});
        return text.empty() ? u"0" : text;
    }

private:
    char16_t const* one(std::initializer_list<char16_t const*> texts) { return texts.begin()[random() % texts.size()]; }

    void digits(std::u16string& text) {
        for (auto count = random() % (random() % 16 ? 5 : 30); count > 0; --count)
            text += static_cast<char16_t>(u'0' + random() % 10);
    }

    std::mt19937 random{7};
};

// The lists read plain numbers in a shorter way than the length reader does.
TEST(Coordinates, AreWhatTheLengthReaderMakesOfTheirTexts) {
    auto const isSame = [](SLength const& a, SLength const& b) {
        return a.getUnit() == b.getUnit() &&
               std::bit_cast<std::uint32_t>(a.getSize()) == std::bit_cast<std::uint32_t>(b.getSize());
    };
    CoordinateTexts texts;
    for (int i = 0; i < 100'000; ++i) {
        std::u16string const text = texts.next();
        SLength length;
        bool const isLength = SLength::parseSLength(length, std::u16string_view(text));

        auto const path = parsed<Core::Vector<PathDataCommand>>(std::u16string_view(u"L" + text + u",1z"));
        ASSERT_EQ(path->size(), 2u) << narrow(std::u16string_view(text));
        ASSERT_TRUE(isSame(path->front().x, length)) << narrow(std::u16string_view(text));

        auto const points = parsed<Core::Vector<Point>>(std::u16string_view(text + u"," + text));
        ASSERT_EQ(points.has_value(), isLength) << narrow(std::u16string_view(text));
        ASSERT_TRUE(!points || (isSame(points->at(0).x, length) && isSame(points->at(0).y, length)));

        auto const moved = Transform::readTransform(std::u16string_view(u"translate(" + text + u"," + text));
        ASSERT_TRUE(isSame(moved.tx, length) && isSame(moved.ty, length)) << narrow(std::u16string_view(text));
    }
}

} // namespace
} // namespace Xml
