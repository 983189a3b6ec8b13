#include "bench/memo_lines.h"

#include <random>

namespace lumenkit::bench {

Text MemoLines(std::size_t units) {
    std::mt19937 random(1);
    std::uniform_int_distribution<std::size_t> lengths(30, 90);
    Text text;
    while (text.size() < units) {
        text.append(lengths(random), u'x').append(crLf);
    }
    text.resize(units, u'x');
    return text;
}

}  // namespace lumenkit::bench
