// What threads may share; a run under the thread sanitizer tells whether they do it cleanly.
#include "Support.h"
#include "xmlattr/core/Application.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/defaults/DefaultAttributes.h"
#include "xmlattr/drawing/SpotColor.h"

#include <atomic>
#include <thread>
#include <vector>

namespace Xml {
namespace {

// Runs the work in four threads, so often in each, and waits for them.
template <class Work> void inThreads(Work work) {
    constexpr int threadCount = 4, rounds = 2000;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([=] {
            for (int round = 0; round < rounds; ++round) work(round);
        });
    for (std::thread& thread : threads) thread.join();
}

TEST(Threads, ReadConstantsWhileOthersParse) {
    inThreads([](int round) {
        EXPECT_EQ(DefaultFontFamily.getValueAsString(), u"Times");
        EXPECT_TRUE(DefaultFontSize.isEqual(u"10pt"));
        EXPECT_EQ(DefaultBarcodeValueType.getValueAsString(), u"TEXT");
        TXmlAttribute<SmartPtr<Drawing::Color>> color;
        color.copyFrom(round % 2 ? DefaultBorderColor : DefaultBackgroundColor);
        EXPECT_TRUE(color == (round % 2 ? DefaultBorderColor : DefaultBackgroundColor));
        TXmlAttribute<SColor> paint;
        paint.copyFrom(DefaultSFillColor);
        EXPECT_TRUE(paint.parseValue(u"red"));
        EXPECT_TRUE(parsed<Core::Vector<PathDataCommand>>(u"M1,2z")->size() == 2);
    });
}

TEST(Threads, ReadTheConfigurationWhileItChanges) {
    inThreads([](int round) {
        if (round % 8 == 0) Core::Application::setConfigValue(u"MeasurementUnit", round % 16 ? u"Points" : u"Pixels");
        std::string const text = printed<LengthOrPercent>(u"12");
        EXPECT_TRUE(text == "12pt" || text == "1200%") << text;
    });
    Core::Application::clearConfig();
}

TEST(Threads, ShareColors) {
    SmartPtr<Drawing::Color> const shared = *parsed<SmartPtr<Drawing::Color>>(u"spot-color(Gold,1,rgb(9,9,9))");
    TXmlAttribute<BoxShadow> const shadow = BoxShadow({}, {}, {}, shared);
    std::string const expected = narrow(TXmlAttribute(shared).getValueAsString());
    inThreads([&](int) {
        SmartPtr<Drawing::Color> mine = shared;
        SmartPtr<Drawing::Color> const moved = std::move(mine);
        mine = shadow->getColor()->clone();
        TXmlAttribute<SmartPtr<Drawing::Color>> attribute(moved);
        EXPECT_EQ(narrow(attribute.getValueAsString()), expected);
        attribute = mine;
        EXPECT_FALSE(attribute == shared);
        TXmlAttribute<BoxShadow> other;
        other.copyFrom(shadow);
        EXPECT_TRUE(other->getColor() == shared);
    });
}

TEST(Threads, ShareWhatColorsAreLookedUpIn) {
    std::atomic<int> warnings = 0;
    auto const handler = Core::Log::setHandler([&](Core::String const&) { ++warnings; });
    inThreads([&](int round) {
        if (round % 8 == 0)
            Drawing::SpotColorMapper::setFunction(
                u"Silver", round % 16 ? Drawing::SpotColorFunction::parseColorFunctionString(u"rgb(1,2,3)") : nullptr);
        if (round % 8 == 4) Core::OSInfo::setSystemColor(u"Menu", round % 16 == 4 ? u"rgb(1,2,3)" : u"rgb(4,5,6)");
        EXPECT_TRUE(parsed<SmartPtr<Drawing::Color>>(u"spot-color(Silver)"));
        EXPECT_TRUE(parsed<SmartPtr<Drawing::Color>>(u"menu"));
    });
    Core::Log::setHandler(handler);
    Drawing::SpotColorMapper::clear();
    Core::OSInfo::clearSystemColors();
    EXPECT_GT(warnings, 0);
}

} // namespace
} // namespace Xml
