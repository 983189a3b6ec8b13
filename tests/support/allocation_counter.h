// Counts the allocations of the program that it is linked to, by replacing operator new.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumenkit::testing {

/// Allocations so far.
std::int64_t AllocationCount();

/// Allocations that have not been given back yet.
std::int64_t LiveAllocations();

/// Bytes asked for so far; never less when they are given back.
std::size_t AllocatedBytes();

/// Lets the `ordinal`-th allocation from now on (1 is the next one) fail with std::bad_alloc; 0
/// lets none fail. A failure happens once.
void FailAllocation(std::int64_t ordinal);

/// Whether the failure asked for has not happened yet.
bool AllocationFailurePending();

}  // namespace lumenkit::testing
