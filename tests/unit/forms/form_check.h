// What must hold for every file, sound or broken; for generated files and the fuzzer.
#pragma once

#include <string>
#include <string_view>

namespace lumenkit::forms::testing {

/// Between a form and its companion where one file holds both.
inline constexpr std::string_view companionMark("\0COMPANION\0", 11);

/// What is wrong with how `form` and `companion` are taken, empty when nothing is: they are refused
/// with a FormError that has a place, or written back byte for byte, their values can be read and
/// written again, and an edit reads back.
std::string FaultWith(std::string_view form, std::string_view companion, int codePage);

/// The same for both in one file, divided by companionMark.
std::string FaultWith(std::string_view file);

}  // namespace lumenkit::forms::testing
