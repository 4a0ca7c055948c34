#pragma once

#include "fixing/Rewriter.h"

#include <string>
#include <string_view>

namespace Command {

// Both versions of a document, put together from what was kept and what was replaced.
struct Versions final : RewrittenDocument {
    std::string before, after;

    void keep(std::string_view bytes) override { replace(bytes, bytes); }
    void replace(std::string_view old, std::string_view inserted) override {
        before += old;
        after += inserted;
    }
    void finish() override {}
};

} // namespace Command
