#pragma once

#include <cstdint>

namespace lumenkit::testing {

/// Calls of the global operator new so far, in this whole program.
std::int64_t Allocations();

}  // namespace lumenkit::testing
