#include "tests/support/allocation_counter.h"

#include <cstdlib>
#include <new>

namespace lumenkit::testing {

namespace {

std::int64_t allocations = 0;
std::int64_t liveCount = 0;
std::size_t bytes = 0;
std::int64_t untilFailure = 0;

void* Allocate(std::size_t size) {
    ++allocations;
    bytes += size;
    if (untilFailure > 0 && --untilFailure == 0) {
        throw std::bad_alloc();
    }
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    ++liveCount;
    return memory;
}

void Free(void* memory) {
    liveCount -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

}  // namespace

std::int64_t AllocationCount() {
    return allocations;
}

std::int64_t LiveAllocations() {
    return liveCount;
}

std::size_t AllocatedBytes() {
    return bytes;
}

void FailAllocation(std::int64_t ordinal) {
    untilFailure = ordinal;
}

bool AllocationFailurePending() {
    return untilFailure > 0;
}

}  // namespace lumenkit::testing

// The nothrow forms call these. The aligned forms stay as they are: no type here is over-aligned.
void* operator new(std::size_t size) {
    return lumenkit::testing::Allocate(size);
}
void* operator new[](std::size_t size) {
    return lumenkit::testing::Allocate(size);
}
void operator delete(void* memory) noexcept {
    lumenkit::testing::Free(memory);
}
void operator delete[](void* memory) noexcept {
    lumenkit::testing::Free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
    lumenkit::testing::Free(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    lumenkit::testing::Free(memory);
}
