#include "vmemo/spoken_limits.h"

#include <cstdint>

#include "frame/numbers.h"

namespace lumenkit {

namespace {

void AppendLimit(Text& spoken, std::int16_t limit, TextView one, TextView many) {
    if (limit == 0) {
        return;
    }
    spoken += spoken.empty() ? u"up to " : u", up to ";
    AppendDecimal(spoken, limit);
    spoken += limit == 1 ? one : many;
}

}  // namespace

Text SpokenLimits(TextLimits limits) {
    Text spoken;
    AppendLimit(spoken, limits.maxCharsPerLine, u" character per line", u" characters per line");
    AppendLimit(spoken, limits.maxLines, u" line", u" lines");
    return spoken;
}

}  // namespace lumenkit
