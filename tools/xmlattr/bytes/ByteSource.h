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
    virtual std::size_t read(std::span<char> buffer) = 0;
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

class FileSource final : public ByteSource {
public:
    explicit FileSource(std::FILE* file) : file(file) {}
    std::size_t read(std::span<char> buffer) override;

private:
    std::FILE* file;
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
    explicit PeekedSource(ByteSource& source) : source(source) {}

    // Up to `size` bytes from the start; fewer when there are no more.
    std::string_view peek(std::size_t size);
    std::size_t read(std::span<char> buffer) override;
    std::optional<SourceFailure> const& failure() const override { return source.failure(); }

private:
    ByteSource& source;
    std::string start;
    std::size_t taken = 0; // of the start
};

} // namespace Command
