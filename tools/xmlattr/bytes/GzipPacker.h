// Compresses bytes as GzipSource expands them.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

namespace Command {

class GzipPacker {
public:
    using Packed = std::function<void(std::string_view bytes)>;

    explicit GzipPacker(Packed packed);
    GzipPacker(GzipPacker const&) = delete;
    GzipPacker& operator=(GzipPacker const&) = delete;
    ~GzipPacker();

    // Gives on what is compressed so far, and with the last bytes all that is left.
    void add(std::string_view bytes, bool isLast = false);

private:
    struct State;

    Packed packed;
    std::unique_ptr<State> state;
};

} // namespace Command
