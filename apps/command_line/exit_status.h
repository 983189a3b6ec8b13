// The exit statuses of the programs.
#pragma once

namespace lumenkit::cli {

inline constexpr int exitDone = 0;
/// The work is done, but a control reported an error.
inline constexpr int exitReported = 1;
/// Wrong arguments, or input that cannot be read.
inline constexpr int exitUnusable = 2;

}  // namespace lumenkit::cli
