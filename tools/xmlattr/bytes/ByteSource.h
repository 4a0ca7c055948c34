// Where the bytes of a document come from: a file, memory, or another source that is expanded or transcoded.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Command {

// Why a source ended before its document did.
struct SourceFailure {
    std::string_view id; // as XmlFailure has it
    std::string message;
};

// How many bytes of a file are read or written at a time.
inline constexpr int blockSize = 64 << 10;

class ByteSource {
public:
    ByteSource() = default;
    ByteSource(ByteSource const&) = delete;
    ByteSource& operator=(ByteSource const&) = delete;
    virtual ~ByteSource() = default;

    // Reads some bytes and tells how many; none only at the end, or when the source failed.
    // There is room for a character of any encoding.
    virtual std::size_t read(std::span<char> buffer) = 0;
    struct Filling {
        std::size_t count = 0;
        bool isAtEnd = false; // so that these were the last bytes; never when the source failed
    };
    // Reads on until the buffer is full, but for the room of a character.
    Filling fill(std::span<char> buffer);
    // Set once the source failed; what was read before holds.
    virtual std::optional<SourceFailure> const& failure() const { return failed; }

protected:
    std::optional<SourceFailure> failed;
};

// Closes the file with its owner; standard input stays open.
struct CloseFile {
    void operator()(std::FILE* file) const {
        if (file != stdin) std::fclose(file);
    }
};

using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// A file from its start to its end, read straight into the buffers of the caller.
class FileSource final : public ByteSource {
public:
    // "-" is standard input. The source has failed at once when the file cannot be opened.
    explicit FileSource(std::string const& path);
    ~FileSource() override;
    std::size_t read(std::span<char> buffer) override;

private:
    int file;
};

// One of several readers of a file that can be positioned, each of which is somewhere else in it.
class SharedFileSource final : public ByteSource {
public:
    explicit SharedFileSource(std::FILE* file) : file(file) {}
    std::size_t read(std::span<char> buffer) override;

private:
    std::FILE* file;
    std::uint64_t position = 0;
};

class MemorySource final : public ByteSource {
public:
    explicit MemorySource(std::string_view bytes) : rest(bytes) {}
    std::size_t read(std::span<char> buffer) override;

private:
    std::string_view rest;
};

// A source whose first bytes can be looked at before they are read.
class PeekedSource final : public ByteSource {
public:
    // Nothing else may use the room, in which the first bytes stand.
    PeekedSource(ByteSource& source, std::span<char> room) : source(source), room(room) {}

    // Up to `size` bytes from the start, and no more than the room has; fewer when there are no more.
    std::string_view peek(std::size_t size);
    std::size_t read(std::span<char> buffer) override;
    std::optional<SourceFailure> const& failure() const override { return source.failure(); }

private:
    ByteSource& source;
    std::span<char> room;
    std::size_t peeked = 0, taken = 0; // of the room
    bool isAtEnd = false;
};

} // namespace Command
