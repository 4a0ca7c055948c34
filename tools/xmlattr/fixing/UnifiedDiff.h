// What changes in a document, line by line, as diff -u tells it and patch takes it.
#pragma once

#include "fixing/Rewriter.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

namespace Command {

class UnifiedDiff final : public RewrittenDocument {
public:
    // Called once with all of a diff; not at all when nothing changes.
    using Print = std::function<void(std::string const& diff)>;

    UnifiedDiff(std::string name, bool isColored, Print print)
        : print(std::move(print)), name(std::move(name)), isColored(isColored) {}

    void keep(std::string_view bytes) override;
    void replace(std::string_view before, std::string_view after) override;
    void finish() override;

private:
    void endLine();
    void add(char mark, std::string_view lines);
    void addChanges();
    void endHunk();

    Print print;
    std::string name, out;
    bool isColored;
    // What is at hand: it ends where a line ends in both versions.
    std::string before, after;
    bool isChanged = false;
    std::deque<std::string> context; // unchanged lines that may belong to a hunk
    // Lines of each version before those of the hunk and the context.
    std::uint64_t passedBefore = 0, passedAfter = 0;
    struct {
        bool isOpen = false;
        std::string removed, added, lines; // the lines with their marks
        std::uint64_t before = 0, after = 0;
    } hunk;
};

} // namespace Command
