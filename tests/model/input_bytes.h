#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lumenkit::testing {

/// Reads a fuzzer's input from the front. Past the end, bytes read as 0.
class InputBytes {
 public:
    explicit InputBytes(std::string_view bytes) : left_(bytes) {}

    std::uint8_t Byte() {
        if (left_.empty()) {
            return 0;
        }
        const auto byte = static_cast<std::uint8_t>(left_.front());
        left_.remove_prefix(1);
        return byte;
    }
    std::uint16_t Word() {
        const std::uint8_t low = Byte();
        return static_cast<std::uint16_t>(low | Byte() << 8U);
    }
    std::int16_t Integer() { return static_cast<std::int16_t>(Word()); }
    /// Reads the bytes up to the next line feed and skips the line feed.
    std::string_view Line() {
        const std::size_t end = left_.find('\n');
        const std::string_view line = left_.substr(0, end);
        left_.remove_prefix(end == std::string_view::npos ? left_.size() : end + 1);
        return line;
    }
    std::string_view Rest() const { return left_; }
    bool AtEnd() const { return left_.empty(); }

 private:
    std::string_view left_;
};

}  // namespace lumenkit::testing
