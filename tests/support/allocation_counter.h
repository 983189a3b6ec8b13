// Counts the allocations of the program to which it is linked. It replaces operator new.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumenkit::testing {

/// Returns the number of allocations so far.
std::int64_t AllocationCount();

/// Returns the number of allocations that have not been freed.
std::int64_t LiveAllocations();

/// Returns the number of bytes requested so far. Freeing memory does not reduce it.
std::size_t AllocatedBytes();

/// Makes an allocation fail with std::bad_alloc: 1 is the next allocation, 2 the one after it. Only
/// that allocation fails. 0 makes none fail.
void FailAllocation(std::int64_t ordinal);

/// Whether the requested failure has not happened yet.
bool AllocationFailurePending();

#ifdef __ELF__
/// From now on, the functions above are about the allocations of the program's own code only,
/// including the templates instantiated in it. For programs that use shared libraries which cannot
/// handle lack of memory.
void CountOwnAllocationsOnly();
#endif

}  // namespace lumenkit::testing
