#include "bytes/ByteSource.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Command {

std::size_t FileSource::read(std::span<char> buffer) {
    std::size_t const count = std::fread(buffer.data(), 1, buffer.size(), file);
    if (std::ferror(file)) failed = SourceFailure{"unreadable", std::strerror(errno)};
    return count;
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
    if (count < buffer.size() && !std::feof(file)) failed = SourceFailure{"unreadable", std::strerror(errno)};
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
    while (start.size() < size) {
        std::size_t const before = start.size();
        start.resize(size);
        std::size_t const count = source.read(std::span(start).subspan(before));
        start.resize(before + count);
        if (count == 0) break;
    }
    return std::string_view(start).substr(0, size);
}

std::size_t PeekedSource::read(std::span<char> buffer) {
    if (taken == start.size()) return source.read(buffer);
    std::size_t const count = std::min(start.size() - taken, buffer.size());
    std::ranges::copy(std::string_view(start).substr(taken, count), buffer.begin());
    taken += count;
    return count;
}

} // namespace Command
