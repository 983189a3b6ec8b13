// How long a generated test runs. LUMENKIT_TEST_SHARE=n has it do one in n of its rounds, for tools
// under which programs are slow.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>

namespace lumenkit::testing {

inline int RoundShare() {
    const char* const given = std::getenv("LUMENKIT_TEST_SHARE");
    return given != nullptr ? std::stoi(given) : 1;
}

/// How many rounds there are of so many, at least one.
inline int Rounds(int all) {
    return std::max(all / RoundShare(), 1);
}

/// Whether a test has run for long enough to have seen whatever its generator can make.
inline bool RunsAllRounds() {
    return RoundShare() == 1;
}

}  // namespace lumenkit::testing
