// Numbers in the binary companion, the least significant byte first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lumenkit::forms {

/// `bytes` has at most four bytes.
constexpr std::uint32_t LittleEndian(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = bytes.size(); i > 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes[i - 1]);
    }
    return number;
}

inline void AppendLittleEndian(std::string& bytes, std::uint64_t number, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(number >> 8 * i & 0xFF);
    }
}

}  // namespace lumenkit::forms
