// Counts the allocations of the whole program, by replacing operator new. Link it to a program of
// its own.
#pragma once

#include <cstdint>

namespace lumenkit::testing {

/// Allocations so far.
std::int64_t AllocationCount();

/// Lets the `ordinal`-th allocation from now on (1 is the next one) fail with std::bad_alloc; 0
/// lets none fail. A failure happens once.
void FailAllocation(std::int64_t ordinal);

/// Whether the failure asked for has not happened yet.
bool AllocationFailurePending();

}  // namespace lumenkit::testing
