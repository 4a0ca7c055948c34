// What replacing a file asks of the system.
#pragma once

#include <filesystem>
#include <string_view>

namespace Command {

// Each call throws std::system_error where it fails. They are virtual so that a test can make any of them fail.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    // Opens a new file for writing, with the mode, and where that is allowed the owner, of another one; false when
    // there is a file of that name.
    virtual bool create(std::filesystem::path const& path, std::filesystem::path const& like, int& file);
    virtual void write(int file, std::string_view bytes);
    // Has the file on the disk.
    virtual void sync(int file);
    virtual void close(int file);
    // In the place of a file of that name.
    virtual void rename(std::filesystem::path const& from, std::filesystem::path const& to);
    // Has the names of its files on the disk.
    virtual void syncFolder(std::filesystem::path const& folder);
    virtual void remove(std::filesystem::path const& path) noexcept;
};

} // namespace Command
