#include "tools/reference/text/Changes.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Reference {

namespace {

using Lines = std::vector<std::string_view>;

Lines linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        std::size_t const end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

std::size_t commonStart(std::string_view a, std::string_view b) {
    return static_cast<std::size_t>(std::ranges::mismatch(a, b).in1 - a.begin());
}

// "~~~" under what of the line is not in the one that it took the place of.
std::string marksUnder(std::string_view line, std::string_view other) {
    std::size_t const start = commonStart(line, other);
    std::size_t end = line.size(), otherEnd = other.size();
    while (end > start && otherEnd > start && line[end - 1] == other[otherEnd - 1]) --end, --otherEnd;
    return std::string(start, ' ') + std::string(std::max<std::size_t>(end - start, 1), '~');
}

// How many lines the rests of both pages have in common at most, by the place at which the rests begin.
class CommonLines {
public:
    CommonLines(Lines const& a, Lines const& b) : columns(b.size() + 1), counts((a.size() + 1) * columns) {
        for (std::size_t i = a.size(); i-- > 0;)
            for (std::size_t j = b.size(); j-- > 0;)
                counts[i * columns + j] = a[i] == b[j] ? static_cast<std::uint16_t>(of(i + 1, j + 1) + 1)
                                                       : std::max(of(i + 1, j), of(i, j + 1));
    }

    std::uint16_t of(std::size_t i, std::size_t j) const { return counts[i * columns + j]; }

private:
    std::size_t columns;
    std::vector<std::uint16_t> counts;
};

class Report {
public:
    void add(Lines const& gone, Lines const& come, std::string_view heading) {
        if (heading != lastHeading) text.append("  ").append(heading).append("\n");
        lastHeading = heading;
        bool const isPaired = gone.size() == come.size();
        for (std::size_t i = 0; i < std::max(gone.size(), come.size()); ++i) {
            if (i < gone.size()) text.append("- ").append(gone[i]).append("\n");
            if (i < come.size()) text.append("+ ").append(come[i]).append("\n");
            if (isPaired) text.append("  ").append(marksUnder(come[i], gone[i])).append("\n");
        }
    }

    std::string text;

private:
    std::string_view lastHeading;
};

} // namespace

std::string changesBetween(std::string_view before, std::string_view after) {
    Lines a = linesOf(before), b = linesOf(after);
    CommonLines const common(a, b);
    Report report;
    std::string_view heading;
    for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
        Lines gone, come;
        while (i < a.size() && j < b.size() && a[i] == b[j]) {
            if (a[i].starts_with("#")) heading = a[i];
            ++i, ++j;
        }
        while ((i < a.size() || j < b.size()) && !(i < a.size() && j < b.size() && a[i] == b[j])) {
            if (j == b.size() || (i < a.size() && common.of(i + 1, j) >= common.of(i, j + 1)))
                gone.push_back(a[i++]);
            else
                come.push_back(b[j++]);
        }
        if (!gone.empty() || !come.empty()) report.add(gone, come, heading);
    }
    return report.text;
}

} // namespace Reference
