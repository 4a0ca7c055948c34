#include "fixing/UnifiedDiff.h"

#include <algorithm>
#include <utility>

namespace Command {

namespace {

constexpr std::size_t contextLines = 3;

// In quotes where patch could not read it otherwise; a blank within a name is its end unless a tab is.
std::string headerName(std::string const& name) {
    auto const isOdd = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\' || c == 0x7F;
    };
    bool const isBlankAside = name.starts_with(' ') || name.ends_with(' ');
    if (!isBlankAside && std::ranges::none_of(name, isOdd))
        return name.find(' ') == std::string::npos ? name : name + "\t";
    std::string quoted = "\"";
    for (char const c : name) {
        auto const digit = [c](int shift) {
            return static_cast<char>('0' + (static_cast<unsigned char>(c) >> shift & 7));
        };
        if (isOdd(c))
            quoted.append({'\\', digit(6), digit(3), digit(0)});
        else
            quoted += c;
    }
    return quoted + "\"";
}

// So many lines of a hunk, from one on.
std::string range(std::uint64_t first, std::uint64_t count) {
    return std::to_string(first) + (count == 1 ? "" : "," + std::to_string(count));
}

} // namespace

void UnifiedDiff::keep(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t const end = bytes.find('\n');
        std::string_view const piece = bytes.substr(0, end == std::string_view::npos ? end : end + 1);
        before += piece;
        if (isChanged) after += piece;
        bytes.remove_prefix(piece.size());
        if (end != std::string_view::npos) endLine();
    }
}

void UnifiedDiff::replace(std::string_view old, std::string_view inserted) {
    if (!isChanged) after = before;
    isChanged = true;
    before += old;
    after += inserted;
}

void UnifiedDiff::add(char mark, std::string_view lines) {
    std::string_view const color = mark == '-' ? "31" : mark == '+' ? "32" : "";
    bool const hasColor = isColored && !color.empty();
    while (!lines.empty()) {
        std::size_t const end = lines.find('\n');
        if (hasColor) hunk.lines.append("\x1b[").append(color) += 'm';
        hunk.lines.append(1, mark) += lines.substr(0, end);
        if (hasColor) hunk.lines += "\x1b[0m";
        hunk.lines += end != std::string_view::npos ? "\n" : "\n\\ No newline at end of file\n";
        lines.remove_prefix(end != std::string_view::npos ? end + 1 : lines.size());
        if (mark != '+') ++hunk.before;
        if (mark != '-') ++hunk.after;
    }
}

void UnifiedDiff::addChanges() {
    add('-', std::exchange(hunk.removed, {}));
    add('+', std::exchange(hunk.added, {}));
}

void UnifiedDiff::endLine() {
    if (!isChanged) {
        context.push_back(std::exchange(before, {}));
        std::size_t const most = hunk.isOpen ? 2 * contextLines : contextLines;
        if (context.size() > most) {
            if (hunk.isOpen) endHunk();
            for (; context.size() > contextLines; context.pop_front()) {
                ++passedBefore;
                ++passedAfter;
            }
        }
        return;
    }
    hunk.isOpen = true;
    if (!context.empty()) addChanges();
    for (std::string const& line : context) add(' ', line);
    context.clear();
    hunk.removed += std::exchange(before, {});
    hunk.added += std::exchange(after, {});
    isChanged = false;
}

void UnifiedDiff::endHunk() {
    addChanges();
    for (std::size_t i = 0; i < contextLines && !context.empty(); ++i, context.pop_front()) add(' ', context.front());
    if (out.empty()) out = "--- " + headerName(name) + "\n+++ " + headerName(name) + "\n";
    std::string const head =
        "@@ -" + range(passedBefore + 1, hunk.before) + " +" + range(passedAfter + 1, hunk.after) + " @@";
    out += isColored ? "\x1b[36m" + head + "\x1b[0m" : head;
    out += "\n" + hunk.lines;
    passedBefore += hunk.before;
    passedAfter += hunk.after;
    hunk = {};
}

void UnifiedDiff::finish() {
    if (!before.empty() || !after.empty()) endLine();
    if (hunk.isOpen) endHunk();
    if (!out.empty()) print(out);
}

} // namespace Command
