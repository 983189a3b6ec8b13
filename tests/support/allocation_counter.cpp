#include "tests/support/allocation_counter.h"

#include <cstdlib>
#include <functional>
#include <new>

#ifdef __ELF__
// The linker defines these at the start and at the end of the program's own code.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,cppcoreguidelines-avoid-non-const-global-variables)
extern const char __executable_start;
extern const char etext;
// NOLINTEND(bugprone-reserved-identifier,cppcoreguidelines-avoid-non-const-global-variables)
}
#endif

namespace lumenkit::testing {

namespace {

struct Tally {
    std::int64_t allocations = 0;
    std::int64_t live = 0;
    std::size_t bytes = 0;
};

Tally ofAll;
Tally ofOwn;  // the program's own code
bool countsOwnOnly = false;
std::int64_t untilFailure = 0;

const Tally& Counted() {
    return countsOwnOnly ? ofOwn : ofAll;
}

// Precedes each block of memory. Free() reads it, because a library may free a block of the
// program.
union Header {
    bool isOwn;
    std::max_align_t alignment;
};

bool IsOwn([[maybe_unused]] const void* caller) {
#ifdef __ELF__
    const std::less<> isBefore;
    return !isBefore(caller, &__executable_start) && isBefore(caller, &etext);
#else
    return true;
#endif
}

void CountAllocation(Tally& tally, std::size_t size) {
    ++tally.allocations;
    tally.bytes += size;
}

void CountBlock(bool isOwn, int blocks) {
    ofAll.live += blocks;
    ofOwn.live += isOwn ? blocks : 0;
}

void* Allocate(std::size_t size, const void* caller) {
    const bool isOwn = IsOwn(caller);
    CountAllocation(ofAll, size);
    if (isOwn) {
        CountAllocation(ofOwn, size);
    }
    const bool mayFail = isOwn || !countsOwnOnly;
    if (mayFail && untilFailure > 0 && --untilFailure == 0) {
        throw std::bad_alloc();
    }
    auto* const header = static_cast<Header*>(std::malloc(sizeof(Header) + size));
    if (header == nullptr) {
        throw std::bad_alloc();
    }
    CountBlock(isOwn, 1);
    header->isOwn = isOwn;
    return header + 1;
}

void Free(void* memory) {
    if (memory == nullptr) {
        return;
    }
    Header* const header = static_cast<Header*>(memory) - 1;
    CountBlock(header->isOwn, -1);
    std::free(header);
}

}  // namespace

std::int64_t AllocationCount() {
    return Counted().allocations;
}

std::int64_t LiveAllocations() {
    return Counted().live;
}

std::size_t AllocatedBytes() {
    return Counted().bytes;
}

void FailAllocation(std::int64_t ordinal) {
    untilFailure = ordinal;
}

bool AllocationFailurePending() {
    return untilFailure > 0;
}

#ifdef __ELF__
void CountOwnAllocationsOnly() {
    countsOwnOnly = true;
}
#endif

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
