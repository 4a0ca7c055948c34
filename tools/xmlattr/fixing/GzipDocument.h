// Compresses a rewritten document, such as an .svgz.
#pragma once

#include "fixing/Rewriter.h"

#include <memory>

namespace Command {

class GzipDocument final : public RewrittenDocument {
public:
    // The compressed bytes go to another document, as ones that stay.
    explicit GzipDocument(std::unique_ptr<RewrittenDocument> packed);
    ~GzipDocument() override;

    void keep(std::string_view bytes) override { add(bytes, false); }
    void replace(std::string_view, std::string_view after) override { add(after, false); }
    void finish() override;

private:
    struct State;

    void add(std::string_view bytes, bool isLast);

    std::unique_ptr<RewrittenDocument> packed;
    std::unique_ptr<State> state;
};

} // namespace Command
