// Streams of settings with a valid checksum.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumenkit::testing {

/// Returns `stream` with its last four bytes replaced by the CRC-32 of all bytes before them. The
/// checksum is implemented again here, so that the tests do not rely on the code under test.
inline std::vector<std::uint8_t> Sealed(std::vector<std::uint8_t> stream) {
    constexpr std::size_t checkSize = 4;
    std::uint32_t sum = 0xFFFFFFFF;
    for (std::size_t index = 0; index + checkSize < stream.size(); ++index) {
        sum ^= stream[index];
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum & 1U) != 0 ? (sum >> 1U) ^ 0xEDB88320U : sum >> 1U;
        }
    }
    sum = ~sum;
    for (std::size_t index = 0; index < checkSize; ++index) {
        stream[stream.size() - checkSize + index] = static_cast<std::uint8_t>(sum >> (8 * index));
    }
    return stream;
}

}  // namespace lumenkit::testing
