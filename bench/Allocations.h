// Counts what is allocated.
#pragma once

#include <cstddef>

namespace Bench {

// How often this program, the library included, has asked for memory so far.
std::size_t allocationCount() noexcept;

} // namespace Bench
