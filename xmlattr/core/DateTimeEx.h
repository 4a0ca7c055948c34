// A date of the Gregorian calendar, with or without a time of day and a time zone.
#pragma once

#include "xmlattr/core/String.h"

#include <compare>
#include <cstdint>
#include <optional>

namespace Core {

// The calendar is extended to all years from -32767 to 32767; the year before 1 is 0. A date without
// a time of day is its first instant.
class XMLATTR_API DateTimeEx {
public:
    // 1970-01-01 without a time zone.
    constexpr DateTimeEx() = default;

    // Reads the whole text as a date or a dateTime of XML Schema 1.1: "2020-01-31" or
    // "2020-01-31T10:20:30", in which the seconds may have a fraction (what is below a nanosecond is
    // dropped), and then nothing or a time zone: "Z" or an offset of up to 14 hours, "+01:00".
    // 24:00:00 is the first instant of the next day. No white space. False for everything else (a
    // year or a time alone, a day that its month lacks, a leap second, a year out of the range
    // above); then `out` is untouched.
    static bool parseXmlDateEx(std::u16string_view text, DateTimeEx& out) noexcept;

    // The date where it was written, whatever its time zone, as ISO 8601 has it: "2020-01-31". The
    // argument names the form; 1 is this one, and the other numbers have no form of their own.
    String toDateString(int form) const;

    // Two dates with a time zone compare as instants. Otherwise what is written compares, so that a
    // date without a zone means the same in every zone; lists that mix both have no order to sort by.
    friend constexpr std::weak_ordering operator<=>(DateTimeEx const& a, DateTimeEx const& b) {
        bool const areInstants = a.offset && b.offset;
        std::int64_t const aSeconds = areInstants ? a.seconds - *a.offset * 60 : a.seconds;
        std::int64_t const bSeconds = areInstants ? b.seconds - *b.offset * 60 : b.seconds;
        return aSeconds != bSeconds ? aSeconds <=> bSeconds : a.fraction <=> b.fraction;
    }
    friend constexpr bool operator==(DateTimeEx const& a, DateTimeEx const& b) { return std::is_eq(a <=> b); }

private:
    std::int64_t seconds = 0;           // since 1970-01-01, where it was written
    std::int64_t fraction = 0;          // below a second, in nanoseconds
    std::optional<std::int64_t> offset; // of the time zone from UTC, in minutes
};

} // namespace Core
