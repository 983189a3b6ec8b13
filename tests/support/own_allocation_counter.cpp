// Implements allocation_counter.h for programs that use shared libraries which cannot handle lack
// of memory. Counts, and makes fail, only the allocations of the program's own code, including the
// templates instantiated in it. Allocations of the libraries are neither counted nor made to fail.
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>

#include "tests/support/allocation_counter.h"

// The linker defines these at the start and at the end of the program's own code.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,cppcoreguidelines-avoid-non-const-global-variables)
extern const char __executable_start;
extern const char etext;
// NOLINTEND(bugprone-reserved-identifier,cppcoreguidelines-avoid-non-const-global-variables)
}

namespace lumenkit::testing {

namespace {

std::int64_t count = 0;
std::int64_t liveCount = 0;
std::size_t bytes = 0;
std::int64_t untilFailure = 0;

// Precedes each block of memory. Free() reads it, because a library may free a block of the
// program.
union Owner {
    bool isOwn;
    std::max_align_t alignment;
};

bool IsOwn(const void* caller) {
    const std::less<> isBefore;
    return !isBefore(caller, &__executable_start) && isBefore(caller, &etext);
}

void CountOwn(std::size_t size) {
    ++count;
    bytes += size;
    if (untilFailure > 0 && --untilFailure == 0) {
        throw std::bad_alloc();
    }
    ++liveCount;
}

void* Allocate(std::size_t size, const void* caller) {
    const bool isOwn = IsOwn(caller);
    if (isOwn) {
        CountOwn(size);
    }
    auto* const owner = static_cast<Owner*>(std::malloc(sizeof(Owner) + size));
    if (owner == nullptr) {
        throw std::bad_alloc();
    }
    owner->isOwn = isOwn;
    return owner + 1;
}

void Free(void* memory) {
    if (memory == nullptr) {
        return;
    }
    Owner* const owner = static_cast<Owner*>(memory) - 1;
    liveCount -= owner->isOwn ? 1 : 0;
    std::free(owner);
}

}  // namespace

std::int64_t AllocationCount() {
    return count;
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
    return lumenkit::testing::Allocate(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size) {
    return lumenkit::testing::Allocate(size, __builtin_return_address(0));
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
