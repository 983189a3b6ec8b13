// Encodes settings as bytes, in the same form on every machine and in every kind of storage.
//
// All numbers are little-endian.
//     magic    4 bytes  "LKPB"
//     version  u16      1
//     count    u16      of records
//     length   u32      of the records, in bytes
//     records
//     check    u32      CRC-32 (the one of zip) of everything before it
// A record is a name (text), a kind (u8) and a value:
//     0 empty     nothing
//     1 boolean   u8, 0 or 1
//     2 integer   i16
//     3 long      i32
//     4 single    IEEE 754, 32 bits
//     5 double    IEEE 754, 64 bits
//     6 text      u32 number of UTF-16 units, then the units
//     7 font      name (text), size in 1/10000 points (i64), weight (i16), character set (i16),
//                 u8 of flags: 1 italic, 2 underline, 4 strikethrough
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <span>
#include <vector>

#include "runtime/ole/stored/record.h"

namespace lumenkit::stored {

/// Thrown for bytes that are not encoded settings.
class Corrupt : public std::exception {};

/// Encodes at most 65535 settings. Throws std::bad_alloc for a text longer than the format can
/// count.
std::vector<std::uint8_t> Encode(const Records& records);

inline constexpr std::size_t encodedHeaderSize = 12;
inline constexpr std::size_t encodedCheckSize = 4;

/// Returns the number of bytes that follow this header, including the check. Throws Corrupt when
/// `header` is not a header.
std::size_t EncodedRest(std::span<const std::uint8_t> header);

/// Throws Corrupt for anything that Encode did not produce.
Records Decode(std::span<const std::uint8_t> bytes);

}  // namespace lumenkit::stored
