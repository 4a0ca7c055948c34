#include "Support.h"
#include "xmlattr/core/Application.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/Object.h"

namespace Core {
namespace {

struct Counted : Object {
    explicit Counted(int& alive) : alive(++alive) {}
    ~Counted() override { --alive; }
    int& alive;
};

TEST(SmartPtr, HoldsOneReferenceEach) {
    int alive = 0;
    {
        SmartPtr<Counted> const first = new Counted(alive);
        SmartPtr<Object> second = first;
        EXPECT_TRUE(second == first);
        SmartPtr<Counted> third = new Counted(alive);
        EXPECT_FALSE(third == first);
        third = first;
        EXPECT_EQ(alive, 1) << "the replaced object is gone";
        second = *&second;
        EXPECT_EQ(alive, 1) << "assigning itself keeps the object";
        SmartPtr<Counted> const taken = std::move(third);
        EXPECT_TRUE(!third && taken);
    }
    EXPECT_EQ(alive, 0);
    SmartPtr<Counted> const null = nullptr;
    EXPECT_TRUE(null == nullptr);
    EXPECT_THROW(*null, NullPointerException);
    EXPECT_THROW(null->AddRef(), NullPointerException);
}

TEST(Application, KeepsTextsByKey) {
    Application::setConfigValue(u"size", u"9");
    Application::setConfigValue(u"size", u" 12 ");
    Application::setConfigValue(u"family", u"Times");
    EXPECT_EQ(Application::getIntConfigValue(u"size", 1), 12);
    EXPECT_EQ(Application::getIntConfigValue(u"family", 1), 1);
    EXPECT_EQ(Application::getStringConfigValue(u"family", u"x"), u"Times");
    EXPECT_EQ(Application::getStringConfigValue(u"FAMILY", u"x"), u"x");
    EXPECT_TRUE(Application::isConfigValue(u"family", u"Times"));
    EXPECT_FALSE(Application::isConfigValue(u"family", u"times"));
    Application::clearConfig();
    EXPECT_FALSE(Application::isConfigValue(u"family", u"Times"));
    EXPECT_EQ(Application::getIntConfigValue(u"size", 1), 1);
}

TEST(Log, HandlersReplaceEachOther) {
    std::string heard;
    Log::Handler const before = Log::setHandler([&](String const& message) { heard += message.toUtf8(); });
    Log::warning(u"a");
    Log::Handler const mine = Log::setHandler(before);
    mine(u"b");
    EXPECT_EQ(heard, "ab");
}

TEST(UnreacheableCodeException, NamesItsSource) {
    UnreacheableCodeException const exception("LengthAttribute", 7);
    EXPECT_STREQ(exception.what(), "unreachable code: LengthAttribute, line 7");
    EXPECT_STREQ(exception.getSourceName(), "LengthAttribute");
    EXPECT_EQ(exception.getLine(), 7);
}

} // namespace
} // namespace Core
