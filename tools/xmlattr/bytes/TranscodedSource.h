// A source in an encoding that the parser lacks, turned into UTF-8 by the iconv of the machine.
#pragma once

#include "bytes/ByteSource.h"

namespace Command {

// The encoding that the start of a file names, in its XML declaration or by the form of its first bytes, where
// that is none of those that the parser reads itself; empty otherwise.
std::string foreignEncoding(std::string_view start);

class TranscodedSource final : public ByteSource {
public:
    // Null when the machine does not know the encoding.
    static std::unique_ptr<TranscodedSource> open(ByteSource& source, std::string const& encoding);
    ~TranscodedSource() override;

    // Fails where bytes are none of the encoding's.
    std::size_t read(std::span<char> buffer) override;

private:
    struct State;

    TranscodedSource(ByteSource& source, std::string encoding, std::unique_ptr<State> state);

    ByteSource& source;
    std::string encoding;
    std::unique_ptr<State> state;
};

} // namespace Command
