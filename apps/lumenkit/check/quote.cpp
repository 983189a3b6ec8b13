#include "apps/lumenkit/check/quote.h"

#include "apps/command_line/spelling/printable.h"

namespace lumenkit::check {

namespace {

constexpr std::size_t longestQuote = 40;

}  // namespace

std::string Quote(TextView text) {
    if (text.size() <= longestQuote) {
        return '"' + Printable(text) + '"';
    }
    const bool splitsPair = (text[longestQuote - 1] & 0xFC00) == 0xD800;
    return '"' + Printable(text.substr(0, longestQuote - (splitsPair ? 1 : 0))) + "...\"";
}

}  // namespace lumenkit::check
