#include "apps/command_line/spelling/nearest.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lumenkit {

namespace {

constexpr std::size_t longestWord = 40;

std::size_t Forgiven(TextView word) {
    return word.size() <= 2 ? 0 : word.size() <= 5 ? 1 : 2;
}

// The number of slips between two lower-case words. Keeps three rows of the usual table, because a
// swap of neighbours refers to the row before the previous one.
std::size_t Slips(TextView written, TextView meant) {
    std::vector<std::size_t> twoBefore;
    std::vector<std::size_t> before(meant.size() + 1);
    for (std::size_t i = 0; i <= meant.size(); ++i) {
        before[i] = i;
    }
    for (std::size_t row = 1; row <= written.size(); ++row) {
        std::vector<std::size_t> now = {row};
        for (std::size_t i = 1; i <= meant.size(); ++i) {
            const bool same = written[row - 1] == meant[i - 1];
            std::size_t slips =
                std::min({before[i] + 1, now[i - 1] + 1, before[i - 1] + (same ? 0 : 1)});
            if (row > 1 && i > 1 && written[row - 1] == meant[i - 2] &&
                written[row - 2] == meant[i - 1]) {
                slips = std::min(slips, twoBefore[i - 2] + 1);
            }
            now.push_back(slips);
        }
        twoBefore = std::move(before);
        before = std::move(now);
    }
    return before.back();
}

}  // namespace

TextView Nearest(TextView written, std::span<const TextView> words) {
    const Text trimmed = LCase(Trim(written).substr(0, longestWord + 1));
    TextView nearest;
    std::size_t fewest = longestWord;
    for (const TextView word : words) {
        const std::size_t longer = std::max(trimmed.size(), word.size());
        const std::size_t surplus = longer - std::min(trimmed.size(), word.size());
        if (longer > longestWord || surplus > Forgiven(word)) {
            continue;  // each letter too many or too few is a slip
        }
        const std::size_t slips = Slips(trimmed, LCase(word));
        if (slips <= Forgiven(word) && slips < fewest) {
            nearest = word;
            fewest = slips;
        }
    }
    return nearest;
}

}  // namespace lumenkit
