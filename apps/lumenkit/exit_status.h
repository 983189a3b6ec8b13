// What the program tells the shell.
#pragma once

namespace lumenkit::cli {

inline constexpr int exitDone = 0;
/// Done, but the controls reported an error.
inline constexpr int exitReported = 1;
/// Wrong arguments, or input that cannot be read.
inline constexpr int exitUnusable = 2;

}  // namespace lumenkit::cli
