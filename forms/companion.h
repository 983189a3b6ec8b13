// The binary companion of a form (.frx, .ctx, .pgx, .dox): records one behind the other, each known
// by its offset alone.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::forms {

/// Thrown for a record that is not what a reference says; what() has no place.
class BadRecord : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A companion's bytes and the offsets that its form refers to. A record reaches to the next of
/// these offsets or to the end.
class Companion {
 public:
    Companion() = default;
    Companion(std::string bytes, std::vector<std::uint32_t> offsets);

    const std::string& Bytes() const { return bytes_; }

    /// The record at one of the offsets, with its header, as it stands.
    std::string_view Record(std::uint32_t offset) const;

    /// What the string record at one of the offsets holds. Its length stands in one byte, or behind
    /// a byte FF in two, or in four (least significant byte first): whichever of these fills the
    /// record. Where none does, as designers leave bytes that nothing refers to, four bytes are
    /// taken for the length if the fourth is 0 and a text without NUL follows, then FF and two
    /// bytes, then one. Throws BadRecord for what is no string record and for one that is cut.
    std::string_view String(std::uint32_t offset) const;

    /// Appends a record, with its header, and gives its offset. Throws BadRecord where that would
    /// need more than 32 bits.
    std::uint32_t Append(std::string_view record);

    /// Throws BadRecord where offset is no place in the companion.
    void RequireOffset(std::uint32_t offset) const;

 private:
    std::string bytes_;
    std::vector<std::uint32_t> offsets_;  // in order
};

/// Appends a string record with the shortest header that fits and gives its offset. Throws
/// BadRecord where the offset or the length would need more than 32 bits.
std::uint32_t AppendString(std::string& bytes, std::string_view content);

}  // namespace lumenkit::forms
