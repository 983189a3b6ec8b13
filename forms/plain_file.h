#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace lumenkit::forms {

/// The size of the largest form or companion that is read, in bytes. Larger ones are not forms, and
/// would only exhaust the memory.
inline constexpr std::uintmax_t largestFile = std::uintmax_t{256} << 20U;

/// Reads a file. Never waits for a pipe. Throws FormError for a file that cannot be read, is larger
/// than largestFile or is no plain file.
std::string ReadPlainFile(const std::filesystem::path& path);

}  // namespace lumenkit::forms
