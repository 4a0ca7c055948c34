#include "xmlattr/core/DateTimeEx.h"

#include "xmlattr/core/Text.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace Core {

namespace {

using namespace std::chrono;

// Takes the parts of a date off the front of a text.
struct DateReader {
    std::u16string_view rest;

    bool take(char16_t unit) {
        if (!rest.starts_with(unit)) return false;
        rest.remove_prefix(1);
        return true;
    }

    std::size_t countDigits() const {
        std::size_t count = 0;
        while (count < rest.size() && isDigit(rest[count])) ++count;
        return count;
    }

    // A number of so many digits, at most 9, that is not above `max`.
    bool takeNumber(std::size_t digits, int max, int& number) {
        if (countDigits() < digits) return false;
        number = 0;
        for (char16_t const digit : rest.substr(0, digits)) number = number * 10 + (digit - u'0');
        rest.remove_prefix(digits);
        return number <= max;
    }

    // [-]yyyy; years with more digits do not begin with 0.
    bool takeYear(year& value) {
        bool const isNegative = take(u'-');
        std::size_t const digits = countDigits();
        if (digits < 4 || digits > 5 || (digits == 5 && rest.front() == u'0')) return false;
        int number = 0;
        if (!takeNumber(digits, int(year::max()), number)) return false;
        value = year(isNegative ? -number : number);
        return true;
    }

    // yyyy-mm-dd
    bool takeDate(year_month_day& date) {
        year y;
        int m = 0, d = 0;
        if (!takeYear(y) || !take(u'-') || !takeNumber(2, 12, m) || !take(u'-') || !takeNumber(2, 31, d)) return false;
        date = y / m / d;
        return date.ok();
    }

    // hh:mm:ss[.f...]
    bool takeTime(seconds& time, nanoseconds& fraction) {
        int h = 0, m = 0, s = 0;
        if (!takeNumber(2, 24, h) || !take(u':') || !takeNumber(2, 59, m) || !take(u':') || !takeNumber(2, 59, s))
            return false;
        if (take(u'.')) {
            std::size_t const digits = countDigits();
            if (digits == 0) return false;
            auto unit = nanoseconds(1s);
            for (char16_t const digit : rest.substr(0, digits)) fraction += (digit - u'0') * (unit /= 10);
            rest.remove_prefix(digits);
        }
        time = hours(h) + minutes(m) + seconds(s);
        return time + fraction <= 24h;
    }

    // Nothing, Z, +hh:mm or -hh:mm
    bool takeOffset(std::optional<minutes>& offset) {
        if (rest.empty()) return true;
        if (take(u'Z')) {
            offset = 0min;
            return true;
        }
        bool const isNegative = take(u'-');
        int h = 0, m = 0;
        if ((!isNegative && !take(u'+')) || !takeNumber(2, 14, h) || !take(u':') || !takeNumber(2, 59, m)) return false;
        minutes const distance = hours(h) + minutes(m);
        offset = isNegative ? -distance : distance;
        return distance <= 14h;
    }
};

constexpr local_days endOfCalendar = local_days(year::max() / December / 31) + days(1);

} // namespace

bool DateTimeEx::parseXmlDateEx(std::u16string_view text, DateTimeEx& out) noexcept {
    DateReader reader{text};
    DateTimeEx read;
    year_month_day date;
    auto time = 0s;
    if (!reader.takeDate(date)) return false;
    nanoseconds fraction{};
    if (reader.take(u'T') && !reader.takeTime(time, fraction)) return false;
    std::optional<minutes> offset;
    if (!reader.takeOffset(offset) || !reader.rest.empty()) return false;
    local_seconds const instant = local_days(date) + time;
    if (instant >= endOfCalendar) return false; // 24:00:00 on the last day of the calendar
    read.seconds = instant.time_since_epoch().count();
    read.fraction = fraction.count();
    if (offset) read.offset = offset->count();
    out = read;
    return true;
}

String DateTimeEx::toDateString(int) const {
    year_month_day const date(floor<days>(local_seconds(std::chrono::seconds(seconds))));
    int const year = int(date.year());
    char buffer[32];
    int const length = std::snprintf(buffer, sizeof buffer, "%s%04d-%02u-%02u", year < 0 ? "-" : "", std::abs(year),
                                     unsigned(date.month()), unsigned(date.day()));
    return String(std::u16string(buffer, buffer + length));
}

} // namespace Core
