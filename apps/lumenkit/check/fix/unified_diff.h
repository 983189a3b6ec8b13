#pragma once

#include <string>
#include <string_view>

namespace lumenkit::check {

/// Returns the differences between two versions of a file as "diff -u" writes them, with the names
/// "a/FILE" and "b/FILE", so that "patch -p1" and "git apply" make the second from the first. Lines
/// have the bytes of the files. Empty if there is no difference.
std::string UnifiedDiff(const std::string& file, std::string_view before, std::string_view after);

/// Returns a diff as a terminal may show it: without control characters, with or without colours.
std::string DiffForTerminal(std::string_view diff, bool isColored);

}  // namespace lumenkit::check
