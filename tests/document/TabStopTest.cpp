#include "xmlattr/document/TabStop.h"

#include "Support.h"

namespace Xml {
namespace {

TEST(TabStop, StandsInTheOrderOfPixels) {
    TabStop const inch(Length(1, Length::In), TabStopType::Right, TabPattern::Dot);
    TabStop const points(Length(72, Length::Pt), TabStopType::Left, TabPattern::None);
    TabStop const pixels(Length(95, Length::Px), TabStopType::Center, TabPattern::Hyphen);
    EXPECT_FALSE(inch < points || points < inch);
    EXPECT_TRUE(pixels < inch && pixels < points && !(inch < pixels));
    EXPECT_EQ(inch.getPattern(), TabPattern::Dot);
    TabStop const plain;
    EXPECT_TRUE(plain.getPosition() == Length());
    EXPECT_TRUE(plain.getType() == TabStopType::Left && plain.getPattern() == TabPattern::None);
    EXPECT_EQ(pixels.getType(), TabStopType::Center);
}

} // namespace
} // namespace Xml
