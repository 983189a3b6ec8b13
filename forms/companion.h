// The binary companion of a form (.frx, .ctx, .pgx, .dox): consecutive records, each identified
// only by its offset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::forms {

/// Thrown for a record that does not match its reference. what() contains no position.
class BadRecord : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The bytes of a companion and the offsets that its form refers to. A record ends at the next of
/// these offsets or at the end.
class Companion {
 public:
    Companion() = default;
    Companion(std::string bytes, std::vector<std::uint32_t> offsets);

    const std::string& Bytes() const { return bytes_; }

    /// Returns the record at one of the offsets, including its header.
    std::string_view Record(std::uint32_t offset) const;

    /// Returns the content of the string record at one of the offsets. The length is stored in one
    /// byte, or in two bytes after a byte FF, or in four bytes (least significant byte first): the
    /// first of these forms whose length fills the record is used. Unreferenced bytes may follow
    /// the string, so that no form fills the record. In that case the four-byte form is used if its
    /// fourth byte is 0 and a text without NUL follows; otherwise FF and two bytes; otherwise one
    /// byte. Throws BadRecord for a record that is not a string and for a truncated string.
    std::string_view String(std::uint32_t offset) const;

    /// Appends a record, including its header, and returns its offset. Throws BadRecord when the
    /// offset would need more than 32 bits.
    std::uint32_t Append(std::string_view record);

    /// Returns how many bytes agree with others from the beginning, without a record that agrees
    /// only in part.
    std::size_t AgreesWith(std::string_view others) const;

    /// Throws BadRecord when `offset` is not inside the companion.
    void RequireOffset(std::uint32_t offset) const;

 private:
    std::string bytes_;
    std::vector<std::uint32_t> offsets_;  // in order
};

/// Appends a string record with the shortest header that fits and returns its offset. Throws
/// BadRecord when the offset or the length would need more than 32 bits.
std::uint32_t AppendString(std::string& bytes, std::string_view content);

}  // namespace lumenkit::forms
