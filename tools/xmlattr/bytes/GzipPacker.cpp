#include "bytes/GzipPacker.h"

#include "bytes/ByteSource.h"

#ifdef XMLATTR_HAS_ZLIB
#include <algorithm>
#include <array>
#include <new>

#define ZLIB_CONST
#include <zlib.h>
#endif

#include <utility>

namespace Command {

#ifdef XMLATTR_HAS_ZLIB

struct GzipPacker::State {
    z_stream stream{};
    std::array<char, blockSize> output;

    State() {
        constexpr int withGzipHeader = 15 + 16, memory = 8;
        if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, withGzipHeader, memory, Z_DEFAULT_STRATEGY) !=
            Z_OK)
            throw std::bad_alloc();
    }
    State(State const&) = delete;
    State& operator=(State const&) = delete;
    ~State() { deflateEnd(&stream); }
};

void GzipPacker::add(std::string_view bytes, bool isLast) {
    z_stream& stream = state->stream;
    // Less than the counters of zlib can hold.
    constexpr std::size_t most = 1 << 30;
    do {
        std::string_view const next = bytes.substr(0, most);
        bytes.remove_prefix(next.size());
        stream.next_in = reinterpret_cast<Bytef const*>(next.data());
        stream.avail_in = static_cast<uInt>(next.size());
        do {
            stream.next_out = reinterpret_cast<Bytef*>(state->output.data());
            stream.avail_out = static_cast<uInt>(state->output.size());
            deflate(&stream, isLast && bytes.empty() ? Z_FINISH : Z_NO_FLUSH);
            packed({state->output.data(), state->output.size() - stream.avail_out});
        } while (stream.avail_out == 0);
    } while (!bytes.empty());
}

#else

// What is compressed cannot be read either.
struct GzipPacker::State {};

void GzipPacker::add(std::string_view /*bytes*/, bool /*isLast*/) {}

#endif

GzipPacker::GzipPacker(Packed packed) : packed(std::move(packed)), state(std::make_unique<State>()) {}

GzipPacker::~GzipPacker() = default;

} // namespace Command
