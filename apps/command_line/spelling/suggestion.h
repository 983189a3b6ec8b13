#pragma once

#include <string>
#include <string_view>

namespace lumenkit {

/// Returns the end of a message that offers a word, `; did you mean "word"?`, or an empty text if
/// there is no word.
std::string DidYouMean(std::string_view word);

}  // namespace lumenkit
