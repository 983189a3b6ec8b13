#pragma once

#include <string>
#include <string_view>

namespace lumenkit::difference {

/// Returns the differences between two versions of a file as "diff -u" writes them, with the names
/// "a/FILE" and "b/FILE", so that "patch -p1" and "git apply" make the second from the first. Lines
/// have the bytes of the files. Empty if there is no difference.
std::string UnifiedDiff(const std::string& file, std::string_view before, std::string_view after);

}  // namespace lumenkit::difference
