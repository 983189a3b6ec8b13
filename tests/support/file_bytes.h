// Reading a whole file.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lumenkit::testing {

/// The bytes of the file; none when it cannot be read.
inline std::string FileBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace lumenkit::testing
