// The number of rounds of generated tests. With LUMENKIT_TEST_SHARE=n a test runs one in n of its
// rounds. Use it with tools that make programs slow. With LUMENKIT_TEST_TIMES=n it runs n times as
// many.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>

namespace lumenkit::testing {

inline int NumberIn(const char* variable) {
    const char* const given = std::getenv(variable);
    return given != nullptr ? std::stoi(given) : 1;
}

inline int RoundShare() {
    return NumberIn("LUMENKIT_TEST_SHARE");
}

/// Returns the number of rounds to run instead of `all`, at least one.
inline int Rounds(int all) {
    return std::max(all * NumberIn("LUMENKIT_TEST_TIMES") / RoundShare(), 1);
}

/// Whether the test runs all its rounds, so that its generator produces every kind of case.
inline bool RunsAllRounds() {
    return RoundShare() == 1;
}

}  // namespace lumenkit::testing
