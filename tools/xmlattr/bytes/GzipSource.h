// Expands a gzip file, such as an .svgz, while it is read.
#pragma once

#include "bytes/ByteSource.h"

namespace Command {

bool isGzip(std::string_view start);

class GzipSource final : public ByteSource {
public:
    // A file that expands further is no drawing but a trap: beyond so many bytes, or, once that matters,
    // beyond so many times its size.
    struct Limits {
        std::uint64_t bytes = std::uint64_t{1} << 30;
        std::uint64_t ratio = 200, ratioMattersFrom = 16 << 20;
    };

    explicit GzipSource(ByteSource& packed) : GzipSource(packed, Limits()) {}
    GzipSource(ByteSource& packed, Limits const& limits);
    ~GzipSource() override;

    // Members that follow one another are one text; other bytes after a member are passed over. Without zlib
    // the source fails at once.
    std::size_t read(std::span<char> buffer) override;

private:
    struct State;

    ByteSource& packed;
    Limits limits;
    std::unique_ptr<State> state;
};

} // namespace Command
