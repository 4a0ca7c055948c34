// Copies a document with changes to some of its bytes.
#pragma once

#include "bytes/ByteSource.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Command {

// Bytes of a document and what stands there instead.
struct Edit {
    std::uint64_t offset = 0, length = 0;
    std::string inserted;
};

// Takes a document from its first byte to its last.
class RewrittenDocument {
public:
    virtual ~RewrittenDocument() = default;
    virtual void keep(std::string_view bytes) = 0;
    virtual void replace(std::string_view before, std::string_view after) = 0;
    virtual void finish() = 0;
};

// Thrown where the document cannot be read again, or written; says why.
struct RewriteFailure : std::runtime_error {
    RewriteFailure(std::string_view id, std::string const& message) : std::runtime_error(message), id(id) {}
    std::string_view id; // "unreadable" or "unwritable"
};

// Reads the document a second time, up to each edit as it comes: memory is bounded by the longest one.
class Rewriter {
public:
    Rewriter(ByteSource& original, RewrittenDocument& rewritten) : original(original), rewritten(rewritten) {}

    // Edits come in the order of the document and do not overlap. Before the first nothing is read or written.
    void apply(Edit const& edit);
    // Copies the rest of the document.
    void finish();
    bool hasEdits() const { return isEdited; }

private:
    // The next bytes, at most so many; none at the end.
    std::string_view next(std::uint64_t most);

    ByteSource& original;
    RewrittenDocument& rewritten;
    std::uint64_t done = 0;
    bool isEdited = false;
    std::vector<char> buffer;
    std::string_view ahead; // in the buffer
};

} // namespace Command
