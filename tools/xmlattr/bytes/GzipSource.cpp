#include "bytes/GzipSource.h"

#ifdef XMLATTR_HAS_ZLIB
#include <array>
#include <new>

#define ZLIB_CONST
#include <zlib.h>
#endif

namespace Command {

bool isGzip(std::string_view start) {
    return start.starts_with("\x1F\x8B");
}

#ifdef XMLATTR_HAS_ZLIB

struct GzipSource::State {
    z_stream stream{};
    std::array<char, blockSize> input;
    std::uint64_t packedBytes = 0, bytes = 0;
    bool isAtEnd = false;
    // Whether a member has begun and not ended.
    bool isInside = true;

    State() {
        constexpr int withGzipHeader = 15 + 16;
        if (inflateInit2(&stream, withGzipHeader) != Z_OK) throw std::bad_alloc();
    }
    State(State const&) = delete;
    State& operator=(State const&) = delete;
    ~State() { inflateEnd(&stream); }

    void refill(ByteSource& packed) {
        std::size_t const count = packed.read(input);
        packedBytes += count;
        stream.next_in = reinterpret_cast<Bytef const*>(input.data());
        stream.avail_in = static_cast<uInt>(count);
    }
};

GzipSource::GzipSource(ByteSource& packed, Limits const& limits)
    : packed(packed), limits(limits), state(std::make_unique<State>()) {}

std::size_t GzipSource::read(std::span<char> buffer) {
    z_stream& stream = state->stream;
    std::size_t count = 0;
    while (count < buffer.size() && !state->isAtEnd && !failed) {
        if (stream.avail_in == 0) state->refill(packed);
        if (stream.avail_in == 0) {
            if (packed.failure())
                failed = packed.failure();
            else if (state->isInside)
                failed = SourceFailure{"malformed", "the compressed file ends too early"};
            state->isAtEnd = true;
            break;
        }
        if (!state->isInside) {
            if (*stream.next_in != 0x1F) {
                state->isAtEnd = true;
                break;
            }
            inflateReset(&stream);
            state->isInside = true;
        }
        stream.next_out = reinterpret_cast<Bytef*>(buffer.data() + count);
        stream.avail_out = static_cast<uInt>(buffer.size() - count);
        int const status = inflate(&stream, Z_NO_FLUSH);
        std::size_t const before = count;
        count = buffer.size() - stream.avail_out;
        state->bytes += count - before;
        if (status == Z_STREAM_END)
            state->isInside = false;
        else if (status == Z_MEM_ERROR)
            failed = SourceFailure{"limit", "out of memory"};
        else if (status != Z_OK && status != Z_BUF_ERROR)
            failed =
                SourceFailure{"malformed", std::string("no valid gzip: ") + (stream.msg ? stream.msg : zError(status))};
        if (state->bytes > limits.bytes ||
            (state->bytes > limits.ratioMattersFrom && state->bytes / limits.ratio > state->packedBytes))
            failed = SourceFailure{"limit", "the compressed file expands to more than is read"};
    }
    return count;
}

#else

struct GzipSource::State {};

GzipSource::GzipSource(ByteSource& packed, Limits const& limits) : packed(packed), limits(limits) {
    failed = SourceFailure{"unreadable", "the file is compressed, which is not read here: zlib was not found when "
                                         "the command was built"};
}

std::size_t GzipSource::read(std::span<char>) {
    (void)packed;
    return 0;
}

#endif

GzipSource::~GzipSource() = default;

} // namespace Command
