// Checks that must hold for every form file, valid or broken. Used with generated files and by the
// fuzzer.
#pragma once

#include <string>
#include <string_view>

namespace lumenkit::forms::testing {

/// Separates a form from its companion where one file holds both.
inline constexpr std::string_view companionMark("\0COMPANION\0", 11);

/// Returns the fault in the handling of `form` and `companion`; empty if there is none.
/// Either they are refused with a FormError that has a place, or they are written back byte for
/// byte, their values can be read and written again, and an edit reads back.
std::string FaultWith(std::string_view form, std::string_view companion, int codePage);

/// The same for both in one file, separated by companionMark.
std::string FaultWith(std::string_view file);

}  // namespace lumenkit::forms::testing
