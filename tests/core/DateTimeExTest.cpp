#include "xmlattr/core/DateTimeEx.h"

#include "Support.h"

namespace Core {
namespace {

// The date that a text gives, "refused" for none.
std::string read(char16_t const* text) {
    DateTimeEx date;
    return DateTimeEx::parseXmlDateEx(text, date) ? date.toDateString(1).toUtf8() : "refused";
}

TEST(DateTimeEx, ReadsDatesAndDateTimes) {
    struct Row {
        char16_t const* text;
        char const* date;
    };
    for (Row const& row :
         {Row{u"2020-01-31", "2020-01-31"}, Row{u"2020-02-29Z", "2020-02-29"}, Row{u"2000-02-29-14:00", "2000-02-29"},
          Row{u"2020-01-31T10:20:30", "2020-01-31"}, Row{u"2020-01-31T23:59:59.12345678901+13:59", "2020-01-31"},
          Row{u"2020-12-31T24:00:00", "2021-01-01"}, Row{u"-0044-03-15", "-0044-03-15"},
          Row{u"0000-01-01", "0000-01-01"}, Row{u"32767-12-31T23:59:59", "32767-12-31"},
          Row{u"-32767-01-01T00:00:00+14:00", "-32767-01-01"}})
        EXPECT_EQ(read(row.text), row.date) << Xml::narrow(row.text);
}

TEST(DateTimeEx, RefusesEverythingElse) {
    for (char16_t const* text : {u"",
                                 u"2020",
                                 u"2020-01",
                                 u"10:20:30",
                                 u"--01-31",
                                 u"220-01-31",
                                 u"+2020-01-31",
                                 u"02020-01-31",
                                 u"32768-01-01",
                                 u"99999999999-01-01",
                                 u"32767-12-31T24:00:00",
                                 u"2020-13-01",
                                 u"2020-00-01",
                                 u"2020-01-00",
                                 u"2020-04-31",
                                 u"2019-02-29",
                                 u"1900-02-29",
                                 u"2020-1-31",
                                 u"2020/01/31",
                                 u" 2020-01-31",
                                 u"2020-01-31 ",
                                 u"2020-01-31T",
                                 u"2020-01-31t10:20:30",
                                 u"2020-01-31T10:20",
                                 u"2020-01-31T25:00:00",
                                 u"2020-01-31T24:00:01",
                                 u"2020-01-31T24:00:00.1",
                                 u"2020-01-31T10:60:00",
                                 u"2020-01-31T10:20:60",
                                 u"2020-01-31T10:20:30.",
                                 u"2020-01-31z",
                                 u"2020-01-31+14:01",
                                 u"2020-01-31+1:00",
                                 u"2020-01-31+0100",
                                 u"2020-01-31ZZ"})
        EXPECT_EQ(read(text), "refused") << Xml::narrow(text);
}

TEST(DateTimeEx, ComparesInstantsOrWhatIsWritten) {
    struct Row {
        char16_t const* left;
        int order;
        char16_t const* right;
    };
    for (Row const& row :
         {Row{u"2020-01-31T23:00:00-02:00", 0, u"2020-02-01T01:00:00Z"},
          Row{u"2020-01-31T23:00:00-02:00", 1, u"2020-02-01T00:30:00Z"},
          Row{u"2020-01-31T23:00:00", -1, u"2020-02-01T00:30:00Z"}, Row{u"2020-01-31", 0, u"2020-01-31T00:00:00+05:00"},
          Row{u"2020-01-31T10:20:30.25", -1, u"2020-01-31T10:20:30.250000001"},
          Row{u"2020-01-31T24:00:00", 0, u"2020-02-01"}, Row{u"-0001-12-31", -1, u"0000-01-01"}}) {
        SCOPED_TRACE(Xml::narrow(row.left) + " and " + Xml::narrow(row.right));
        DateTimeEx left, right;
        ASSERT_TRUE(DateTimeEx::parseXmlDateEx(row.left, left) && DateTimeEx::parseXmlDateEx(row.right, right));
        EXPECT_EQ((left > right) - (left < right), row.order);
        EXPECT_EQ((right > left) - (right < left), -row.order);
        EXPECT_EQ(left == right, row.order == 0);
    }
}

} // namespace
} // namespace Core
