#include "fixing/FileSystem.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef _WIN32
#include <io.h>
#endif

namespace Command {

namespace {

namespace fs = std::filesystem;

void require(bool isDone) {
    if (!isDone) throw std::system_error(errno, std::generic_category());
}

#ifdef _WIN32
constexpr int newFile = O_WRONLY | O_CREAT | O_EXCL | O_BINARY;
#else
constexpr int newFile = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
#endif

} // namespace

bool FileSystem::create(fs::path const& path, fs::path const& like, int& file) {
#ifdef _WIN32
    (void)like; // a new file has the rights of its folder
    file = _wopen(path.c_str(), newFile, S_IRUSR | S_IWUSR);
#else
    struct stat status {};
    require(stat(like.c_str(), &status) == 0);
    file = open(path.c_str(), newFile, S_IRUSR | S_IWUSR);
#endif
    if (file < 0 && errno == EEXIST) return false;
    require(file >= 0);
#ifndef _WIN32
    // A new owner takes some bits of the mode away.
    (void)!fchown(file, status.st_uid, status.st_gid);
    fchmod(file, status.st_mode & 07777);
#endif
    return true;
}

void FileSystem::write(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        auto const count = ::write(file, bytes.data(), static_cast<unsigned>(bytes.size()));
        require(count >= 0 || errno == EINTR);
        if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void FileSystem::sync(int file) {
#ifdef _WIN32
    require(_commit(file) == 0);
#else
    require(fsync(file) == 0);
#endif
}

void FileSystem::close(int file) {
    require(::close(file) == 0);
}

void FileSystem::rename(fs::path const& from, fs::path const& to) {
    fs::rename(from, to);
}

void FileSystem::syncFolder(fs::path const& folder) {
#ifdef _WIN32
    (void)folder; // The system keeps them itself.
#else
    int const opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(opened >= 0);
    // Some file systems cannot, and need not.
    bool const isDone = fsync(opened) == 0 || errno == EINVAL;
    int const problem = errno;
    ::close(opened);
    if (!isDone) throw std::system_error(problem, std::generic_category());
#endif
}

void FileSystem::remove(fs::path const& path) noexcept {
    std::error_code ignored;
    fs::remove(path, ignored);
}

} // namespace Command
