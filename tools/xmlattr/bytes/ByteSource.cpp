#include "bytes/ByteSource.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#ifdef _WIN32
#include <io.h>
#endif

namespace Command {

#ifdef _WIN32
constexpr int forReading = O_RDONLY | O_BINARY;
#else
constexpr int forReading = O_RDONLY | O_CLOEXEC;
#endif

ByteSource::Filling ByteSource::fill(std::span<char> buffer) {
    constexpr std::size_t leastRoom = 64; // more than a character takes, also one that becomes two in UTF-8
    Filling filling;
    std::size_t more = 0;
    do {
        more = read(buffer.subspan(filling.count));
        filling.count += more;
    } while (more > 0 && !failure() && buffer.size() - filling.count >= leastRoom);
    filling.isAtEnd = more == 0 && !failure();
    return filling;
}

FileSource::FileSource(std::string const& path) : file(path == "-" ? STDIN_FILENO : open(path.c_str(), forReading)) {
    if (file >= 0) return;
    failed = SourceFailure{"unreadable", "cannot be read: " + std::generic_category().message(errno) +
                                             "; check the path and its permissions"};
}

FileSource::~FileSource() {
    if (file > STDIN_FILENO) close(file);
}

std::size_t FileSource::read(std::span<char> buffer) {
    if (file < 0) return 0;
    auto const count = ::read(file, buffer.data(), static_cast<unsigned>(buffer.size()));
    if (count < 0) failed = SourceFailure{"unreadable", std::generic_category().message(errno)};
    return static_cast<std::size_t>(std::max<decltype(count)>(count, 0));
}

namespace {

bool seekTo(std::FILE* file, std::uint64_t position) {
#ifdef _WIN32
    return _fseeki64(file, static_cast<__int64>(position), SEEK_SET) == 0;
#else
    return fseeko(file, static_cast<off_t>(position), SEEK_SET) == 0;
#endif
}

} // namespace

std::size_t SharedFileSource::read(std::span<char> buffer) {
    std::size_t const count = seekTo(file, position) ? std::fread(buffer.data(), 1, buffer.size(), file) : 0;
    if (count < buffer.size() && !std::feof(file))
        failed = SourceFailure{"unreadable", std::generic_category().message(errno)};
    position += count;
    return count;
}

std::size_t MemorySource::read(std::span<char> buffer) {
    std::size_t const count = std::min(rest.size(), buffer.size());
    std::ranges::copy(rest.substr(0, count), buffer.begin());
    rest.remove_prefix(count);
    return count;
}

std::string_view PeekedSource::peek(std::size_t size) {
    while (peeked < size && !isAtEnd) {
        std::size_t const count = source.read(room.subspan(peeked));
        isAtEnd = count == 0;
        peeked += count;
    }
    return {room.data(), std::min(size, peeked)};
}

std::size_t PeekedSource::read(std::span<char> buffer) {
    if (taken == peeked) return isAtEnd ? 0 : source.read(buffer);
    std::size_t const count = std::min(peeked - taken, buffer.size());
    std::ranges::copy(room.subspan(taken, count), buffer.begin());
    taken += count;
    return count;
}

} // namespace Command
