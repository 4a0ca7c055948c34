#include "fixing/Rewriter.h"

#include <algorithm>

namespace Command {

std::string_view Rewriter::next(std::uint64_t most) {
    if (ahead.empty()) {
        buffer.resize(blockSize);
        ahead = {buffer.data(), original.read(buffer)};
        if (original.failure()) throw RewriteFailure("unreadable", "cannot be read: " + original.failure()->message);
    }
    std::string_view const bytes = ahead.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(most, blockSize)));
    ahead.remove_prefix(bytes.size());
    done += bytes.size();
    return bytes;
}

void Rewriter::apply(Edit const& edit) {
    isEdited = true;
    auto const take = [&](std::uint64_t end) {
        std::string_view const bytes = next(end - done);
        if (bytes.empty()) throw RewriteFailure("unreadable", "was changed while it was read");
        return bytes;
    };
    while (done < edit.offset) rewritten.keep(take(edit.offset));
    std::string before;
    while (done < edit.offset + edit.length) before += take(edit.offset + edit.length);
    rewritten.replace(before, edit.inserted);
}

void Rewriter::finish() {
    for (std::string_view bytes = next(blockSize); !bytes.empty(); bytes = next(blockSize)) rewritten.keep(bytes);
}

} // namespace Command
