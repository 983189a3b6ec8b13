#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::testing {

/// What is wrong with how a stream is read: it is refused, or comes back the same when it is
/// written and read again, and every control can be started from it and saved. Empty when nothing
/// is.
std::string StreamFault(const std::vector<std::uint8_t>& stream);

/// A fuzzer's input as a stream: as it is, or as records under a header and a check that are right.
std::vector<std::uint8_t> StreamFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
