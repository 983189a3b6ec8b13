#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace lumenkit::fuzz {

/// What a fuzz target returns: it ends the program where something is wrong with an input.
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
