#include "tests/unit/memory/allocation_counter.h"

#include <cstdlib>
#include <new>

namespace {

std::int64_t allocations = 0;

void* Allocate(std::size_t size) {
    ++allocations;
    void* block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

}  // namespace

// The array and nothrow forms end in these.
void* operator new(std::size_t size) {
    return Allocate(size);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

namespace lumenkit::testing {

std::int64_t Allocations() {
    return allocations;
}

}  // namespace lumenkit::testing
