#include "fixing/ReplacedFile.h"

#include "bytes/ByteSource.h"
#include "text/Path.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

namespace Command {

namespace {

namespace fs = std::filesystem;

// Without the right to write into a file, nobody shall replace it either.
bool mayBeWritten(fs::path const& path) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const opened(std::fopen(path.string().c_str(), "r+b"), std::fclose);
    return opened != nullptr;
}

template <class Call> void guarded(Call call) {
    try {
        call();
    } catch (std::system_error const& error) {
        throw RewriteFailure("unwritable", "cannot be written: " + error.code().message());
    }
}

} // namespace

ReplacedFile::ReplacedFile(FileSystem& system, std::set<fs::path>& folders, fs::path target, fs::path like)
    : system(system), folders(folders), target(std::move(target)), like(std::move(like)) {}

ReplacedFile::~ReplacedFile() {
    try {
        if (file >= 0) system.close(file);
    } catch (std::system_error const&) { // it goes anyway
    }
    if (!created.empty()) system.remove(created);
}

void ReplacedFile::open() {
    if (!fs::exists(target)) {
        target = followed(target);
        if (target.has_parent_path()) fs::create_directories(target.parent_path());
    } else {
        target = fs::canonical(target);
        if (!mayBeWritten(target)) throw std::system_error(errno, std::generic_category());
    }
    for (int number = 0; created.empty(); ++number) {
        fs::path const path = target.parent_path() / (".xmlattr-" + std::to_string(number) + ".new");
        if (system.create(path, like, file)) created = path;
    }
}

void ReplacedFile::flush() {
    system.write(file, pending);
    pending.clear();
}

void ReplacedFile::write(std::string_view bytes) {
    guarded([&] {
        if (file < 0) open();
        pending += bytes;
        if (pending.size() >= blockSize) flush();
    });
}

void ReplacedFile::finish() {
    guarded([&] {
        if (file < 0) open();
        flush();
        system.sync(file);
        system.close(std::exchange(file, -1));
        system.rename(created, target);
        created.clear();
        folders.insert(target.has_parent_path() ? target.parent_path() : fs::path("."));
    });
}

} // namespace Command
