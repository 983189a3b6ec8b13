// The number of rounds of generated tests. With LUMENKIT_TEST_SHARE=n a test runs one in n of its
// rounds. Use it with tools that make programs slow.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>

namespace lumenkit::testing {

inline int RoundShare() {
    const char* const given = std::getenv("LUMENKIT_TEST_SHARE");
    return given != nullptr ? std::stoi(given) : 1;
}

/// Returns the number of rounds to run out of `all`, at least one.
inline int Rounds(int all) {
    return std::max(all / RoundShare(), 1);
}

/// Whether the test runs all its rounds, so that its generator produces every kind of case.
inline bool RunsAllRounds() {
    return RoundShare() == 1;
}

}  // namespace lumenkit::testing
