// A file that is written anew, and of which nobody ever sees a part.
#pragma once

#include "fixing/FileSystem.h"
#include "fixing/Rewriter.h"

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

namespace Command {

// The new content stands in a file beside the old one until all of it is on the disk; then it takes the old one's name.
// Whatever fails before, a loss of power included, leaves the old file as it was.
class ReplacedFile final : public RewrittenDocument {
public:
    // The target and its folder need not exist; where it is a link, that to which it leads is replaced. Mode and owner
    // are those of the other file. Nothing is written before the first bytes are. Folders with a new name in them are
    // gathered: until they are on the disk as well, which one call does for many files, a loss of power may bring the
    // old file back.
    ReplacedFile(FileSystem& system, std::set<std::filesystem::path>& folders, std::filesystem::path target,
                 std::filesystem::path like);
    ReplacedFile(ReplacedFile const&) = delete;
    ReplacedFile& operator=(ReplacedFile const&) = delete;
    // Removes what did not get the name.
    ~ReplacedFile() override;

    void keep(std::string_view bytes) override { write(bytes); }
    void replace(std::string_view, std::string_view after) override { write(after); }
    // Has the content take the name; the old file is to be closed first.
    void finish() override;

private:
    void open();
    void write(std::string_view bytes);
    void flush();

    FileSystem& system;
    std::set<std::filesystem::path>& folders;
    std::filesystem::path target, like, created;
    int file = -1;
    std::string pending;
};

} // namespace Command
