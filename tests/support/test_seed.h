// The seed of a random test: LUMENKIT_TEST_SEED if it is set, otherwise a new one each time.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

namespace lumenkit::testing {

/// Prints the seed, so that a failure can be reproduced.
inline std::uint32_t TestSeed() {
    const char* const given = std::getenv("LUMENKIT_TEST_SEED");
    const std::uint32_t seed =
        given != nullptr ? static_cast<std::uint32_t>(std::stoul(given)) : std::random_device()();
    std::cout << "LUMENKIT_TEST_SEED=" << seed << std::endl;
    return seed;
}

}  // namespace lumenkit::testing
