#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace lumenkit::fuzz {

/// The result of a fuzz target. Prints a fault and ends the program unless `fault` is empty.
inline int Verdict(const std::string& fault) {
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}

inline std::string_view Input(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

}  // namespace lumenkit::fuzz
