#include "Allocations.h"

#include <cstdlib>
#include <new>

namespace {

// The benchmarks run in one thread.
std::size_t count = 0;

} // namespace

std::size_t Bench::allocationCount() noexcept {
    return count;
}

// The forms for arrays and the ones that do not throw come here too.
void* operator new(std::size_t size) {
    ++count;
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
