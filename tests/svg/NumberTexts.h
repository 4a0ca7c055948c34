// Lists of numbers as texts that the fast paths of the readers take, next to texts of the same that only their
// references do.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace Testing {

// The same list in two manners: plain numbers without more between them than there has to be, and numbers with
// exponents and one blank each.
class NumberTexts {
public:
    std::u16string plain, roundabout;

    explicit NumberTexts(unsigned int seed) : random(seed) {}

    std::size_t below(std::size_t limit) { return random() % limit; }

    void add(std::u16string_view text) {
        plain += text;
        roundabout += text;
    }

    // A number, which one of the separators precedes unless there are none, or a "-" separates too.
    void addNumber(std::initializer_list<std::u16string_view> separators, bool minusSeparates = false) {
        static constexpr std::u16string_view numbers[] = {u"0",
                                                          u"7",
                                                          u"42",
                                                          u"-3",
                                                          u"-0",
                                                          u"1.5",
                                                          u"-12.25",
                                                          u".5",
                                                          u"-.75",
                                                          u"0.1",
                                                          u"00099.5",
                                                          u"16777217",
                                                          u"9.99999",
                                                          u"-1234.5678",
                                                          u"123456789012345",
                                                          u"3.0000001",
                                                          u"+8",
                                                          u"1000000",
                                                          u"0.000001",
                                                          u"1234567890123456",
                                                          u"1.000000059604644775390625"};
        std::u16string_view number = numbers[below(std::size(numbers))];
        if (separators.size() > 0) {
            bool const needsNone = minusSeparates && number[0] == u'-' && below(2) == 0;
            if (!needsNone) plain += separators.begin()[below(separators.size())];
            roundabout += u' ';
        }
        plain += number;
        roundabout += number;
        roundabout += u"e0";
    }

private:
    std::minstd_rand random;
};

} // namespace Testing
