#include "apps/command_line/spelling/suggestion.h"

namespace lumenkit {

std::string DidYouMean(std::string_view word) {
    return word.empty() ? std::string() : "; did you mean \"" + std::string(word) + "\"?";
}

}  // namespace lumenkit
