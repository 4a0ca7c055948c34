#include "tools/reference/text/Changes.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Reference {

namespace {

// Paragraphs and items without their line breaks, rows and headings: what moves as one when text is wrapped anew.
using Blocks = std::vector<std::string>;

Blocks blocksOf(std::string_view text) {
    Blocks blocks;
    bool isOpen = false; // the last block may go on
    while (!text.empty()) {
        std::size_t const end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        bool const isWrapped = !line.empty() && line[0] != '|' && line[0] != '#' && !line.starts_with("```");
        if (isWrapped && isOpen && !line.starts_with("- "))
            blocks.back().append(" ").append(line.substr(std::min(line.find_first_not_of(' '), line.size())));
        else if (!line.empty())
            blocks.emplace_back(line);
        isOpen = isWrapped;
    }
    return blocks;
}

// From its first difference to its last one.
struct Different {
    std::size_t start, end;
};

Different differentIn(std::string_view text, std::string_view other) {
    auto const start = static_cast<std::size_t>(std::ranges::mismatch(text, other).in1 - text.begin());
    std::size_t end = text.size(), otherEnd = other.size();
    while (end > start && otherEnd > start && text[end - 1] == other[otherEnd - 1]) --end, --otherEnd;
    return {start, end};
}

constexpr std::size_t context = 40; // columns that are shown at the beginning and around a difference

void addShortened(std::string& out, char sign, std::string_view text, Different different) {
    std::string line, marks;
    auto const add = [&](std::string_view part, char mark) {
        line += part;
        marks.append(part.size(), mark);
    };
    std::size_t shown = 0;
    if (different.start > 2 * context + 5) {
        add(text.substr(0, context), ' ');
        add(" ... ", ' ');
        shown = different.start - context;
    }
    add(text.substr(shown, different.start - shown), ' ');
    add(text.substr(different.start, different.end - different.start), '~');
    std::string_view const rest = text.substr(different.end);
    add(rest.substr(0, context), ' ');
    if (rest.size() > context) add(" ...", ' ');
    marks.erase(marks.find_last_not_of(' ') + 1);
    out.append({sign, ' '}).append(line).append("\n");
    if (!marks.empty()) out.append("  ").append(marks).append("\n");
}

// How many blocks the rests of both pages have in common at most, by the places at which the rests begin.
class CommonBlocks {
public:
    CommonBlocks(Blocks const& a, Blocks const& b) : columns(b.size() + 1), counts((a.size() + 1) * columns) {
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

void addChange(std::string& out, Blocks const& gone, Blocks const& come) {
    if (gone.size() == come.size()) {
        for (std::size_t i = 0; i < gone.size(); ++i) {
            addShortened(out, '-', gone[i], differentIn(gone[i], come[i]));
            addShortened(out, '+', come[i], differentIn(come[i], gone[i]));
        }
        return;
    }
    for (std::string const& block : gone) out.append("- ").append(block).append("\n");
    for (std::string const& block : come) out.append("+ ").append(block).append("\n");
}

} // namespace

std::string changesBetween(std::string_view before, std::string_view after) {
    if (before == after) return {};
    Blocks const a = blocksOf(before), b = blocksOf(after);
    CommonBlocks const common(a, b);
    std::string out;
    std::string_view heading, lastHeading;
    for (std::size_t i = 0, j = 0; i < a.size() || j < b.size();) {
        auto const areSame = [&] { return i < a.size() && j < b.size() && a[i] == b[j]; };
        for (; areSame(); ++i, ++j)
            if (a[i].starts_with("#")) heading = a[i];
        Blocks gone, come;
        while ((i < a.size() || j < b.size()) && !areSame()) {
            if (j == b.size() || (i < a.size() && common.of(i + 1, j) >= common.of(i, j + 1)))
                gone.push_back(a[i++]);
            else
                come.push_back(b[j++]);
        }
        if (gone.empty() && come.empty()) continue;
        if (heading != lastHeading) out.append("  ").append(heading).append("\n");
        lastHeading = heading;
        addChange(out, gone, come);
    }
    return out.empty() ? "  differs in its lines alone\n" : out;
}

} // namespace Reference
